// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/IDesignerObject.h"
#include "corvex/core/PropertyDescriptor.h"

#include <QList>
#include <QSharedPointer>

#include <type_traits>
#include <utility>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class EditorView;
class ItemList;
struct ItemPlace;
class QmlBindings;

/*! A named, typed value of a DesignerObject.

    A property contains an ordinary value, one child object (ObjectFlag) or an ordered list of child objects
    (ListFlag). Values of all kinds are exchanged as text. Any code may read a property. Changes go through
    the operations of the object that owns it, which call the hooks and emit the signals.

    All instances of a class share the descriptor of a property. A setter of this class changes the descriptor
    of one property only.
*/
class CORVEX_EXPORT DesignerProperty : public IDesignerObject
{
    CORVEX_CLASS_NAMES(DesignerProperty, IDesignerObject)
    Q_DISABLE_COPY_MOVE(DesignerProperty)

public:
    DesignerProperty(DesignerObject *parent, const QString &id, const QString &name);
    ~DesignerProperty() override;

    bool initialize() override { return true; }

    //! The object that owns this property; null after it was deleted. Not owned.
    DesignerObject *parentObject() const;
    const QString &id() const { return descriptor().id; }
    void setId(const QString &id);
    //! The title for users, translated.
    const QString &name() const { return descriptor().name; }
    void setName(const QString &name);

    //! The class name of the editor widget for the property.
    const QString &editor() const { return descriptor().editor; }
    const QVariantMap &editorParameters() const { return descriptor().editorParameters; }
    QVariant editorParameter(const QString &key) const { return editorParameters().value(key); }
    void setEditor(const QString &editorName, const QVariantMap &parameters = {});
    void setEditorParameters(const QVariantMap &parameters);
    void setEditorParameter(const QString &key, const QVariant &value);
    //! The editor that currently shows the property; validate() reports to it. Not owned.
    EditorView *editorWidget() const;
    void setEditorWidget(EditorView *widget);

    PropertyFlags flags() const { return descriptor().flags; }
    bool hasFlag(PropertyFlag flag) const { return flags().testFlag(flag); }
    void setFlags(PropertyFlags flags);
    void setFlag(PropertyFlag flag, bool on);
    bool isList() const { return hasFlag(ListFlag); }
    bool isObject() const { return hasFlag(ObjectFlag); }

    //! Orders the properties of an object in the property panel, smallest first; 99 unless set.
    int rank() const { return descriptor().rank; }
    void setRank(int rank);
    const QString &description() const { return descriptor().description; }
    void setDescription(const QString &description);

    //! Whether an invalid value is stored anyway, and marked.
    bool allowInvalidValue() const { return descriptor().allowInvalidValue; }
    void setAllowInvalidValue(bool allow);
    void setValueValidator(ValueValidator validator);
    void setAddValidator(ItemValidator validator);
    void setRemoveValidator(ItemValidator validator);
    //! Each of these two replaces the other.
    void setBindingsCreator(BindingsCreator creator);
    void setQmlCreator(QmlCreator creator);

    //! How the value refers to other objects.
    Form references() const { return descriptor().references; }
    void setReferences(Form form);
    //! The id of the link to the element that the states in the value describe; empty by default. If the link
    //! changes, the states are applied to the new element.
    const QString &statesOf() const { return descriptor().statesOf; }
    void setStatesOf(const QString &linkId);
    //! Whether an edit is refused if the file of an image in the new value is missing.
    bool needsPictures() const { return descriptor().needsPictures; }
    void setNeedsPictures(bool needed);

    //! Children must have one of these classes or derive from one; empty accepts all.
    const QStringList &objectFilters() const { return descriptor().objectFilters; }
    void setObjectFilters(const QStringList &classNames);

    //! Properties whose values exclude values of this one.
    QList<QSharedPointer<DesignerProperty>> conflictProperties() const;
    void setConflictProperties(const QList<QSharedPointer<DesignerProperty>> &properties);
    void resetConflictProperties();

    //! The step of the validation that failed.
    enum class Failure : quint8 {
        None,
        Validator, //!< the validator in the row
        Kind,      //!< the check of the property's class
        Range,     //!< the number is outside of the range in the row
        Children,  //!< a child is invalid and has the reason
    };
    //! The outcome of the last validation.
    Failure failure() const { return Failure(m_failure); }
    bool isValid() const { return failure() == Failure::None; }
    //! Why the last validation failed, or the last list or object operation was refused; empty otherwise.
    QString errorString() const;
    //! Runs the value validator, then the check of the property's kind, and stores the outcome. Lists and
    //! objects use the last outcomes of their children; DesignerObject::validate() updates those first. While
    //! validation is disabled on the owner, the outcome is always valid.
    bool validate();

    //! The value as text: empty for a list; the XML of the child for an object property, or empty without a
    //! child; otherwise the canonical form of the value.
    QString valueString() const;
    //! Whether \a text means the current value. A text that cannot be parsed counts as equal.
    bool equalsValue(const QString &text) const;
    //! Whether \a text can be read as a value. Changes neither the value nor the validation outcome.
    bool canRead(const QString &text);
    //! Why the property would refuse \a text, for the user; empty if it would accept it. The value is not
    //! changed.
    QString refusalOf(const QString &text);
    //! The texts that the property takes, in words that complete "It takes ...": "a number from 10 to 100, in
    //! ms", "true or false". Translated.
    QString acceptedForm() const;
    bool equalsObjectValue(const DesignerObject *object) const { return objectValue() == object; }
    bool equalsListItems(const QList<DesignerObject *> &items) const;
    //! Whether both come from the same row and nobody has changed them, so that everything about them is
    //! equal. It is false for some pairs of equal properties.
    bool isUntouchedLike(const DesignerProperty &other) const
    {
        return m_isInitial && other.m_isInitial && !m_hasState && !other.m_hasState
               && m_descriptor == other.m_descriptor && m_failure == other.m_failure;
    }

    //! The property's QML, with lines separated by "\n"; empty unless RuntimeFlag is set.
    QString toQml(int indent) const;
    //! The same as data. A list is a single member without a name.
    QmlBindings qmlBindings() const;
    //! Whether toQml() writes only literals, which are correct for all values.
    bool writesPlainQml() const
    {
        return !descriptor().bindingsCreator && !descriptor().qmlCreator && hasPlainForm();
    }

    //! The child of an object property, owned by parentObject().
    DesignerObject *objectValue() const;

    // Reading a list. If `recursive`, the lists of the items are read, too, depth first.
    QList<DesignerObject *> listItems(bool recursive = false) const;
    DesignerObject *getListItem(const QString &name, bool recursive = false) const;
    //! Null for an index out of range.
    DesignerObject *getListItemAtIndex(qsizetype index) const;
    //! -1 if the list does not contain the item.
    qsizetype getListItemIndex(const QString &name) const;
    qsizetype getListItemIndex(const DesignerObject *object) const;
    bool hasListItem(const QString &name, bool recursive = false) const;
    //! The number of items with that name; more than one only in a project that is marked invalid.
    qsizetype listItemCount(const QString &name) const;
    qsizetype listItemCount() const;
    QStringList listItemNames(bool recursive = false) const;
    //! The class names of the items, without duplicates, in order of their first appearance.
    QStringList getTypes(bool recursive = false) const;
    //! Items of the class or of a derived class.
    QList<DesignerObject *> getItemsOfType(const QString &className, bool recursive = false) const;
    QStringList getItemNamesOfType(const QString &className, bool recursive = false) const;
    //! Sorts the items by the list's rule; does nothing for an unsorted list.
    void sortList();
    //! While paused, items are not moved; the first change after that sorts all of them.
    void setOrderingPaused(bool paused);

    // How each kind of property stores its value, below the change protocol: these functions call no hooks
    // and emit no signals.
    //! Parses \a text into the typed value. Returns false, and keeps the value, if that fails.
    virtual bool convertToValue(const QString &text) = 0;
    //! The canonical text of the typed value.
    virtual QString convertToValueString() const = 0;
    //! The QML of the value itself, regardless of flags and QML creator. Classes whose QML consists of
    //! bindings also override convertToBindings(), and print it here.
    virtual QString convertToQml(int indent) const;
    virtual bool valueIsEqual(const QString &text) const = 0;
    //! Validates the value without storing the outcome.
    virtual bool validateValue(QString &error) const = 0;
    virtual bool validateObjectValue(QString &error) const;
    virtual bool validateListItems(QString &error) const;
    //! Called after the list has changed and observers were notified. The place to sort it, with moveItem()
    //! and reorderItems().
    virtual void updateListItems();
    //! The bindings of the value itself. For a class that only overrides convertToQml(), its result as one
    //! member.
    virtual QmlBindings convertToBindings() const;

    //! The list's children and kept items; null for other properties.
    const ItemList *itemList() const;

protected:
    //! A property of \a parent with the descriptor and the initial value of \a prototype, but without its
    //! children. The rows of a property table create properties in this way.
    DesignerProperty(DesignerObject *parent, const DesignerProperty &prototype);

    //! The value of a numeric property, otherwise NaN.
    virtual double number() const;
    virtual bool hasPlainForm() const { return false; }
    //! The same for the kind, without range and unit: "a whole number". By default an example: that of the
    //! row (editor parameter "example"), or the initial value. Translated.
    virtual QString formText() const;
    //! The result of a validation.
    struct Outcome
    {
        Failure failure = Failure::None;
        QString reason; //!< empty without a failure
    };
    //! Validates the property without storing the outcome.
    Outcome findOutcome() const;
    //! Validates \a text instead of the value, which is not changed; returns false if the text cannot be
    //! parsed.
    virtual bool tryValue(const QString &text, Outcome &outcome);
    ItemList &items();
    //! The sorted position of an item that is inserted at \a index; \a index itself for an unsorted list.
    virtual qsizetype placeInOrder(qsizetype index, const DesignerObject &item) const;
    //! For updateListItems(): moves an item and notifies observers; \a to is its index afterwards.
    void moveItem(qsizetype from, qsizetype to);
    //! The same for many items: \a order contains all items.
    void reorderItems(const QList<DesignerObject *> &order);
    //! Whether the property has the value of its row. Code that sets the typed value must reset it.
    void setInitial(bool isInitial) { m_isInitial = isInitial; }

    // The changes of lists and objects, which DesignerObject calls within its protocol.
    bool addListItem(DesignerObject *item);
    bool insertItemAt(const ItemPlace &place, DesignerObject *item);
    bool insertItemBefore(DesignerObject *reference, DesignerObject *item);
    bool insertItemAfter(DesignerObject *reference, DesignerObject *item);
    DesignerObject *takeListItem(DesignerObject *item);
    bool replaceItem(DesignerObject *oldItem, DesignerObject *newItem);
    bool replaceItemAt(qsizetype index, DesignerObject *newItem);
    bool swapItems(DesignerObject *first, DesignerObject *second);
    //! Stores \a object, which may be null, and releases the previous child.
    bool setObjectValue(DesignerObject *object);
    void updateItemIdName(const QString &oldName, const QString &newName);
    //! Makes \a child, which has no owner yet, the child of an object property that is being created.
    void startWith(DesignerObject *child);

private:
    friend class DesignerObject;
    friend class ObjectBuilder;
    friend class PropertyBlock;
    friend class PropertyStore;
    friend class PropertyTable;
    friend class PropertyRow;
    struct State;

    const PropertyDescriptor &descriptor() const { return m_hasState ? descriptorOfState() : *m_descriptor; }
    const PropertyDescriptor &descriptorOfState() const;
    //! The descriptor of this property only, for changes.
    PropertyDescriptor &ownDescriptor();
    void shareDescriptor(const DesignerProperty &other);
    //! For a property outside of a block.
    void setParentObject(DesignerObject *parent);
    //! The text of the value while it is still the initial one; otherwise null.
    QString initialText() const { return m_isInitial ? descriptor().initialText : QString(); }
    bool hasId(QByteArrayView utf8) const { return descriptor().utf8Id == utf8; }
    //! Whether the property still has its initial value, and this is \a utf8.
    bool holdsInitial(QByteArrayView utf8) const { return m_isInitial && descriptor().utf8Initial == utf8; }
    bool takeText(const QString &text);
    bool validateText(const QString &text, Outcome &outcome);
    void setOutcome(const Outcome &outcome);
    //! Returns whether the descriptor has changed.
    template<class Field>
    bool describe(Field PropertyDescriptor::*field, const std::type_identity_t<Field> &value);
    template<class Field>
    void redescribe(Field PropertyDescriptor::*field, const std::type_identity_t<Field> &value);

    // Notifications of observers.
    template<class Tell>
    void announce(Tell tell);
    void announceExchange(qsizetype index, DesignerObject *oldObject, DesignerObject *newObject);
    void announceValidity();
    void announceDescriptor();

    Failure findFailure(QString &error) const;
    bool isInRange(QString &error) const;
    bool setParameters(const QVariantMap &parameters);
    void setCreators(BindingsCreator bindingsCreator, QmlCreator qmlCreator);
    bool refuse(const char *message);
    bool acceptsClassOf(const DesignerObject *object) const;
    bool canAdd(const DesignerObject *item, const char *duplicateMessage);
    bool canRemove(const DesignerObject *item);
    bool canHold(const DesignerObject *object);

    // Called when a child is deleted.
    void forgetItem(DesignerObject *item);
    void forgetObjectValue();
    //! Releases all children at once. The owner deletes them.
    QList<DesignerObject *> releaseChildren();
    void putItem(ItemPlace place, DesignerObject *item);
    void setErrorString(const QString &error);
    State &state();

    // A project has a million of these objects. Rare data is in the state, which then also has the
    // descriptor. The parent is in the block, or in the state of a property outside of a block.
    union {
        PropertyDescriptor *m_descriptor; //!< shared, with manual reference counting
        State *m_state;
    };
    quint16 m_blockDistance = 0; //!< from the start of its block, in units of the block; 0 outside of blocks
    quint8 m_failure : 4 = 0;
    bool m_isInitial : 1 = false; //!< the value is that of its row
    bool m_hasState : 1 = false;
};

//! A shared reference to a property, registered in Qt's meta-type system under its full name.
using SharedProperty = QSharedPointer<DesignerProperty>;

//! \a property as a \a Kind if its class names include that kind; otherwise null.
template<class Kind>
const Kind *propertyCast(const DesignerProperty *property)
{
    const bool isKind =
        property && (property->className() == Kind::kindName() || property->isKindOfClass(Kind::kindName()));
    return isKind ? static_cast<const Kind *>(property) : nullptr;
}

template<class Kind>
const Kind *propertyCast(const SharedProperty &property)
{
    return propertyCast<Kind>(property.data());
}

//! The value of a property of that kind; an empty value for null and for a property of another kind.
template<class Kind>
const auto &valueAs(const DesignerProperty *property)
{
    static const std::remove_cvref_t<decltype(std::declval<const Kind &>().value())> none{};
    const Kind *typed = propertyCast<Kind>(property);
    return typed ? typed->value() : none;
}

template<class Kind>
const auto &valueAs(const SharedProperty &property)
{
    return valueAs<Kind>(property.data());
}

} // namespace Halvane::Corvex::Designer
