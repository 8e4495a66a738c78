// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerProperty.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/EditorView.h"
#include "corvex/core/QmlText.h"
#include "corvex/core/private/DesignerPropertyState.h"
#include "corvex/core/private/PropertyBlock.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

const ItemList &noItems()
{
    static const ItemList none;
    return none;
}

void appendItems(const DesignerProperty &list, bool recursive, QList<DesignerObject *> &found)
{
    if (!list.itemList()) {
        return;
    }
    for (DesignerObject *item : list.itemList()->items()) {
        found.append(item);
        if (recursive) {
            for (const SharedProperty &property : item->properties()) {
                appendItems(*property, true, found);
            }
        }
    }
}

} // namespace

DesignerProperty::DesignerProperty(DesignerObject *parent, const QString &id, const QString &name)
    : m_descriptor(new PropertyDescriptor)
{
    m_descriptor->ref.ref();
    m_descriptor->id = id;
    m_descriptor->utf8Id = id.toUtf8();
    m_descriptor->name = name;
    m_descriptor->editor = u"PropertyEditor"_s;
    setParentObject(parent);
}

DesignerProperty::DesignerProperty(DesignerObject *parent, const DesignerProperty &prototype)
    : m_descriptor(const_cast<PropertyDescriptor *>(&prototype.descriptor()))
{
    m_descriptor->ref.ref();
    setParentObject(parent);
}

DesignerProperty::~DesignerProperty()
{
    if (!m_hasState) {
        const QSharedDataPointer<PropertyDescriptor> released(m_descriptor, QAdoptSharedDataTag());
        return;
    }
    if (m_state->items) {
        for (DesignerObject *item : m_state->items->items()) {
            item->takeListDesignerProperty(this);
        }
    }
    delete m_state;
}

DesignerProperty::State &DesignerProperty::state()
{
    if (!m_hasState) {
        auto state = std::make_unique<State>();
        state->descriptor = QSharedDataPointer<PropertyDescriptor>(m_descriptor, QAdoptSharedDataTag());
        m_state = state.release();
        m_hasState = true;
    }
    return *m_state;
}

const PropertyDescriptor &DesignerProperty::descriptorOfState() const
{
    return *std::as_const(m_state->descriptor);
}

PropertyDescriptor &DesignerProperty::ownDescriptor()
{
    if (!m_hasState && m_descriptor->ref.loadRelaxed() > 1) {
        QSharedDataPointer<PropertyDescriptor> own(m_descriptor, QAdoptSharedDataTag());
        own.detach();
        m_descriptor = own.take();
    }
    return m_hasState ? *m_state->descriptor : *m_descriptor;
}

void DesignerProperty::shareDescriptor(const DesignerProperty &other)
{
    QSharedDataPointer<PropertyDescriptor> shared(const_cast<PropertyDescriptor *>(&other.descriptor()));
    if (m_hasState) {
        m_state->descriptor.swap(shared);
    } else {
        QSharedDataPointer<PropertyDescriptor> own(m_descriptor, QAdoptSharedDataTag());
        m_descriptor = shared.take();
    }
}

DesignerObject *DesignerProperty::parentObject() const
{
    if (const PropertyBlock *block = PropertyBlock::of(*this)) {
        return block->parent();
    }
    return m_hasState ? m_state->parent : nullptr;
}

void DesignerProperty::setParentObject(DesignerObject *parent)
{
    if (parent != parentObject()) {
        state().parent = parent;
    }
}

template<class Field>
bool DesignerProperty::describe(Field PropertyDescriptor::*field, const std::type_identity_t<Field> &value)
{
    // Setting an equal value must not create a separate descriptor for this instance.
    const bool isChanged = descriptor().*field != value;
    if (isChanged) {
        ownDescriptor().*field = value;
    }
    return isChanged;
}

template<class Field>
void DesignerProperty::redescribe(Field PropertyDescriptor::*field, const std::type_identity_t<Field> &value)
{
    if (describe(field, value)) {
        announceDescriptor();
    }
}

void DesignerProperty::setId(const QString &id)
{
    describe(&PropertyDescriptor::utf8Id, id.toUtf8());
    redescribe(&PropertyDescriptor::id, id);
}

void DesignerProperty::setName(const QString &name)
{
    redescribe(&PropertyDescriptor::name, name);
}

void DesignerProperty::setEditor(const QString &editorName, const QVariantMap &parameters)
{
    const bool isAnother = describe(&PropertyDescriptor::editor, editorName);
    if (setParameters(parameters) || isAnother) {
        announceDescriptor();
    }
}

void DesignerProperty::setEditorParameters(const QVariantMap &parameters)
{
    if (setParameters(parameters)) {
        announceDescriptor();
    }
}

bool DesignerProperty::setParameters(const QVariantMap &parameters)
{
    describe(&PropertyDescriptor::range, NumberRange::of(parameters));
    return describe(&PropertyDescriptor::editorParameters, parameters);
}

void DesignerProperty::setEditorParameter(const QString &key, const QVariant &value)
{
    if (editorParameters().contains(key) && editorParameters().value(key) == value) {
        return;
    }
    QVariantMap parameters = editorParameters();
    parameters.insert(key, value);
    setEditorParameters(parameters);
    if (EditorView *editor = editorWidget(); editor && key == "visible"_L1) {
        editor->setShown(value.toBool());
    }
}

EditorView *DesignerProperty::editorWidget() const
{
    return m_hasState ? m_state->editorWidget : nullptr;
}

void DesignerProperty::setEditorWidget(EditorView *widget)
{
    if (widget != editorWidget()) {
        state().editorWidget = widget;
    }
}

void DesignerProperty::setFlags(PropertyFlags flags)
{
    const bool isChanged = describe(&PropertyDescriptor::flags, flags);
    if (DesignerObject *parent = parentObject()) {
        parent->noteFlags(*this);
    }
    if (isChanged) {
        announceDescriptor();
    }
}

void DesignerProperty::setFlag(PropertyFlag flag, bool on)
{
    PropertyFlags flags = this->flags();
    setFlags(flags.setFlag(flag, on));
}

void DesignerProperty::setRank(int rank)
{
    redescribe(&PropertyDescriptor::rank, rank);
}

void DesignerProperty::setDescription(const QString &description)
{
    redescribe(&PropertyDescriptor::description, description);
}

void DesignerProperty::setAllowInvalidValue(bool allow)
{
    redescribe(&PropertyDescriptor::allowInvalidValue, allow);
}

void DesignerProperty::setValueValidator(ValueValidator validator)
{
    redescribe(&PropertyDescriptor::valueValidator, validator);
}

void DesignerProperty::setAddValidator(ItemValidator validator)
{
    redescribe(&PropertyDescriptor::addValidator, validator);
}

void DesignerProperty::setRemoveValidator(ItemValidator validator)
{
    redescribe(&PropertyDescriptor::removeValidator, validator);
}

void DesignerProperty::setBindingsCreator(BindingsCreator creator)
{
    setCreators(creator, nullptr);
}

void DesignerProperty::setQmlCreator(QmlCreator creator)
{
    setCreators(nullptr, creator);
}

void DesignerProperty::setCreators(BindingsCreator bindingsCreator, QmlCreator qmlCreator)
{
    const bool isAnother = describe(&PropertyDescriptor::bindingsCreator, bindingsCreator);
    if (describe(&PropertyDescriptor::qmlCreator, qmlCreator) || isAnother) {
        announceDescriptor();
    }
}

void DesignerProperty::setReferences(Form form)
{
    redescribe(&PropertyDescriptor::references, form);
}

void DesignerProperty::setStatesOf(const QString &linkId)
{
    redescribe(&PropertyDescriptor::statesOf, linkId);
}

void DesignerProperty::setNeedsPictures(bool needed)
{
    redescribe(&PropertyDescriptor::needsPictures, needed);
}

void DesignerProperty::setObjectFilters(const QStringList &classNames)
{
    redescribe(&PropertyDescriptor::objectFilters, classNames);
}

QList<SharedProperty> DesignerProperty::conflictProperties() const
{
    QList<SharedProperty> properties;
    if (m_hasState) {
        for (const QWeakPointer<DesignerProperty> &conflict : m_state->conflicts) {
            if (const SharedProperty property = conflict.toStrongRef()) {
                properties.append(property);
            }
        }
    }
    return properties;
}

void DesignerProperty::setConflictProperties(const QList<SharedProperty> &properties)
{
    state().conflicts = QList<QWeakPointer<DesignerProperty>>(properties.begin(), properties.end());
}

void DesignerProperty::resetConflictProperties()
{
    if (m_hasState) {
        m_state->conflicts.clear();
    }
}

QString DesignerProperty::valueString() const
{
    if (isList()) {
        return {};
    }
    if (isObject()) {
        return objectValue() ? DesignerObject::toString(objectValue()) : QString();
    }
    const QString initial = initialText();
    return initial.isNull() ? convertToValueString() : initial;
}

bool DesignerProperty::equalsValue(const QString &text) const
{
    const QString initial = initialText();
    return (!initial.isNull() && text == initial) || valueIsEqual(text);
}

bool DesignerProperty::takeText(const QString &text)
{
    const bool isTaken = convertToValue(text);
    m_isInitial = m_isInitial && !isTaken;
    return isTaken;
}

bool DesignerProperty::equalsListItems(const QList<DesignerObject *> &items) const
{
    return listItems() == items;
}

QString DesignerProperty::toQml(int indent) const
{
    if (!hasFlag(RuntimeFlag)) {
        return {};
    }
    if (descriptor().bindingsCreator) {
        return QmlText::print(descriptor().bindingsCreator(this), indent);
    }
    return descriptor().qmlCreator ? descriptor().qmlCreator(this, indent) : convertToQml(indent);
}

QmlBindings DesignerProperty::qmlBindings() const
{
    if (!hasFlag(RuntimeFlag)) {
        return {};
    }
    const PropertyDescriptor &described = descriptor();
    QmlBindings bindings = described.bindingsCreator ? described.bindingsCreator(this)
                           : described.qmlCreator    ? QmlBindings::ofText(described.qmlCreator(this, 0))
                                                     : convertToBindings();
    for (QmlBinding &binding : bindings) {
        binding.source = binding.source ? binding.source : this;
    }
    return bindings;
}

QString DesignerProperty::convertToQml(int) const
{
    return {};
}

QmlBindings DesignerProperty::convertToBindings() const
{
    return QmlBindings::ofText(convertToQml(0));
}

DesignerObject *DesignerProperty::objectValue() const
{
    return m_hasState ? m_state->objectValue : nullptr;
}

const ItemList *DesignerProperty::itemList() const
{
    if (!isList()) {
        return nullptr;
    }
    return m_hasState && m_state->items ? m_state->items.get() : &noItems();
}

ItemList &DesignerProperty::items()
{
    if (!state().items) {
        state().items = std::make_unique<ItemList>();
    }
    return *m_state->items;
}

QList<DesignerObject *> DesignerProperty::listItems(bool recursive) const
{
    if (!recursive) {
        return itemList() ? itemList()->items() : QList<DesignerObject *>();
    }
    QList<DesignerObject *> found;
    appendItems(*this, true, found);
    return found;
}

DesignerObject *DesignerProperty::getListItem(const QString &name, bool recursive) const
{
    if (!itemList()) {
        return nullptr;
    }
    DesignerObject *found = itemList()->find(name);
    if (found || !recursive) {
        return found;
    }
    for (const DesignerObject *item : itemList()->items()) {
        for (const SharedProperty &property : item->properties()) {
            if ((found = property->getListItem(name, true))) {
                return found;
            }
        }
    }
    return nullptr;
}

DesignerObject *DesignerProperty::getListItemAtIndex(qsizetype index) const
{
    return itemList() ? itemList()->items().value(index) : nullptr;
}

qsizetype DesignerProperty::getListItemIndex(const QString &name) const
{
    return getListItemIndex(getListItem(name));
}

qsizetype DesignerProperty::getListItemIndex(const DesignerObject *object) const
{
    return itemList() && object ? itemList()->indexOf(object) : -1;
}

bool DesignerProperty::hasListItem(const QString &name, bool recursive) const
{
    return getListItem(name, recursive);
}

qsizetype DesignerProperty::listItemCount(const QString &name) const
{
    return itemList() ? itemList()->countOf(name) : 0;
}

qsizetype DesignerProperty::listItemCount() const
{
    return itemList() ? itemList()->count() : 0;
}

QStringList DesignerProperty::listItemNames(bool recursive) const
{
    QStringList names;
    for (const DesignerObject *item : listItems(recursive)) {
        names.append(item->getIdName());
    }
    return names;
}

QStringList DesignerProperty::getTypes(bool recursive) const
{
    QStringList types;
    for (const DesignerObject *item : listItems(recursive)) {
        const QString type = item->className();
        if (!types.contains(type)) {
            types.append(type);
        }
    }
    return types;
}

QList<DesignerObject *> DesignerProperty::getItemsOfType(const QString &className, bool recursive) const
{
    QList<DesignerObject *> found = listItems(recursive);
    found.removeIf([&className](const DesignerObject *item) { return !item->isKindOfClass(className); });
    return found;
}

QStringList DesignerProperty::getItemNamesOfType(const QString &className, bool recursive) const
{
    QStringList names;
    for (const DesignerObject *item : getItemsOfType(className, recursive)) {
        names.append(item->getIdName());
    }
    return names;
}

void DesignerProperty::sortList()
{
    if (m_hasState && m_state->items) {
        if (const DesignerObject *parent = parentObject()) {
            parent->assertMayChange();
        }
        m_state->items->isOrdered = false;
        updateListItems();
    }
}

void DesignerProperty::setOrderingPaused(bool paused)
{
    if (isList()) {
        items().isOrderingPaused = paused;
    }
}

void DesignerProperty::updateListItems() { }

} // namespace Halvane::Corvex::Designer
