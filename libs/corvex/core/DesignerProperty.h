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

/*! One named, typed value of a DesignerObject.

    A property is an ordinary value, one child object (ObjectFlag) or an ordered list of child objects
    (ListFlag). Whatever its kind, its value crosses every boundary as text. Reading is open to everyone;
   changes go through the operations of the object that owns the property, which ask the hooks and emit the
   signals.

    What a class says about its property lies in a descriptor that all instances share; what is set here on
   one property is set for that property alone.
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
    //! The editor that shows the property at the moment; validate() tells it the outcome. Not owned.
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

    //! Whether a value that fails validation is stored all the same, and marked.
    bool allowInvalidValue() const { return descriptor().allowInvalidValue; }
    void setAllowInvalidValue(bool allow);
    void setValueValidator(ValueValidator validator);
    void setAddValidator(ItemValidator validator);
    void setRemoveValidator(ItemValidator validator);
    void setQmlCreator(QmlCreator creator);

    //! The class names of which a child must be one (itself or by descent); all are welcome when empty.
    const QStringList &objectFilters() const { return descriptor().objectFilters; }
    void setObjectFilters(const QStringList &classNames);

    //! Properties that cannot hold their values beside this one's.
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
    /*! Runs the value validator, then the check of the property's kind, and keeps the outcome. For lists and
        objects the children's own outcomes count as they stand; DesignerObject::validate() brings them up to
        date first. While validation is disabled on the owner every step is skipped.
    */
    bool validate();

    /*! The value as text: empty for a list, the XML of the child (empty without one) for an object, else the
        canonical form of the value. */
    QString valueString() const;
    //! Whether \a text stands for the value that is held; a text that does not parse counts as equal.
    bool equalsValue(const QString &text) const;
    //! Whether \a text stands for a value at all. The value and the outcome of its validation stay.
    bool canRead(const QString &text);
    //! Why the property does not take \a text, for the user; empty when it does. The value stays.
    QString refusalOf(const QString &text);
    bool equalsObjectValue(const DesignerObject *object) const { return objectValue() == object; }
    bool equalsListItems(const QList<DesignerObject *> &items) const;

    //! The property's QML, its lines parted by "\n" and none behind the last; empty unless RuntimeFlag is
    //! set.
    QString toQml(int indent) const;
    //! Whether toQml() writes literals alone, which are correct whatever the value is.
    bool writesPlainQml() const { return !descriptor().qmlCreator && hasPlainForm(); }

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
    //! Puts the items into the order of the list's rule; nothing for a list without one.
    void sortList();
    //! While it is paused, items stay where they are put; the first change after that orders them all.
    void setOrderingPaused(bool paused);

    // What each kind of property does with its value, past the protocol: none of these asks a hook or emits a
    // signal.
    //! Parses \a text into the typed value; false, and the value as it was, when it does not parse.
    virtual bool convertToValue(const QString &text) = 0;
    //! The canonical text of the typed value.
    virtual QString convertToValueString() const = 0;
    //! The QML of the value itself, whatever the flags and the QML creator say.
    virtual QString convertToQml(int indent) const;
    virtual bool valueIsEqual(const QString &text) const = 0;
    //! Judges the value without keeping the outcome.
    virtual bool validateValue(QString &error) const = 0;
    virtual bool validateObjectValue(QString &error) const;
    virtual bool validateListItems(QString &error) const;
    //! Runs after the list has changed; the place to keep it in order.
    virtual void updateListItems();

    //! The list's children with what is kept beside them; null for other properties.
    const ItemList *itemList() const;

protected:
    /*! A property as \a prototype describes it, without its children, for the object \a parent. This is how
        the rows of a property table make properties that share one descriptor. */
    DesignerProperty(DesignerObject *parent, const DesignerProperty &prototype);

    //! The value of a property that holds a number; else not a number.
    virtual double number() const;
    virtual bool hasPlainForm() const { return false; }
    //! What texts the property reads, as in "a whole number". Translated.
    virtual QString formText() const;
    //! Validates \a text in the place of the value, which is the same afterwards to the last digit; false
    //! when it does not parse.
    virtual bool tryValue(const QString &text, bool &valid);
    ItemList &items();
    //! Whether the property holds the value of its row. Whoever sets the typed value switches it off.
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
    //! Takes over \a object, which may be null, and gives the previous child free.
    bool setObjectValue(DesignerObject *object);
    void updateItemIdName(const QString &oldName, const QString &newName);
    //! Makes \a child, which has no owner, the child of an object property that is being made.
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
    //! The text of the value as long as it is the one that the property started with; else null.
    QString initialText() const { return m_isInitial ? descriptor().initialText : QString(); }
    bool hasId(QByteArrayView utf8) const { return descriptor().utf8Id == utf8; }
    //! Whether the property holds the value that it started with, and that is \a utf8.
    bool holdsInitial(QByteArrayView utf8) const { return m_isInitial && descriptor().utf8Initial == utf8; }
    bool takeText(const QString &text);
    bool judgeText(const QString &text, bool &valid);
    template<class Field>
    void describe(Field PropertyDescriptor::*field, const std::type_identity_t<Field> &value);

    Failure findFailure(QString &error) const;
    bool isInRange(QString &error) const;
    void setParameters(const QVariantMap &parameters);
    bool refuse(const char *message);
    bool acceptsClassOf(const DesignerObject *object) const;
    bool canAdd(const DesignerObject *item, const char *duplicateMessage);
    bool canRemove(const DesignerObject *item);

    // For a child that is being deleted: it leaves without a word.
    void forgetItem(DesignerObject *item);
    void forgetObjectValue();
    //! Lets go of all children at once, for an owner that deletes them.
    QList<DesignerObject *> releaseChildren();
    void putItem(ItemPlace place, DesignerObject *item);
    void setErrorString(const QString &error);
    State &state();

    // A project has a million of these. What few of them have is in the state, the descriptor too then; the
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
