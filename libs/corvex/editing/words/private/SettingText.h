// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace Halvane::Corvex::Designer {

//! One value that a state or an action sets.
struct SettingText
{
    QString element;
    QString property;
    QString value; //!< as it is written, with quotes if there are any

    //! Whether the value cannot stand for itself between ":" and ";".
    static bool needsQuotes(const QString &value);
    //! `{ lamp.color: #C62828; lamp.text: "a; b" }`. Null if a name cannot be written.
    static QString print(const QList<SettingText> &settings);
    //! Nothing if the text does not have this form.
    static std::optional<QList<SettingText>> read(const QString &text);
};

} // namespace Halvane::Corvex::Designer
