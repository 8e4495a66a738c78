// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! A line of an edit script, split into words at spaces and tabs. A word in double quotes may contain these,
//! and \", \\, \n and \t.
struct CORVEX_EXPORT EditLine
{
    QStringList words;
    QString rest; //!< everything after the second word, unchanged

    //! Returns false, with the reason for the user, if a quote is not closed or the line contains a NUL.
    bool read(const QString &line, QString &error);
};

} // namespace Halvane::Corvex::Designer
