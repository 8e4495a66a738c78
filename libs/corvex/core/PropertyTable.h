// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <initializer_list>
#include <list>
#include <mutex>
#include <new>
#include <vector>

namespace Halvane::Corvex::Designer {

class PropertyStore;

/*! One row of a property table: the definition of a property by its class.

    The row contains a prototype; every property created from it shares the prototype's descriptor. Texts are
    UTF-8; titles, descriptions and tooltips are translated here.
*/
class CORVEX_EXPORT PropertyRow
{
public:
    //! A row that redescribes a property of the base class. It starts as a copy of \a described, and the
    //! functions called on the row change it. The value is kept.
    static PropertyRow redescribe(const SharedProperty &described);

    const QString &id() const { return m_prototype->id(); }
    //! A property with the descriptor and the value of the row. \a parent, which may be null, must add it.
    SharedProperty make(DesignerObject *parent) const;

    PropertyRow &rank(int rank);
    //! Replaces the flags that the property's class sets; a class that sets none has OrdinaryFlags.
    PropertyRow &flags(int flags);
    //! For editors that the property's class does not set itself.
    PropertyRow &editor(const char *editorName);
    PropertyRow &parameter(const char *key, const QVariant &value);
    PropertyRow &tooltip(const char *text);
    //! What the property is for, in one sentence with the unit. Help pages and panels show it.
    PropertyRow &description(const char *text);
    //! For a text with placeholders that the caller has translated and filled.
    PropertyRow &description(const QString &text);
    //! A value that users may copy, in the form in which people write it. Only needed if that of the kind is
    //! no good example.
    PropertyRow &example(const char *text) { return parameter("example", PropertyRow::text(text)); }
    //! Keeps invalid values and marks them.
    PropertyRow &allowInvalid();
    //! Not shown in the property panel until the object shows it.
    PropertyRow &hidden() { return parameter("visible", false); }
    PropertyRow &filter(std::initializer_list<const char *> classNames);
    PropertyRow &validator(ValueValidator validator);
    PropertyRow &addValidator(ItemValidator validator);
    PropertyRow &removeValidator(ItemValidator validator);
    PropertyRow &qml(BindingsCreator creator);
    //! How the value refers to other objects, if its type does not define it, such as a list of names.
    PropertyRow &references(Form form);
    //! The value contains states of the element in the link \a linkId of the same object.
    PropertyRow &statesOf(const char *linkId);
    //! Refuses edits that set an image whose file is missing.
    PropertyRow &needsPictures();
    //! Also sets the value if the row redescribes a property of the base class.
    PropertyRow &overridesValue();

private:
    template<class Property, class Value>
    friend PropertyRow row(const char *id, const char *title, const Value &initialValue);
    friend class PropertyTable;
    friend class PropertyBlock;
    friend class PropertyStore;

    using Maker = SharedProperty (*)(DesignerObject *parent, const DesignerProperty &prototype);
    //! Constructs a property in the given memory.
    using Builder = DesignerProperty *(*)(void *place, const DesignerProperty &prototype);

    PropertyRow(const SharedProperty &prototype, Maker maker, Builder builder, size_t size);
    static QString text(const char *utf8);
    static QString title(const char *utf8);
    SharedProperty makeAlone(DesignerObject *parent) const { return m_maker(parent, *m_prototype); }
    static SharedProperty belongingTo(DesignerObject *parent, const SharedProperty &property);

    SharedProperty m_prototype;
    Maker m_maker;
    Builder m_builder;
    size_t m_size; //!< the size of a property in bytes
    bool m_overridesValue = false;
};

//! A row for a property of the class \a Property with \a initialValue. Property has a protected or public
//! constructor Property(DesignerObject *parent, const Property &prototype), as in TypedProperty. The parent
//! is null in the constructor and set afterwards.
template<class Property, class Value>
PropertyRow row(const char *id, const char *title, const Value &initialValue)
{
    // Gives the row access to the constructor from a prototype.
    struct Made : public Property
    {
        Made(DesignerObject *parent, const Property &prototype)
            : Property(parent, prototype)
        { }
    };
    return PropertyRow(
        SharedProperty(new Property(nullptr, PropertyRow::text(id), PropertyRow::title(title), initialValue)),
        [](DesignerObject *parent, const DesignerProperty &prototype) -> SharedProperty {
            return PropertyRow::belongingTo(
                parent, QSharedPointer<Made>::create(nullptr, static_cast<const Property &>(prototype)));
        },
        alignof(Made) > alignof(void *)
            ? PropertyRow::Builder(nullptr)
            : [](void *place, const DesignerProperty &prototype) -> DesignerProperty * {
            return new (place) Made(nullptr, static_cast<const Property &>(prototype));
        },
        sizeof(Made));
}

//! The properties of one class, in their order in the objects. Created once per class.
class CORVEX_EXPORT PropertyTable
{
public:
    PropertyTable(std::initializer_list<PropertyRow> rows);

private:
    friend class DesignerObject;

    //! For objects with these properties: where the rows find the properties that they redescribe.
    struct Places
    {
        QStringList ids;
        std::vector<qsizetype> places; //!< for each row an index of ids; -1 for a row that creates a property
    };

    //! The same for all objects of a class, and cached.
    const std::vector<qsizetype> &placesAmong(const PropertyStore &properties) const;
    bool redescribe(const PropertyRow &row, DesignerProperty &property) const;

    std::vector<PropertyRow> m_rows;
    mutable std::mutex m_mutex;         //!< objects are created in several threads
    mutable std::list<Places> m_places; //!< entries never change
};

} // namespace Halvane::Corvex::Designer
