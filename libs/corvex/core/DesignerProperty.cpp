// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerProperty.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/EditorView.h"
#include "corvex/core/private/DesignerPropertyState.h"
#include "corvex/core/private/PropertyBlock.h"
#include "corvex/core/properties/FormText.h"
#include "corvex/core/xml/XmlText.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! A message quotes no more of a text.
constexpr qsizetype longestQuote = 80;

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
    // An equal value must not cost the instance a descriptor of its own.
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

void DesignerProperty::setQmlCreator(QmlCreator creator)
{
    redescribe(&PropertyDescriptor::qmlCreator, creator);
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

QString DesignerProperty::errorString() const
{
    return m_hasState ? m_state->error : QString();
}

bool DesignerProperty::validate()
{
    setOutcome(findOutcome());
    return isValid();
}

DesignerProperty::Outcome DesignerProperty::findOutcome() const
{
    Outcome outcome;
    outcome.failure = findFailure(outcome.reason);
    if (outcome.failure == Failure::None) {
        outcome.reason.clear();
    }
    return outcome;
}

void DesignerProperty::setOutcome(const Outcome &outcome)
{
    const bool isChanged = outcome.failure != failure() || (!isValid() && outcome.reason != errorString());
    m_failure = quint8(outcome.failure);
    setErrorString(outcome.reason);
    if (EditorView *editor = editorWidget()) {
        editor->setErrorString(errorString());
    }
    if (isChanged) {
        announceValidity();
    }
}

//! The first step that fails. A step may disable validation, which skips those after it.
DesignerProperty::Failure DesignerProperty::findFailure(QString &error) const
{
    const DesignerObject *parent = parentObject();
    const auto enabled = [parent] { return !parent || !parent->disabledValidation(); };
    // The callback sees the model through the parent, which a property may outlive.
    if (parent && enabled() && descriptor().valueValidator && !descriptor().valueValidator(this, error)) {
        return Failure::Validator;
    }
    if (!enabled()) {
        return Failure::None;
    }
    if (isList() || isObject()) {
        const bool isGood = isList() ? validateListItems(error) : validateObjectValue(error);
        return isGood ? Failure::None : Failure::Children;
    }
    return !validateValue(error) ? Failure::Kind : isInRange(error) ? Failure::None : Failure::Range;
}

bool DesignerProperty::isInRange(QString &error) const
{
    // The value of a row is one that the row allows.
    if (m_isInitial || descriptor().range.contains(number())) {
        return true;
    }
    error = Common::LocalizationHelper::coreString(u"%1 takes numbers %2, not %3."_s)
                .arg(id(), descriptor().range.toString(), convertToValueString());
    return false;
}

double DesignerProperty::number() const
{
    return std::numeric_limits<double>::quiet_NaN();
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

bool DesignerProperty::canRead(const QString &text)
{
    Outcome outcome;
    return validateText(text, outcome);
}

QString DesignerProperty::refusalOf(const QString &text)
{
    if (const QString problem = XmlText::storageProblem(text); !problem.isEmpty()) {
        return problem;
    }
    Outcome outcome;
    const bool isRead = validateText(text, outcome);
    validate(); // A change that was refused may have left its reason.
    if (isRead) {
        return outcome.reason;
    }
    const QString range = descriptor().range.toString();
    const QString form = range.isEmpty() ? formText() : u"%1 %2"_s.arg(formText(), range);
    return Common::LocalizationHelper::coreString(u"%1 takes %2, not \"%3\"."_s)
        .arg(id(), form, text.size() > longestQuote ? text.first(longestQuote) + u'\u2026' : text);
}

QString DesignerProperty::formText() const
{
    const QString initial = descriptor().initialText;
    return FormText::example(initial.isEmpty() ? convertToValueString() : initial);
}

bool DesignerProperty::takeText(const QString &text)
{
    const bool isTaken = convertToValue(text);
    m_isInitial = m_isInitial && !isTaken;
    return isTaken;
}

bool DesignerProperty::validateText(const QString &text, Outcome &outcome)
{
    const bool wasInitial = m_isInitial;
    m_isInitial = false;
    const bool isRead = tryValue(text, outcome);
    m_isInitial = wasInitial;
    return isRead;
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
    return descriptor().qmlCreator ? descriptor().qmlCreator(this, indent) : convertToQml(indent);
}

QString DesignerProperty::convertToQml(int) const
{
    return {};
}

DesignerObject *DesignerProperty::objectValue() const
{
    return m_hasState ? m_state->objectValue : nullptr;
}

bool DesignerProperty::validateObjectValue(QString &error) const
{
    if (objectValue() && !objectValue()->isValid()) {
        error =
            Common::LocalizationHelper::coreString(u"One or more of the object's properties are invalid."_s);
        return false;
    }
    return true;
}

bool DesignerProperty::validateListItems(QString &error) const
{
    if (itemList() && itemList()->invalidCount > 0) {
        error = Common::LocalizationHelper::coreString(u"One or more of the list's items are invalid."_s);
        return false;
    }
    return true;
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

bool DesignerProperty::tryValue(const QString &text, Outcome &outcome)
{
    const QString held = convertToValueString();
    if (!convertToValue(text)) {
        return false;
    }
    outcome = findOutcome();
    convertToValue(held);
    return true;
}

void DesignerProperty::setErrorString(const QString &error)
{
    if (m_hasState) {
        m_state->error = error;
    } else if (!error.isEmpty()) {
        state().error = error;
    }
}

} // namespace Halvane::Corvex::Designer
