// SPDX-License-Identifier: MIT
#include "project/NewElement.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/values/text/ValueConversion.h"

#include <QMimeData>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;

namespace {

constexpr double step = 10; // pixels between new elements

} // namespace

std::unique_ptr<AddObject> NewElement::command(Screen &screen, const QString &className, const QPointF &place)
{
    DesignerObject *object = DesignerFactory::instance()->createObject(className);
    if (!object) {
        return nullptr;
    }
    object->setParent(nullptr);
    object->setIdName(screen.uniqueElementName(object->baseName()));
    const SharedProperty position = object->getProperty(u"position");
    if (const auto *element = kindCast<VisualElement>(object); element && position) {
        const QSizeF size = element->boundingRect().size();
        const QSizeF space = ValueConversion::toSize(screen.size()->valueString()) - size;
        const QPointF corner = place - QPointF(size.width() / 2, size.height() / 2);
        QSet<QString> taken;
        for (const DesignerObject *other : screen.elements()->listItems()) {
            if (const SharedProperty known = other->getProperty(u"position")) {
                taken.insert(known->valueString());
            }
        }
        QPointF inside(qRound(std::clamp(corner.x(), 0.0, std::max(0.0, space.width()))),
                       qRound(std::clamp(corner.y(), 0.0, std::max(0.0, space.height()))));
        // Two new elements would hide each other.
        while (taken.contains(ValueConversion::toString(inside))) {
            inside += QPointF(step, step);
        }
        object->changePropertyValue(position, ValueConversion::toString(inside));
    }
    // An empty text would be invisible.
    const SharedProperty text = object->getProperty(u"text");
    if (text && text->valueString().isEmpty()) {
        object->changePropertyValue(text, object->displayName());
    }
    return std::make_unique<AddObject>(screen.elements(), object, true);
}

QString NewElement::mimeType()
{
    return u"application/x-corvex-class"_s;
}

QMimeData *NewElement::dragged(const QString &className)
{
    auto *data = new QMimeData;
    data->setData(mimeType(), className.toUtf8());
    return data;
}

QString NewElement::classOf(const QMimeData &data)
{
    return QString::fromUtf8(data.data(mimeType()));
}

} // namespace Halvane::Corvex::Nova
