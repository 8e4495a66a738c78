// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

/*! A line of an edit script in its words, separated by blanks and tabs. A word in double quotes may
    hold them, too, and \", \\, \n and \t. */
struct CORVEX_EXPORT EditLine
{
    QStringList words;
    QString rest; //!< what follows the second word, unchanged

    //! False, with the reason for the user, when a quote is not closed or the line holds a NUL.
    bool read(const QString &line, QString &error);
};

} // namespace Halvane::Corvex::Designer
