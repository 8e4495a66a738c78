// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

#include <type_traits>

class QDomDocument;

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! The root of all classes in the model. Classes are identified by class-name strings, never by C++ run-time
//! types, so that this works across plug-ins.
class CORVEX_EXPORT IDesignerObject
{
public:
    virtual ~IDesignerObject() = default;

    virtual QString className() const { return QStringLiteral("IDesignerObject"); }
    //! The class names of the whole inheritance chain, the root first, className() last.
    virtual QStringList classNames() const;
    virtual bool initialize() = 0;

    bool isKindOfClass(const QString &name) const { return classNames().contains(name); }
    //! Whether the class overrides convertToXmlDocument(). CORVEX_CLASS_NAMES implements this; a class
    //! without the macro may have an override although this returns false.
    virtual bool hasOwnXmlDocument() const { return false; }

protected:
    IDesignerObject() = default;
    IDesignerObject(const IDesignerObject &) = default;
    IDesignerObject &operator=(const IDesignerObject &) = default;
};

//! Whether Class or a class between it and DesignerObject overrides convertToXmlDocument(): the name then
//! means a member of another class. If this cannot be determined, assumes an override.
template<class Class>
constexpr bool overridesXmlDocument()
{
    if constexpr (std::is_base_of_v<DesignerObject, Class>) {
        return !requires
        {
            requires std::is_same_v<decltype(&Class::convertToXmlDocument),
                                    QDomDocument (DesignerObject::*)(bool, bool) const>;
        };
    }
    return false;
}

} // namespace Halvane::Corvex::Designer

//! Declares className(), classNames() and, for kindCast(), kindName() of a concrete class that derives from
//! \a Base. The list is built once for all instances. A class that declares these functions by hand is
//! written by its convertToXmlDocument(), which is slower.
#define CORVEX_CLASS_NAMES(Class, Base)                                                                      \
public:                                                                                                      \
    static QString kindName()                                                                                \
    {                                                                                                        \
        return QStringLiteral(#Class);                                                                       \
    }                                                                                                        \
    QString className() const override                                                                       \
    {                                                                                                        \
        return kindName();                                                                                   \
    }                                                                                                        \
    QStringList classNames() const override                                                                  \
    {                                                                                                        \
        static const QStringList names = Base::classNames() << kindName();                                   \
        return names;                                                                                        \
    }                                                                                                        \
    bool hasOwnXmlDocument() const override                                                                  \
    {                                                                                                        \
        return ::Halvane::Corvex::Designer::overridesXmlDocument<Class>() || className() != kindName();      \
    }
