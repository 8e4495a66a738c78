// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace Halvane::Corvex::Designer {

//! One value that a state or an action sets.
struct SettingText
{
    QString element; //!< empty in the values of one object
    QString property;
    QString value; //!< as it is written, with quotes if there are any

    //! Whether the value cannot stand for itself between ":" and ";".
    static bool needsQuotes(const QString &value);
    //! `{ lamp.color: #C62828; lamp.text: "a; b" }`. Null if a name cannot be written.
    static QString print(const QList<SettingText> &settings);
    //! Nothing if the text does not have this form.
    static std::optional<QList<SettingText>> read(const QString &text);
    //! The same for values of one object: `{ color: #C62828; text: "a; b" }`.
    static std::optional<QList<SettingText>> readOfOne(const QString &text);
};

} // namespace Halvane::Corvex::Designer
