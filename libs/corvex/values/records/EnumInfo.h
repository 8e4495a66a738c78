// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QMetaEnum>
#include <QString>

namespace Halvane::Corvex::Designer {

//! A value of an enumeration in the meta-object system. Its text form is the key of the value.
class CORVEX_EXPORT EnumInfo
{
public:
    EnumInfo() = default;
    EnumInfo(const QMetaEnum &enumerator, int value);
    //! The value with that key; an unknown key gives 0.
    EnumInfo(const QMetaEnum &enumerator, const QString &key, bool *ok);

    const QMetaEnum &enumerator() const { return m_enumerator; }
    void setEnumerator(const QMetaEnum &enumerator) { m_enumerator = enumerator; }
    int value() const { return m_value; }
    void setValue(int value) { m_value = value; }

    //! The value is one of the enumeration.
    bool isValid() const { return valueIsValid(m_value); }
    bool valueIsValid(int value) const;
    bool keyIsValid(const QString &key) const;
    //! -1, with ok false, for an unknown key.
    int keyToValue(const QString &key, bool *ok = nullptr) const;
    QString valueToKey(int value) const;
    //! The key with that index, in order of declaration.
    QString key(int index) const;
    //! The key for a text that is a key or the number of a value; empty if it is neither.
    QString keyOf(const QString &text) const;

    //! The key of the value; empty if the enumeration does not contain the value.
    QString valueString() const { return valueToKey(m_value); }
    QString toString() const { return valueString(); }

    //! The same value of the same enumeration.
    friend bool operator==(const EnumInfo &a, const EnumInfo &b) { return a.equals(b); }

private:
    bool equals(const EnumInfo &other) const;

    QMetaEnum m_enumerator;
    int m_value = 0;
};

} // namespace Halvane::Corvex::Designer
