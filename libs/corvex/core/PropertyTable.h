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

/*! One row of a property table: what a class says about one of its properties.

    The row holds a prototype; every property made from it shares the prototype's descriptor. Texts are UTF-8;
    titles, descriptions and tooltips are translated here.
*/
class CORVEX_EXPORT PropertyRow
{
public:
    /*! A row that redescribes a property of the base: it starts as \a described is, and what is called on the
        row changes it. The value stays. */
    static PropertyRow redescribe(const SharedProperty &described);

    const QString &id() const { return m_prototype->id(); }
    //! A property with the description and the value of the row, for the object \a parent to add, which may
    //! be null.
    SharedProperty make(DesignerObject *parent) const;

    PropertyRow &rank(int rank);
    PropertyRow &flags(int flags);
    //! For editors that the property's class does not set by itself.
    PropertyRow &editor(const char *editorName);
    PropertyRow &parameter(const char *key, const QVariant &value);
    PropertyRow &tooltip(const char *text);
    PropertyRow &description(const char *text);
    //! For a text with placeholders, translated and filled by the caller.
    PropertyRow &description(const QString &text);
    //! Keeps values that fail validation, marked.
    PropertyRow &allowInvalid();
    //! Not shown in the property panel until the object shows it.
    PropertyRow &hidden() { return parameter("visible", false); }
    PropertyRow &filter(std::initializer_list<const char *> classNames);
    PropertyRow &validator(ValueValidator validator);
    PropertyRow &addValidator(ItemValidator validator);
    PropertyRow &removeValidator(ItemValidator validator);
    PropertyRow &qml(BindingsCreator creator);
    //! Where the row describes a property of the base anew, it gives it this row's value too.
    PropertyRow &overridesValue();

private:
    template<class Property, class Value>
    friend PropertyRow row(const char *id, const char *title, const Value &initialValue);
    friend class PropertyTable;
    friend class PropertyBlock;
    friend class PropertyStore;

    using Maker = SharedProperty (*)(DesignerObject *parent, const DesignerProperty &prototype);
    //! Makes a property in the memory that it is given.
    using Builder = DesignerProperty *(*)(void *place, const DesignerProperty &prototype);

    PropertyRow(const SharedProperty &prototype, Maker maker, Builder builder, size_t size);
    static QString text(const char *utf8);
    static QString title(const char *utf8);
    SharedProperty makeAlone(DesignerObject *parent) const { return m_maker(parent, *m_prototype); }
    static SharedProperty belongingTo(DesignerObject *parent, const SharedProperty &property);

    SharedProperty m_prototype;
    Maker m_maker;
    Builder m_builder;
    size_t m_size; //!< of a property in bytes
    bool m_overridesValue = false;
};

/*! A row for a property of the class \a Property, which starts with \a initialValue. Property has a protected
   or public constructor Property(DesignerObject *parent, const Property &prototype), as TypedProperty gives
   it. The parent is null there, and set afterwards. */
template<class Property, class Value>
PropertyRow row(const char *id, const char *title, const Value &initialValue)
{
    // Opens the constructor from a prototype, which is nobody else's business, to the row.
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

//! The properties of one class, in the order in which its objects get them. Made once per class.
class CORVEX_EXPORT PropertyTable
{
public:
    PropertyTable(std::initializer_list<PropertyRow> rows);

private:
    friend class DesignerObject;

    //! Where rows find the properties that they redescribe, for objects with these properties.
    struct Places
    {
        QStringList ids;
        std::vector<qsizetype> places; //!< for each row an index of ids; -1 for a row that makes a property
    };

    //! The same for all objects of a class, and looked up once.
    const std::vector<qsizetype> &placesAmong(const PropertyStore &properties) const;
    bool redescribe(const PropertyRow &row, DesignerProperty &property) const;

    std::vector<PropertyRow> m_rows;
    mutable std::mutex m_mutex;         //!< objects are made in several threads
    mutable std::list<Places> m_places; //!< never changed once they are there
};

} // namespace Halvane::Corvex::Designer
