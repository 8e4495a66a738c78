// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! Parses members of QML objects, using all processors.
class CodeReader
{
public:
    //! Each text contains the members of one object. Returns the errors by the index of the text.
    static QHash<qsizetype, QString> errors(const QStringList &texts);
};

} // namespace Halvane::Corvex::Designer
