// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

#include <type_traits>

class QDomDocument;

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Root of everything in the model. Kinds are told apart by class-name strings and never by the language's
//! own run-time types, so that they hold across plug-ins.
class CORVEX_EXPORT IDesignerObject
{
public:
    virtual ~IDesignerObject() = default;

    virtual QString className() const { return QStringLiteral("IDesignerObject"); }
    //! The class names of the whole inheritance chain, the root first, className() last.
    virtual QStringList classNames() const;
    virtual bool initialize() = 0;

    bool isKindOfClass(const QString &name) const { return classNames().contains(name); }
    //! Whether the class writes its XML by a convertToXmlDocument() of its own. CORVEX_CLASS_NAMES knows; a
    //! class without it may have one.
    virtual bool hasOwnXmlDocument() const { return false; }

protected:
    IDesignerObject() = default;
    IDesignerObject(const IDesignerObject &) = default;
    IDesignerObject &operator=(const IDesignerObject &) = default;
};

//! Whether Class or a class between it and DesignerObject overrides convertToXmlDocument(): the name then
//! means a member of another class. Where it cannot be seen it is taken for overridden.
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

//! Declares className() and classNames() of a concrete class, and kindName() for kindCast(); \a Base is the
//! class whose chain it extends. The chain is built once for all instances. A class that declares them by
//! hand is written by its convertToXmlDocument(), which takes longer.
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
