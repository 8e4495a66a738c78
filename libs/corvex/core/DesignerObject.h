// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"
#include "corvex/core/PropertyRange.h"
#include "corvex/values/records/IdentifierInfo.h"

#include <QMap>
#include <QObject>

#include <memory>

class QDomDocument;
class QIODevice;

namespace Halvane::Corvex::Designer {

class ModelObservers;
class ObjectView;
class Project;
class PropertyRow;
class PropertyTable;
class Screen;

/*! A thing that a user designs or configures: a set of properties that change under one protocol.

    Every change of the model goes through changePropertyValue(), changePropertyObjectValue() and the list
    operations. Their order is the same for all:

    1. The request is checked. A bad one returns false (or null), sets the property's errorString() and
       changes nothing.
    2. The before-hook runs. It may veto the change by returning false.
    3. The property changes. Observers of the project are notified (ModelObserver), the canvas item is
       updated, and the property is validated.
    4. The after-hook runs.
    5. The signal is emitted.

    After-hooks and signals of a change of value or object carry what the property held \e before.
    Hooks and slots may change the model further. They must not delete the object that is being changed, nor
    an item that is being inserted or removed.

    Ownership: in the model, the QObject parent of an object is the object whose list or object property holds
    it. Outside of the model an object has no parent, project() or screen(), and belongs to the code that took
    it out.
*/
class CORVEX_EXPORT DesignerObject
    : public QObject
    , public IDesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(DesignerObject, IDesignerObject)
    Q_DISABLE_COPY_MOVE(DesignerObject)

public:
    //! Deletes its children first, while its own properties still exist.
    ~DesignerObject() override;

    //! Creates the properties; called once by the factory. Returns false if the object cannot be used.
    bool initialize() override;

    //! The stem of the names of new instances.
    virtual QString baseName() const;
    //! What the user calls this kind of object.
    virtual QString displayName() const;
    //! The name of the QML type; the class name.
    virtual QString qmlName() const;
    //! The object's block of QML, indented by \a indent tabs. Lines are separated by "\n"; the last has none.
    virtual QString toQml(int indent) const;
    //! The bindings in that block: those of the properties, in order, and after the identifier the runtime
    //! name ("objectName"), which has no source. Child objects are not included.
    QmlBindings qmlBindings() const;
    //! Statements to run once the screen is loaded; empty in the base.
    virtual QString onCompletedQml(int indent) const;

    // Properties.
    //! The property with that id or null.
    SharedProperty getProperty(QStringView id) const;
    SharedProperty getProperty(const QString &id) const { return getProperty(QStringView(id)); }
    //! In order of creation, which is the order in files and QML.
    PropertyRange properties() const;
    //! The properties whose value other objects refer to.
    QList<SharedProperty> dependencyProperties() const { return getDependencyProperties(); }

    //! The outcome of a request to change a value.
    enum class Change : quint8 {
        Done,       //!< the property holds the new value
        Unchanged,  //!< it held this value before
        Unreadable, //!< the text is not a value of the property, or a file cannot hold it
        Invalid,    //!< validation refused the value; errorString() of the property has the reason
        Vetoed,     //!< the before-hook of the object refused it
    };

    // Changes. The property must belong to this object.
    /*! Sets a value from its text. Returns true even if nothing had to change, or if validation refused the
        value: then the old value stays, no hook runs, no signal is emitted, and the property's errorString()
        gives the reason. Returns false if the text does not parse, contains a character that a file cannot
        hold, or a hook vetoes. changeValue() tells these cases apart.
    */
    bool changePropertyValue(const SharedProperty &property, const QString &newValue);
    //! Like changePropertyValue(), but returns the outcome. For a property that is a list, contains an object
    //! or belongs to another object this is Unreadable; without a property nothing changes.
    Change changeValue(const SharedProperty &property, const QString &newValue);
    //! Makes \a object, which may be null, the child of an object property. The previous child is deleted if
    //! \a deletePrevious is set; otherwise the caller owns it.
    bool changePropertyObjectValue(const SharedProperty &property, DesignerObject *object,
                                   bool deletePrevious = false);
    bool addListPropertyItem(const SharedProperty &property, DesignerObject *item);
    //! An index outside of the list means the nearest end. A sorted list inserts the item in order.
    bool insertListPropertyItemAt(const SharedProperty &property, DesignerObject *item, qsizetype index);
    //! The same with a place that also counts kept items, so that an item can return to exactly its old
    //! place.
    bool insertListPropertyItemAt(const SharedProperty &property, DesignerObject *item,
                                  const ItemPlace &place);
    bool insertListPropertyItemBefore(const SharedProperty &property, DesignerObject *reference,
                                      DesignerObject *item);
    bool insertListPropertyItemAfter(const SharedProperty &property, DesignerObject *reference,
                                     DesignerObject *item);
    //! Returns the item, which the caller now owns; null if it is refused.
    DesignerObject *takeListPropertyItem(const SharedProperty &property, DesignerObject *item);
    //! The caller owns the old item afterwards.
    bool replaceListPropertyItem(const SharedProperty &property, DesignerObject *oldItem,
                                 DesignerObject *newItem);
    bool replaceListPropertyItemAt(const SharedProperty &property, qsizetype index, DesignerObject *newItem);
    bool swapListPropertyItems(const SharedProperty &property, DesignerObject *first, DesignerObject *second);

    // Queries on a list property, by its id; empty, null or -1 if there is no such list.
    QStringList getListItemNamesInListProperty(const QString &id) const;
    bool hasListItemInListProperty(const QString &id, const QString &name) const;
    DesignerObject *getItemInListProperty(const QString &id, const QString &name) const;
    DesignerObject *getItemInListPropertyAtIndex(const QString &id, qsizetype index) const;
    qsizetype getListItemIndexInListProperty(const QString &id, const QString &name) const;
    QStringList getTypesInListProperty(const QString &id) const;
    QStringList getListItemNamesInListPropertyOfType(const QString &id, const QString &className) const;
    QList<DesignerObject *> getListItemsInListPropertyOfType(const QString &id,
                                                             const QString &className) const;

    // Identity.
    SharedProperty idProperty() const;
    //! Valid until the object is renamed.
    const QString &getIdName() const;
    bool setIdName(const QString &name);
    IdentifierInfo getIdInfo() const;
    bool setIdInfo(const IdentifierInfo &info);
    void setIdFlag(PropertyFlag flag, bool on);
    //! "qml_" and the name: the id of the object in QML. Empty if the name is not an identifier.
    QString getQmlIdName() const;
    //! Whether no other object in the same scope has the name of \a other.
    bool isUnique(const DesignerObject *other) const;
    //! Whether the name belongs to this object or to an object below it.
    bool isOrHasIdentifier(const QString &name) const;

    // Links.
    QMap<SharedProperty, QString> linkPropertiesWithId() const;
    QMap<SharedProperty, DesignerObject *> linkPropertiesWithObjects() const;

    // Place in the model.
    //! The list that owns this object; null outside of the model and for the child of an object property.
    SharedProperty listProperty() const;
    void setListProperty(const SharedProperty &property);
    //! Every list that contains this object, including the owning one.
    QList<DesignerProperty *> listProperties() const;
    //! Records a list that contains this object. Ignores a list that is already recorded.
    void addListDesignerProperty(DesignerProperty *property);
    void takeListDesignerProperty(DesignerProperty *property);
    //! The object that owns the list or the object property that holds this one.
    DesignerObject *ownerObject() const;
    Project *project() const;
    Screen *screen() const;
    //! Applies to this object and everything below it.
    virtual void setProject(Project *project);
    virtual void setScreen(Screen *screen);
    //! The object itself or its nearest ancestor that is an "Element" or a "Screen", or null.
    static DesignerObject *rootElement(DesignerObject *object);
    //! All children of its lists and object properties, in the order of the properties.
    QList<DesignerObject *> childObjects() const;
    //! The path of the object for users: the names from the project down to the object, joined with "." and
    //! without the project's own ("Main.pump1"). An object without a name appears as its class name.
    QString objectPath() const;

    // The canvas.
    ObjectView *graphicsItem() const;
    //! Creates the item that shows this object, unless it has one or its kind has none.
    void setGraphicsItem();
    void resetGraphicsItem();

    // Validation.
    //! Validates all objects below, then all own properties, and collects "title: reason" for each failure.
    //! Emits validationError() when errors appear and resetValidationError() when they disappear.
    bool validate();
    //! The same without the objects below, whose last outcomes are used.
    void validateProperties();
    bool isValid() const;
    void setValid(bool valid);
    const QStringList &validationErrors() const;
    void setValidationError(bool set);
    bool validationErrorSet() const;
    //! Switches validation off for this object, for example while it is being read.
    void setDisableValidation(bool disable);
    bool disabledValidation() const;
    void emitValidationError() { emit validationError(); }
    void emitResetValidationError() { emit resetValidationError(); }

    // Files and copies; see ObjectXmlReader and ObjectXmlWriter for streams.
    //! The form of the object in files and copies; null if a required child is missing. Only called if a
    //! class overrides it (hasOwnXmlDocument()); all other objects are written directly.
    virtual QDomDocument convertToXmlDocument(bool withHeader, bool allProperties) const;
    QString convertToString(bool withHeader, bool allProperties) const;
    //! The text that would be saved; empty if it cannot be written. That of a ProjectVariable has no XML
    //! declaration.
    static QString toString(const DesignerObject *object);
    //! An object without a parent, owned by the caller. Null if the text does not describe an object; a
    //! warning then names line and column. With \a validate the complete object is validated.
    static DesignerObject *createFromString(const QString &text, bool validate = true);
    static DesignerObject *createCopy(const DesignerObject *object, bool validate = true);
    static DesignerObject *createFromFile(const QString &path, bool validate = true);
    static bool loadFromFile(DesignerObject *object, const QString &path, bool validate = true);
    //! Writes a new file beside the old one and replaces it in one step. After a failure the old file is
    //! intact.
    static bool saveToFile(const DesignerObject *object, const QString &path, QString *error = nullptr);

    static QString getTabs(int count) { return QString(count, u'\t'); }

signals:
    void propertyValueChanged(const QSharedPointer<Halvane::Corvex::Designer::DesignerProperty> &property,
                              const QString &previousValue);
    //! \a deleted is true if \a previousObject is about to be deleted.
    void
    propertyObjectValueChanged(const QSharedPointer<Halvane::Corvex::Designer::DesignerProperty> &property,
                               Halvane::Corvex::Designer::DesignerObject *previousObject, bool deleted);
    void propertyListItemAdded(const QSharedPointer<Halvane::Corvex::Designer::DesignerProperty> &property,
                               Halvane::Corvex::Designer::DesignerObject *object);
    void propertyListItemRemoved(const QSharedPointer<Halvane::Corvex::Designer::DesignerProperty> &property,
                                 Halvane::Corvex::Designer::DesignerObject *object);
    void listItemsSwapped(const QSharedPointer<Halvane::Corvex::Designer::DesignerProperty> &property,
                          Halvane::Corvex::Designer::DesignerObject *first,
                          Halvane::Corvex::Designer::DesignerObject *second);
    void listItemReplaced(const QSharedPointer<Halvane::Corvex::Designer::DesignerProperty> &property,
                          Halvane::Corvex::Designer::DesignerObject *oldObject,
                          Halvane::Corvex::Designer::DesignerObject *newObject);
    void idNameChanged(const QString &oldName, const QString &newName);
    void projectChanged(Halvane::Corvex::Designer::Project *project);
    void screenChanged(Halvane::Corvex::Designer::Screen *screen);
    void validationError();
    void resetValidationError();

protected:
    explicit DesignerObject(QObject *parent = nullptr);

    //! Creates the item that shows this object; null for a kind without one. The canvas owns it.
    virtual ObjectView *createGraphicsItem() = 0;
    //! Runs after an item of one of its lists was renamed, swapped or replaced.
    virtual void afterListPropertyChanged();
    //! Adds the properties of the class after those of its base.
    virtual bool initializeProperties();

    virtual bool beforePropertyChanged(const DesignerProperty *property, const QString &newValue);
    virtual bool beforeObjectPropertyChanged(const DesignerProperty *property,
                                             const DesignerObject *newObject);
    virtual bool beforeListItemAdded(const DesignerProperty *property, const DesignerObject *item);
    virtual bool beforeListItemRemoved(const DesignerProperty *property, const DesignerObject *item);
    virtual void afterPropertyChanged(const DesignerProperty *property, const QString &previousValue);
    virtual void afterObjectPropertyChanged(const DesignerProperty *property,
                                            const DesignerObject *previousObject);
    virtual void afterListItemAdded(const DesignerProperty *property, const DesignerObject *item);
    virtual void afterListItemRemoved(const DesignerProperty *property, const DesignerObject *item);
    virtual QList<SharedProperty> getDependencyProperties() const;

    // Files.
    //! Whether files contain the property. In the base, StoredFlag decides.
    virtual bool storesProperty(const DesignerProperty &property) const;
    //! Handles a stored property without text and without children. By default, the id "text" gets the empty
    //! text, and all others keep their default.
    virtual void readEmptyValue(const SharedProperty &property);
    //! Called when all properties have been read, before validation.
    virtual void finishReading();

    //! Gives a new object its identifier: the base name, the scope \a scopeType ("Project", "Screen") and the
    //! object's class. For initializeProperties().
    void registerIdentifier(const QString &scopeType);
    //! Called as soon as the object has its new name, before observers and afterPropertyChanged(). The place
    //! to update indexes.
    virtual void nameChanged(const QString &oldName);
    //! For the root of a model, before setProject(): objects below it inherit the observers. Not owned.
    void setObservers(ModelObservers *observers);
    //! Deletes the children while this object is complete. For the destructor of a class whose children use
    //! it.
    void deleteChildren();

    //! Appends the contents of the braces of toQml() to \a text, indented by \a indent tabs, each line with
    //! its "\n". Omits the property \a omitted, which may be null.
    void appendMembers(QString &text, int indent, const DesignerProperty *omitted = nullptr) const;

    //! Adds a property that is not in a table.
    void addProperty(const SharedProperty &property);
    //! Adds one property for each row. A row with the id of an existing property redescribes that one
    //! instead, and sets its value only if the row overrides it.
    bool addProperties(const PropertyTable &table);
    //! Updates isValid() and validationErrors() from the validation results of the properties, and notifies
    //! the owner.
    void updateValidity();

private:
    friend class DesignerProperty;
    friend class ItemList;
    friend class ObjectBuilder;
    friend class ObjectXmlWriter;
    friend class PropertyRow;

    QmlBindings nameBinding() const;
    //! Changes a value by a text that a file can hold.
    Change changeStorableValue(const SharedProperty &property, const QString &newValue);
    //! The same. A text that cannot be read, and therefore counts as equal to every value, is Unchanged.
    Change storeValue(const SharedProperty &property, const QString &newValue);
    static bool canBeStored(DesignerProperty &property, const QString &value);
    bool isOwnValue(const SharedProperty &property) const;
    void updateName(const QString &oldName);
    void announceNewName(const QString &oldName, const QString &newName);
    //! The observers to call for changes of this object. Null if nobody observes it.
    ModelObservers *activeObservers() const;
    //! Asserts that no observer is being called.
    void assertMayChange() const;
    void announceDeletion();
    void revalidate(const SharedProperty &property);
    //! Enables validation for this object and everything below it, and validates, in one pass.
    void validateWhatWasRead();
    void childValidityChanged(DesignerProperty &property);

    bool mayEnter(const SharedProperty &property, const DesignerObject *item) const;
    bool isShallow(const DesignerObject *item) const;
    //! The depth of the tree below it.
    qsizetype height() const;
    void enterModel(DesignerObject *item);
    void leaveModel(const SharedProperty &property, DesignerObject *item);
    void addToView(const SharedProperty &property, DesignerObject *item);
    //! Completes an insertion or a replacement after the item was added to the list.
    void acceptItem(const SharedProperty &property, DesignerObject *item);
    template<class Insert>
    bool addItem(const SharedProperty &property, DesignerObject *item, Insert insert);
    SharedProperty listOf(const QString &id) const;
    //! Records that there may be children, so that the many objects without any are not searched.
    void noteFlags(const DesignerProperty &property);
    //! Creates a property that must then be added.
    SharedProperty makeProperty(const PropertyRow &row);
    //! The object property that owns this object; null if a list owns it, and outside of the model.
    SharedProperty objectProperty() const;

    struct Data;
    std::unique_ptr<Data> d;
};

//! \a object as a \a Kind if its class names include that kind; otherwise null.
template<class Kind>
Kind *kindCast(DesignerObject *object)
{
    return object && object->isKindOfClass(Kind::kindName()) ? static_cast<Kind *>(object) : nullptr;
}

template<class Kind>
const Kind *kindCast(const DesignerObject *object)
{
    return object && object->isKindOfClass(Kind::kindName()) ? static_cast<const Kind *>(object) : nullptr;
}

} // namespace Halvane::Corvex::Designer
