// SPDX-License-Identifier: MIT
#include "corvex/project/elements/GroupElement.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/core/properties/CollectionProperties.h"
#include "corvex/core/properties/ObjectListProperty.h"
#include "corvex/project/RuntimeTable.h"
#include "corvex/project/Screen.h"
#include "corvex/values/text/ValueConversion.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

bool GroupElement::initializeProperties()
{
    static const PropertyTable table{
        row<ListValueProperty>("indexes", "Indexes", ListInfo())
            .description("The names of the members in the order in which they are drawn, the lowest first.")
            .example("caption | lamp")
            .rank(2)
            .editor("ItemsOrderEditor")
            .references(Form::Names)
            .validator(&PropertyValidators::groupIndexesValidator)
            .allowInvalid(),
        row<ObjectListProperty>("elements", "Elements", OrderRule::InsertionOrder)
            .description("The elements of the group.")
            .rank(3)
            .flags(StoredFlag | RuntimeFlag | ListFlag)
            .filter({"Element"})
            .validator(&PropertyValidators::groupElementsValidator)
            .allowInvalid(),
    };
    return VisualElement::initializeProperties() && addProperties(table);
}

ObjectView *GroupElement::createGraphicsItem()
{
    return DesignerFactory::createObjectView(u"GraphicsItemGroup"_s, this);
}

QStringList GroupElement::childrenNames() const
{
    return elements()->listItemNames(true);
}

Element *GroupElement::getChild(const QString &name) const
{
    return kindCast<Element>(elements()->getListItem(name, true));
}

Screen *GroupElement::parentScreen() const
{
    for (DesignerObject *object = ownerObject(); object; object = object->ownerObject()) {
        if (auto *screen = kindCast<Screen>(object)) {
            return screen;
        }
    }
    return nullptr;
}

QString GroupElement::onCompletedQml(int indent) const
{
    QStringList pieces;
    for (const DesignerObject *item : elements()->listItems()) {
        pieces.append(item->onCompletedQml(indent));
    }
    pieces.removeAll(QString());
    return pieces.join(u'\n');
}

QRectF GroupElement::boundingRect() const
{
    QRectF bounds;
    for (const DesignerObject *item : elements()->listItems()) {
        if (const auto *element = kindCast<VisualElement>(item)) {
            bounds |= element->boundingRect();
        }
    }
    return bounds.translated(ValueConversion::toPoint(getProperty(u"position")->valueString()));
}

RuntimePropertyList GroupElement::runtimeProperties() const
{
    using Common::EnumHelper;
    static constexpr RuntimeRow rows[] = {
        {"indexes", "Indexes", EnumHelper::StringVariable, EnumHelper::ReadOnly},
        {"children", "Child elements", EnumHelper::NoVariable, EnumHelper::ReadOnly},
    };
    static const RuntimePropertyList list = extended(VisualElement::runtimeProperties(), rows);
    return list;
}

} // namespace Halvane::Corvex::Designer
