// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"

#include <QObject>
#include <QString>
#include <QVariant>

namespace Halvane::Corvex::Preview {

//! A variable of the running project. Bindings read "value", so each is notified only of its own variables.
class Variable : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value NOTIFY valueChanged)

public:
    using Type = Common::EnumHelper::VariableType;

    Variable(const QString &name, Type type, bool isPersistent, QObject *parent);

    const QString &name() const { return m_name; }
    Type type() const { return m_type; }
    bool isPersistent() const { return m_isPersistent; }
    //! A bool, a double, or a text; a colour is the text "#AARRGGBB".
    const QVariant &value() const { return m_value; }
    QString text() const { return textOf(m_value); }

    //! Returns false, and changes nothing, if the value does not fit the variable's type.
    bool setValue(const QVariant &value);

    //! The value converted to the type; an invalid variant if that is impossible.
    static QVariant converted(const QVariant &value, Type type);
    //! The text of a value on a label: "true", "1.5", "abc".
    static QString textOf(const QVariant &value);
    //! "boolean", "number", "text" or "color", for users.
    static QString nameOf(Type type);

signals:
    void valueChanged();

private:
    QString m_name;
    Type m_type;
    bool m_isPersistent;
    QVariant m_value;
};

} // namespace Halvane::Corvex::Preview
