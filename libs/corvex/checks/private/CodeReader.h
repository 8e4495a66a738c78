// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! Reads members of QML objects, on all processors.
class CodeReader
{
public:
    //! Each text holds the members of one object. What is wrong with the texts that are wrong, by their
    //! indexes.
    static QHash<qsizetype, QString> errors(const QStringList &texts);
};

} // namespace Halvane::Corvex::Designer
