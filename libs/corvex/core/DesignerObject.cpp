// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerObject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/core/ObjectView.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/QmlText.h"
#include "corvex/core/private/DesignerObjectData.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/core/properties/LinkProperty.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

DesignerObject::DesignerObject(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Data>())
{ }

//! Reports that an object is deleted while it is in the model.
void DesignerObject::announceDeletion()
{
    ModelObservers *observers = ownerObject() ? activeObservers() : nullptr;
    if (!observers) {
        return;
    }
    SharedProperty list = listProperty();
    if (!list) {
        list = objectProperty();
    }
    const qsizetype index = !list ? -1 : list->isList() ? list->getListItemIndex(this) : 0;
    if (index >= 0) {
        observers->beginExchange({list, index, this, nullptr});
    }
}

void DesignerObject::deleteChildren()
{
    announceDeletion();
    if (ObjectView *view = std::exchange(d->view, nullptr)) {
        view->objectGone();
    }
    QSet<const QObject *> released;
    for (DesignerProperty *property : d->properties) {
        for (const DesignerObject *child : property->releaseChildren()) {
            released.insert(child);
        }
    }
    // QObject searches its list for each removed child, and finds the first child immediately.
    const QObjectList all = released.isEmpty() ? QObjectList() : children();
    for (QObject *child : all) {
        if (released.contains(child)) {
            delete child;
        }
    }
}

DesignerObject::~DesignerObject()
{
    deleteChildren();
    for (DesignerProperty *list : d->lists.all()) {
        list->forgetItem(this);
    }
    if (const SharedProperty slot = objectProperty()) {
        slot->forgetObjectValue();
    }
    if (d->observers) {
        d->observers->endExchange(this);
    }
    // Undo steps and editors may still use a property.
    d->properties.leaveParent();
}

bool DesignerObject::initialize()
{
    return initializeProperties();
}

bool DesignerObject::initializeProperties()
{
    static const PropertyTable table{
        row<IdentifierProperty>("id", "Name", IdentifierInfo())
            .description("The name by which other objects refer to this one.")
            .rank(0),
    };
    if (!addProperties(table)) {
        return false;
    }
    d->id = d->properties.at(0);
    static_cast<IdentifierProperty &>(*d->id).setInitialValue({baseName(), {}, {}});
    return true;
}

void DesignerObject::registerIdentifier(const QString &scopeType)
{
    static_cast<IdentifierProperty &>(*d->id).setInitialValue({baseName(), scopeType, className()});
}

void DesignerObject::addProperty(const SharedProperty &property)
{
    d->properties.append(property);
    noteFlags(*property);
}

SharedProperty DesignerObject::makeProperty(const PropertyRow &row)
{
    return d->properties.make(row, this);
}

bool DesignerObject::addProperties(const PropertyTable &table)
{
    const std::vector<qsizetype> &places = table.placesAmong(d->properties);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const PropertyRow &row = table.m_rows[i];
        if (places[i] < 0) {
            addProperty(makeProperty(row));
            continue;
        }
        DesignerProperty &described = *d->properties.at(places[i]);
        if (!table.redescribe(row, described)) {
            return false;
        }
        noteFlags(described);
    }
    return true;
}

void DesignerObject::noteFlags(const DesignerProperty &property)
{
    d->mayHaveChildren = d->mayHaveChildren || property.isList() || property.isObject();
}

QString DesignerObject::baseName() const
{
    return u"Name"_s;
}

QString DesignerObject::displayName() const
{
    return Common::LocalizationHelper::coreString(u"Designer Object"_s);
}

QString DesignerObject::qmlName() const
{
    return className();
}

QString DesignerObject::onCompletedQml(int) const
{
    return {};
}

QString DesignerObject::toQml(int indent) const
{
    constexpr qsizetype usualSize = 1024;
    QString text = QmlText::tabs(indent);
    text.reserve(usualSize);
    text += qmlName() + u" {\n"_s;
    appendMembers(text, indent + 1);
    return text.append(QmlText::tabs(indent)).append(u'}');
}

QmlBindings DesignerObject::qmlBindings() const
{
    QmlBindings bindings;
    for (const DesignerProperty *property : d->properties) {
        if (!property->isList()) {
            bindings.add(property->qmlBindings());
        }
        if (property == d->id) {
            bindings.add(nameBinding());
        }
    }
    return bindings;
}

void DesignerObject::appendMembers(QString &text, int indent, const DesignerProperty *omitted) const
{
    const auto append = [&text, indent](const QmlBindings &bindings) {
        for (const QmlBinding &binding : bindings) {
            QmlText::append(text, binding, indent);
            text.append(u'\n');
        }
    };
    for (const DesignerProperty *property : d->properties) {
        if (property == omitted) {
            continue;
        }
        if (!property->isList()) {
            append(property->qmlBindings());
        } else if (const QString blocks = property->toQml(indent); !blocks.isEmpty()) {
            text.append(blocks).append(u'\n');
        }
        if (property == d->id) {
            append(nameBinding());
        }
    }
}

QmlBindings DesignerObject::nameBinding() const
{
    return {u"objectName"_s, QmlText::quoted(getIdName())};
}

SharedProperty DesignerObject::getProperty(QStringView id) const
{
    for (const DesignerProperty *property : d->properties) {
        if (property->id() == id) {
            return d->properties.shared(property);
        }
    }
    return {};
}

PropertyRange DesignerObject::properties() const
{
    return PropertyRange(&d->properties);
}

QList<SharedProperty> DesignerObject::getDependencyProperties() const
{
    return {};
}

SharedProperty DesignerObject::idProperty() const
{
    return d->properties.shared(d->id);
}

const QString &DesignerObject::getIdName() const
{
    static const QString none;
    return d->id ? static_cast<const IdentifierProperty &>(*d->id).value().name() : none;
}

IdentifierInfo DesignerObject::getIdInfo() const
{
    return d->id ? static_cast<const IdentifierProperty &>(*d->id).value() : IdentifierInfo();
}

bool DesignerObject::setIdName(const QString &name)
{
    IdentifierInfo info = getIdInfo();
    info.setName(name);
    return setIdInfo(info);
}

bool DesignerObject::setIdInfo(const IdentifierInfo &info)
{
    return d->id && changePropertyValue(idProperty(), info.toString());
}

void DesignerObject::setIdFlag(PropertyFlag flag, bool on)
{
    if (d->id) {
        d->id->setFlag(flag, on);
    }
}

QString DesignerObject::getQmlIdName() const
{
    return QmlText::reference(getIdName());
}

bool DesignerObject::isUnique(const DesignerObject *other) const
{
    return other && other->getIdInfo().isUnique(other);
}

bool DesignerObject::isOrHasIdentifier(const QString &name) const
{
    if (getIdName() == name) {
        return true;
    }
    const QList<DesignerObject *> children = childObjects();
    return std::any_of(children.begin(), children.end(),
                       [&name](const DesignerObject *child) { return child->isOrHasIdentifier(name); });
}

QMap<SharedProperty, QString> DesignerObject::linkPropertiesWithId() const
{
    QMap<SharedProperty, QString> links;
    for (const SharedProperty &property : properties()) {
        if (const auto *link = propertyCast<LinkProperty>(property)) {
            links.insert(property, link->value().objectId());
        }
    }
    return links;
}

QMap<SharedProperty, DesignerObject *> DesignerObject::linkPropertiesWithObjects() const
{
    QMap<SharedProperty, DesignerObject *> links;
    for (const SharedProperty &property : properties()) {
        if (const auto *link = propertyCast<LinkProperty>(property)) {
            links.insert(property, link->connectLink());
        }
    }
    return links;
}

SharedProperty DesignerObject::listProperty() const
{
    return d->listProperty.toStrongRef();
}

void DesignerObject::setListProperty(const SharedProperty &property)
{
    d->listProperty = property;
}

QList<DesignerProperty *> DesignerObject::listProperties() const
{
    return d->lists.all();
}

void DesignerObject::addListDesignerProperty(DesignerProperty *property)
{
    if (property) {
        d->lists.add(property);
    }
}

void DesignerObject::takeListDesignerProperty(DesignerProperty *property)
{
    d->lists.remove(property);
}

DesignerObject *DesignerObject::ownerObject() const
{
    return qobject_cast<DesignerObject *>(parent());
}

SharedProperty DesignerObject::objectProperty() const
{
    const DesignerObject *owner = d->lists.isEmpty() ? ownerObject() : nullptr;
    if (owner) {
        for (const DesignerProperty *property : owner->d->properties) {
            if (property->objectValue() == this) {
                return owner->d->properties.shared(property);
            }
        }
    }
    return {};
}

Project *DesignerObject::project() const
{
    return d->project;
}

Screen *DesignerObject::screen() const
{
    return d->screen;
}

void DesignerObject::setObservers(ModelObservers *observers)
{
    d->observers = observers;
}

ModelObservers *DesignerObject::activeObservers() const
{
    ModelObservers *observers = d->observers;
    return observers && observers->isActive() && !observers->isOnItsWay(this) ? observers : nullptr;
}

void DesignerObject::assertMayChange() const
{
    Q_ASSERT_X(!d->observers || !d->observers->isCalling(), "ModelObserver",
               "An observer must not change the model.");
}

void DesignerObject::setProject(Project *project)
{
    if (project != d->project) {
        d->project = project;
        if (!project) {
            d->observers = nullptr;
        } else if (const DesignerObject *owner = ownerObject()) {
            d->observers = owner->d->observers;
        }
        emit projectChanged(project);
    }
    for (DesignerObject *child : childObjects()) {
        child->setProject(project);
    }
}

void DesignerObject::setScreen(Screen *screen)
{
    if (screen != d->screen) {
        d->screen = screen;
        emit screenChanged(screen);
    }
    for (DesignerObject *child : childObjects()) {
        child->setScreen(screen);
    }
}

DesignerObject *DesignerObject::rootElement(DesignerObject *object)
{
    while (object && !object->isKindOfClass(u"Element"_s) && !object->isKindOfClass(u"Screen"_s)) {
        object = object->ownerObject();
    }
    return object;
}

QList<DesignerObject *> DesignerObject::childObjects() const
{
    QList<DesignerObject *> children;
    if (!d->mayHaveChildren) {
        return children;
    }
    for (const DesignerProperty *property : d->properties) {
        if (property->isList()) {
            children += property->itemList()->items();
        } else if (property->isObject() && property->objectValue()) {
            children.append(property->objectValue());
        }
    }
    return children;
}

QString DesignerObject::objectPath() const
{
    QStringList names;
    for (const DesignerObject *object = this; object; object = object->ownerObject()) {
        if (object == this || object->ownerObject()) {
            names.prepend(object->getIdName().isEmpty() ? object->className() : object->getIdName());
        }
    }
    return names.join(u'.');
}

ObjectView *DesignerObject::graphicsItem() const
{
    return d->view;
}

void DesignerObject::setGraphicsItem()
{
    if (!d->view) {
        d->view = createGraphicsItem();
    }
}

void DesignerObject::resetGraphicsItem()
{
    d->view = nullptr;
}

SharedProperty DesignerObject::listOf(const QString &id) const
{
    const SharedProperty property = getProperty(id);
    return property && property->isList() ? property : SharedProperty();
}

QStringList DesignerObject::getListItemNamesInListProperty(const QString &id) const
{
    const SharedProperty list = listOf(id);
    return list ? list->listItemNames() : QStringList();
}

bool DesignerObject::hasListItemInListProperty(const QString &id, const QString &name) const
{
    return getItemInListProperty(id, name);
}

DesignerObject *DesignerObject::getItemInListProperty(const QString &id, const QString &name) const
{
    const SharedProperty list = listOf(id);
    return list ? list->getListItem(name) : nullptr;
}

DesignerObject *DesignerObject::getItemInListPropertyAtIndex(const QString &id, qsizetype index) const
{
    const SharedProperty list = listOf(id);
    return list ? list->getListItemAtIndex(index) : nullptr;
}

qsizetype DesignerObject::getListItemIndexInListProperty(const QString &id, const QString &name) const
{
    const SharedProperty list = listOf(id);
    return list ? list->getListItemIndex(name) : -1;
}

QStringList DesignerObject::getTypesInListProperty(const QString &id) const
{
    const SharedProperty list = listOf(id);
    return list ? list->getTypes() : QStringList();
}

QStringList DesignerObject::getListItemNamesInListPropertyOfType(const QString &id,
                                                                 const QString &className) const
{
    const SharedProperty list = listOf(id);
    return list ? list->getItemNamesOfType(className) : QStringList();
}

QList<DesignerObject *> DesignerObject::getListItemsInListPropertyOfType(const QString &id,
                                                                         const QString &className) const
{
    const SharedProperty list = listOf(id);
    return list ? list->getItemsOfType(className) : QList<DesignerObject *>();
}

} // namespace Halvane::Corvex::Designer
