// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! Root of everything in the model. Kinds are told apart by class-name strings and never by the language's
//! own run-time types, so that they hold across plug-ins.
class IDesignerObject
{
public:
    virtual ~IDesignerObject() = default;

    virtual QString className() const { return QStringLiteral("IDesignerObject"); }
    //! The class names of the whole inheritance chain, the root first, className() last.
    virtual QStringList classNames() const;
    virtual bool initialize() = 0;

    bool isKindOfClass(const QString &name) const { return classNames().contains(name); }

protected:
    IDesignerObject() = default;
    IDesignerObject(const IDesignerObject &) = default;
    IDesignerObject &operator=(const IDesignerObject &) = default;
};

} // namespace Halvane::Corvex::Designer

//! Declares className() and classNames() of a concrete class, and kindName() for kindCast(); \a Base is the
//! class whose chain it extends. The chain is built once for all instances.
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
    }
