// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/IDesignerObject.h"
#include "corvex/core/PropertyDescriptor.h"

#include <QList>
#include <QSharedPointer>

#include <type_traits>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class EditorView;
class ItemList;
struct ItemPlace;
class QmlBindings;

/*! One named, typed value of a DesignerObject.

    A property is an ordinary value, one child object (ObjectFlag) or an ordered list of child objects
    (ListFlag). Values of all kinds cross boundaries as text. Any code may read a property; changes go through
    the operations of the object that owns it, which run the hooks and emit the signals.

    All instances of a class share the descriptor of a property. A setter of this class changes the descriptor
    of one property alone.
*/
class CORVEX_EXPORT DesignerProperty : public IDesignerObject
{
    CORVEX_CLASS_NAMES(DesignerProperty, IDesignerObject)
    Q_DISABLE_COPY_MOVE(DesignerProperty)

public:
    DesignerProperty(DesignerObject *parent, const QString &id, const QString &name);
    ~DesignerProperty() override;

    bool initialize() override { return true; }

    //! The object that owns this property; null once it is gone. Not owned.
    DesignerObject *parentObject() const;
    const QString &id() const { return descriptor().id; }
    void setId(const QString &id);
    //! The title that the user reads, translated.
    const QString &name() const { return descriptor().name; }
    void setName(const QString &name);

    //! The class name of the editor widget that edits the property.
    const QString &editor() const { return descriptor().editor; }
    const QVariantMap &editorParameters() const { return descriptor().editorParameters; }
    QVariant editorParameter(const QString &key) const { return editorParameters().value(key); }
    void setEditor(const QString &editorName, const QVariantMap &parameters = {});
    void setEditorParameters(const QVariantMap &parameters);
    void setEditorParameter(const QString &key, const QVariant &value);
    //! The editor that shows the property now; validate() passes the outcome to it. Not owned.
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

    //! Whether a value that fails validation is stored anyway, and marked.
    bool allowInvalidValue() const { return descriptor().allowInvalidValue; }
    void setAllowInvalidValue(bool allow);
    void setValueValidator(ValueValidator validator);
    void setAddValidator(ItemValidator validator);
    void setRemoveValidator(ItemValidator validator);
    //! Each of these two replaces what the other one has set.
    void setBindingsCreator(BindingsCreator creator);
    void setQmlCreator(QmlCreator creator);

    //! A child must be of one of these classes or derived from one; empty accepts all.
    const QStringList &objectFilters() const { return descriptor().objectFilters; }
    void setObjectFilters(const QStringList &classNames);

    //! Properties whose values exclude the value of this one.
    QList<QSharedPointer<DesignerProperty>> conflictProperties() const;
    void setConflictProperties(const QList<QSharedPointer<DesignerProperty>> &properties);
    void resetConflictProperties();

    //! Which step of a validation failed.
    enum class Failure : quint8 {
        None,
        Validator, //!< the validator of the row
        Kind,      //!< the check of the property's class
        Range,     //!< the number is not among those that the row allows
        Children,  //!< a child is invalid, and says why itself
    };
    //! The outcome of the last validation.
    Failure failure() const { return Failure(m_failure); }
    bool isValid() const { return failure() == Failure::None; }
    //! Why the last validation failed or the last list or object operation was refused; empty otherwise.
    QString errorString() const;
    /*! Runs the value validator, then the check of the property's kind, and keeps the outcome. Lists and
        objects use the last outcomes of their children; DesignerObject::validate() updates those first. All
        steps are skipped while validation is disabled on the owner.
    */
    bool validate();

    /*! The value as text: empty for a list, the XML of the child (empty without one) for an object, else the
        canonical form of the value. */
    QString valueString() const;
    //! Whether \a text means the present value; a text that does not parse counts as equal.
    bool equalsValue(const QString &text) const;
    //! Whether \a text can be read as a value. The present value and the outcome of its validation stay.
    bool canRead(const QString &text);
    //! Why the property would refuse \a text, for the user; empty if it accepts it. The value stays.
    QString refusalOf(const QString &text);
    bool equalsObjectValue(const DesignerObject *object) const { return objectValue() == object; }
    bool equalsListItems(const QList<DesignerObject *> &items) const;

    //! The property's QML, its lines separated by "\n"; empty unless RuntimeFlag is set.
    QString toQml(int indent) const;
    //! The same as data. A list is one member without a name.
    QmlBindings qmlBindings() const;
    //! Whether toQml() writes only literals, which are correct for all values.
    bool writesPlainQml() const
    {
        return !descriptor().bindingsCreator && !descriptor().qmlCreator && hasPlainForm();
    }

    //! The child of an object property, owned by parentObject().
    DesignerObject *objectValue() const;

    // Reading a list. With `recursive`, the lists of the items are read too, depth first.
    QList<DesignerObject *> listItems(bool recursive = false) const;
    DesignerObject *getListItem(const QString &name, bool recursive = false) const;
    //! Null for an index below 0 or not below the count.
    DesignerObject *getListItemAtIndex(qsizetype index) const;
    //! -1 when there is none.
    qsizetype getListItemIndex(const QString &name) const;
    qsizetype getListItemIndex(const DesignerObject *object) const;
    bool hasListItem(const QString &name, bool recursive = false) const;
    //! How many items bear that name; more than one only in a project that is marked invalid.
    qsizetype listItemCount(const QString &name) const;
    qsizetype listItemCount() const;
    QStringList listItemNames(bool recursive = false) const;
    //! The class names of the items, each once, in the order of their first appearance.
    QStringList getTypes(bool recursive = false) const;
    //! Items of the class, or of one that is derived from it.
    QList<DesignerObject *> getItemsOfType(const QString &className, bool recursive = false) const;
    QStringList getItemNamesOfType(const QString &className, bool recursive = false) const;
    //! Sorts the items by the list's rule; does nothing for a list without one.
    void sortList();
    //! While paused, items stay where they are put; the first change after that sorts them all.
    void setOrderingPaused(bool paused);

    // What each kind of property does with its value, outside of the change protocol: none of these runs a
    // hook or emits a signal.
    //! Parses \a text into the typed value. Returns false and keeps the value if it does not parse.
    virtual bool convertToValue(const QString &text) = 0;
    //! The canonical text of the typed value.
    virtual QString convertToValueString() const = 0;
    //! The QML of the value itself, regardless of flags and QML creator. Classes whose QML consists of
    //! bindings override convertToBindings() too, and print it here.
    virtual QString convertToQml(int indent) const;
    virtual bool valueIsEqual(const QString &text) const = 0;
    //! Validates the value without keeping the outcome.
    virtual bool validateValue(QString &error) const = 0;
    virtual bool validateObjectValue(QString &error) const;
    virtual bool validateListItems(QString &error) const;
    //! Runs after the list has changed and observers know. The place to sort it, by moveItem() and
    //! reorderItems().
    virtual void updateListItems();
    //! The bindings of the value itself; convertToQml() as one member in a class that has only that.
    virtual QmlBindings convertToBindings() const;

    //! The list's children and kept items; null for other properties.
    const ItemList *itemList() const;

protected:
    /*! A property of \a parent that shares the descriptor and starts with the value of \a prototype, without
        its children. The rows of a property table create properties in this way. */
    DesignerProperty(DesignerObject *parent, const DesignerProperty &prototype);

    //! The value of a numeric property, otherwise NaN.
    virtual double number() const;
    virtual bool hasPlainForm() const { return false; }
    //! The texts that the property reads, as in "a whole number". Translated.
    virtual QString formText() const;
    //! What a validation finds.
    struct Outcome
    {
        Failure failure = Failure::None;
        QString reason; //!< empty without a failure
    };
    //! Validates the property and keeps nothing.
    Outcome findOutcome() const;
    //! Validates \a text in place of the value, which is the same afterwards to the last digit; false if it
    //! does not parse.
    virtual bool tryValue(const QString &text, Outcome &outcome);
    ItemList &items();
    //! Where the order of the list puts an item that comes in at \a index, which is the answer of a list
    //! without an order.
    virtual qsizetype placeInOrder(qsizetype index, const DesignerObject &item) const;
    //! For updateListItems(): moves an item so that observers know; \a to is its index afterwards.
    void moveItem(qsizetype from, qsizetype to);
    //! The same for many: \a order holds all items.
    void reorderItems(const QList<DesignerObject *> &order);
    //! Whether the property holds the value of its row. Code that sets the typed value resets it.
    void setInitial(bool isInitial) { m_isInitial = isInitial; }

    // The changes of lists and objects, which DesignerObject calls under its protocol.
    bool addListItem(DesignerObject *item);
    bool insertItemAt(const ItemPlace &place, DesignerObject *item);
    bool insertItemBefore(DesignerObject *reference, DesignerObject *item);
    bool insertItemAfter(DesignerObject *reference, DesignerObject *item);
    DesignerObject *takeListItem(DesignerObject *item);
    bool replaceItem(DesignerObject *oldItem, DesignerObject *newItem);
    bool replaceItemAt(qsizetype index, DesignerObject *newItem);
    bool swapItems(DesignerObject *first, DesignerObject *second);
    //! Takes over \a object, which may be null, and releases the previous child.
    bool setObjectValue(DesignerObject *object);
    void updateItemIdName(const QString &oldName, const QString &newName);
    //! Makes \a child, which has no owner, the child of an object property that is being created.
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
    //! The descriptor for changes, of this property alone.
    PropertyDescriptor &ownDescriptor();
    void shareDescriptor(const DesignerProperty &other);
    //! For a property that is not in a block.
    void setParentObject(DesignerObject *parent);
    //! The text of the value while it is still the initial one; otherwise null.
    QString initialText() const { return m_isInitial ? descriptor().initialText : QString(); }
    bool hasId(QByteArrayView utf8) const { return descriptor().utf8Id == utf8; }
    //! Whether the property holds the value that it started with, and that is \a utf8.
    bool holdsInitial(QByteArrayView utf8) const { return m_isInitial && descriptor().utf8Initial == utf8; }
    bool takeText(const QString &text);
    bool validateText(const QString &text, Outcome &outcome);
    void setOutcome(const Outcome &outcome);
    //! Whether the descriptor is another one afterwards.
    template<class Field>
    bool describe(Field PropertyDescriptor::*field, const std::type_identity_t<Field> &value);
    template<class Field>
    void redescribe(Field PropertyDescriptor::*field, const std::type_identity_t<Field> &value);

    // What observers hear.
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

    // For a child that is being deleted.
    void forgetItem(DesignerObject *item);
    void forgetObjectValue();
    //! Releases all children at once, for an owner that deletes them.
    QList<DesignerObject *> releaseChildren();
    void putItem(ItemPlace place, DesignerObject *item);
    void setErrorString(const QString &error);
    State &state();

    // A project has a million of these. Rare data is in the state, which then holds the descriptor, too. The
    // parent is in the block, or in the state of a property without one.
    union {
        PropertyDescriptor *m_descriptor; //!< shared, and counted by hand
        State *m_state;
    };
    quint16 m_blockDistance = 0; //!< from the begin of its block, in units of it; 0 outside of blocks
    quint8 m_failure : 4 = 0;
    bool m_isInitial : 1 = false; //!< holds the value of its row
    bool m_hasState : 1 = false;
};

//! How properties are handed around; known to Qt's meta-type system under its full name.
using SharedProperty = QSharedPointer<DesignerProperty>;

} // namespace Halvane::Corvex::Designer
