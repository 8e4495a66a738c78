// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace Halvane::Corvex::Tool {

//! A kind of value that has a text form.
struct ValueKind
{
    const char *name;
    const char *example; //!< a text that is accepted
    //! The text as it would be saved; nothing if the text is invalid.
    std::optional<QString> (*canonical)(const QString &text);
    // The short form that people write, if the kind has one: from and to the stored text. They return a null
    // text if the given one is invalid or the value has no short form.
    QString (*toReadable)(const QString &stored) = nullptr;
    QString (*fromReadable)(const QString &text) = nullptr;
};

//! All kinds, in the order of the help page.
const QList<ValueKind> &valueKinds();
//! Null if there is no such kind.
const ValueKind *findValueKind(const QString &name);

} // namespace Halvane::Corvex::Tool
