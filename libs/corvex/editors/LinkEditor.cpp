// SPDX-License-Identifier: MIT
// The editors of names of other objects.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editors/ReferenceEditors.h"
#include "corvex/editors/private/FieldButton.h"
#include "corvex/editors/private/ModelWatch.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/ObjectSelector.h"
#include "corvex/widgets/Theme.h"
#include "corvex/widgets/Thumbnails.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSet>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

//! A value of the property as a link, with the scope and the classes that the property allows.
ObjectLinkInfo linkOf(const DesignerProperty &property, const QString &value)
{
    if (const auto *link = propertyCast<LinkProperty>(&property)) {
        return link->checked(ObjectLinkInfo(value));
    }
    return {value, property.editorParameter(u"scopeType"_s).toString(),
            property.editorParameter(u"filterType"_s).toStringList()};
}

} // namespace

void LinkEditor::createFields()
{
    m_line = addLine();
    auto *choose =
        new FieldButton(IconSet::More, LocalizationHelper::coreString(u"Choose… (Alt+Down)"_s), this);
    choose->openFrom(m_line);
    m_choose = choose;
    addField(m_choose, LocalizationHelper::coreString(u"choose"_s));
    m_goTo = new FieldButton(IconSet::Open, LocalizationHelper::coreString(u"Go to this object"_s), this);
    fields()->addWidget(m_goTo); // usable although the value cannot be changed
    connect(m_choose, &QToolButton::clicked, this, &LinkEditor::choose);
    connect(m_goTo, &QToolButton::clicked, this, [this] {
        if (DesignerObject *object = target()) {
            emit requests()->objectRequested(object);
        }
    });
    m_watch = new ModelWatch([](const DesignerProperty &property) { return property.id() == "id"_L1; }, this);
    connect(m_watch, &ModelWatch::changed, this, [this] {
        if (!hasEntry()) {
            showRow(); // the target may exist now, or no longer
        }
    });
}

void LinkEditor::showRow()
{
    const SharedProperty first = firstProperty();
    m_line->setPlaceholderText(row().isMixed ? mixedText() : LocalizationHelper::coreString(u"None"_s));
    m_line->setShownText(row().isMixed || !first ? QString() : ReadableValue::print(*first, row().value));
    m_goTo->setAccessibleName(LocalizationHelper::coreString(u"%1, go to"_s).arg(row().title));
    m_goTo->setEnabled(target());
    m_goTo->setVisible(requests() && requests()->isServed(EditorRequests::Object));
    if (first) {
        m_watch->follow(first->parentObject()->project());
    }
}

PropertyEditor::Entry LinkEditor::entryFor(const DesignerProperty &property) const
{
    const ReadableValue::Reading reading = ReadableValue::read(property, m_line->text().trimmed());
    return {reading.stored, reading.error};
}

QList<DesignerObject *> LinkEditor::candidates() const
{
    QList<DesignerObject *> found;
    QSet<const Screen *> screens; // a link on another screen may reach other objects
    for (const SharedProperty &property : properties()) {
        const DesignerObject *owner = property->parentObject();
        if (screens.contains(owner->screen())) {
            continue;
        }
        const QList<DesignerObject *> reached = linkOf(*property, valueOf(*property)).findLinks(owner, true);
        if (screens.isEmpty()) {
            found = reached;
        } else {
            QSet<QString> names;
            for (const DesignerObject *object : reached) {
                names.insert(nameOf(object));
            }
            found.removeIf([&](const DesignerObject *object) { return !names.contains(nameOf(object)); });
        }
        screens.insert(owner->screen());
    }
    return found;
}

DesignerObject *LinkEditor::target() const
{
    const SharedProperty first = firstProperty();
    if (row().isMixed || !first) {
        return nullptr;
    }
    const ObjectLinkInfo link = linkOf(*first, row().value);
    return link.isValid() ? link.findLinks(first->parentObject(), false).value(0) : nullptr;
}

QString LinkEditor::nameOf(const DesignerObject *object) const
{
    return object->getIdName();
}

QStringList LinkEditor::newClasses() const
{
    const SharedProperty first = firstProperty();
    QStringList classes = !first ? QStringList() : linkOf(*first, valueOf(*first)).filterType();
    const DesignerFactory *factory = DesignerFactory::instance();
    classes.removeIf([factory](const QString &name) { return !factory || !factory->canCreateObject(name); });
    return classes;
}

void LinkEditor::choose()
{
    if (row().isReadOnly || m_selector) {
        return;
    }
    m_selector = new ObjectSelector(this);
    m_selector->setObjects(candidates(), target());
    if (m_line->hasEntry() && !m_line->text().isEmpty()) {
        m_selector->setSearch(m_line->text());
    }
    if (row().isMixed || !row().value.isEmpty()) {
        m_selector->offerNothing(LocalizationHelper::coreString(u"None"_s));
    }
    if (requests() && requests()->isServed(EditorRequests::NewObject)) {
        for (const QString &className : newClasses()) {
            m_selector->offerNew(className);
        }
    }
    const auto enter = [this](const QString &name) {
        m_line->enterText(name);
        completeEntry();
    };
    connect(m_selector, &ObjectSelector::chosen, this,
            [this, enter](const DesignerObject *object) { enter(nameOf(object)); });
    connect(m_selector, &ObjectSelector::nothingChosen, this, [enter] { enter({}); });
    connect(m_selector, &ObjectSelector::newObjectRequested, this, [this, enter](const QString &className) {
        const auto use = [this, enter](const DesignerObject *object) { enter(nameOf(object)); };
        emit requests()->newObjectRequested(className, answerFor<const DesignerObject *>(use));
    });
    m_selector->openAt(this);
}

void ObjectEditor::showRow()
{
    LinkEditor::showRow();
    const SharedProperty first = firstProperty();
    if (first && first->isObject()) {
        const DesignerObject *object = target();
        line()->setShownText(object ? object->getIdName() : QString());
        line()->setReadOnly(true);
    }
}

DesignerObject *ObjectEditor::target() const
{
    const SharedProperty first = firstProperty();
    return first && !hasSeveral() && first->isObject() ? first->objectValue() : LinkEditor::target();
}

void ImageSourceEditor::createFields()
{
    LinkEditor::createFields();
    m_picture = new QWidget(this);
    auto *line = new QHBoxLayout(m_picture);
    line->setContentsMargins(0, Theme::gap, 0, Theme::gap);
    line->setSpacing(Theme::margin);
    m_thumbnail = new QLabel(m_picture);
    m_thumbnail->setFixedHeight(2 * Theme::fieldHeight(this));
    line->addWidget(m_thumbnail);
    m_size = new QLabel(m_picture);
    Theme::setTextColor(m_size, &Theme::muted);
    line->addWidget(m_size, 1);
    static_cast<QVBoxLayout *>(layout())->insertWidget(1, m_picture);
}

void ImageSourceEditor::showRow()
{
    LinkEditor::showRow();
    const auto *image = kindCast<ImageResource>(target());
    const QPixmap picture =
        image ? Thumbnails::of(*image, m_thumbnail->height(), devicePixelRatioF()) : QPixmap();
    m_thumbnail->setPixmap(picture);
    const QSize size = image && !picture.isNull() ? Thumbnails::sizeOf(*image) : QSize();
    m_size->setText(size.isValid() ? LocalizationHelper::coreString(u"%1 x %2 pixels"_s)
                                         .arg(QString::number(size.width()), QString::number(size.height()))
                                   : QString());
    if (m_picture->isHidden() != picture.isNull()) {
        m_picture->setHidden(picture.isNull());
        emit heightChanged();
    }
}

QList<DesignerObject *> AutosaveObjectEditor::candidates() const
{
    QList<DesignerObject *> found;
    const SharedProperty first = firstProperty();
    const Project *project = !first ? nullptr : first->parentObject()->project();
    for (const DesignerObject *screen : project ? project->screens()->listItems() : found) {
        for (Element *element :
             static_cast<const Screen *>(screen)->getElementsOfType(VisualElement::kindName())) {
            found.append(element);
        }
    }
    return found;
}

DesignerObject *AutosaveObjectEditor::target() const
{
    const QString className = row().value;
    if (className.isEmpty()) {
        return nullptr;
    }
    for (DesignerObject *object : candidates()) {
        if (object->className() == className) {
            return object;
        }
    }
    return nullptr;
}

QString AutosaveObjectEditor::nameOf(const DesignerObject *object) const
{
    return object->className();
}

QStringList AutosaveObjectEditor::newClasses() const
{
    return {};
}

} // namespace Halvane::Corvex::Designer
