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
    //! The text as it would be saved; nothing for a text that is refused.
    std::optional<QString> (*canonical)(const QString &text);
};

//! In the order in which the help shows them.
const QList<ValueKind> &valueKinds();
//! Null when there is none of that name.
const ValueKind *findValueKind(const QString &name);

} // namespace Halvane::Corvex::Tool
