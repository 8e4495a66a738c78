// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Tool {

/*! A line of an edit script in its words, which are parted by blanks and tabs. A word in double quotes may
    hold them, too, and \", \\, \n and \t. */
struct EditLine
{
    QStringList words;
    QString rest; //!< what follows the second word, unchanged

    //! False, with the reason for the user, when a quote is not closed or the line holds a NUL.
    bool read(const QString &line, QString &error);
};

} // namespace Halvane::Corvex::Tool
