// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>
#include <QStringList>

/*! Tables in the format of RFC 4180. A field with a separator, a quote or a line ending is quoted.

    Spreadsheets run fields that begin with "=", "+", "-", "@", a tab or a carriage return as formulas. Such a
    field gets a "'" in front, which reading removes; plain numbers such as "-5" are not changed.
*/
namespace Halvane::Corvex::Designer::CsvText {

//! One row with its line ending, "\r\n".
CORVEX_EXPORT QString row(const QStringList &fields, QChar separator = u',');

struct CORVEX_EXPORT Row
{
    int line = 0; //!< the first line of the row, counted from 1
    QStringList fields;
};

//! A problem in a line of a table, for the user.
struct CORVEX_EXPORT Problem
{
    int line = 0;
    QString text;

    //! "line 3: ..."
    QString toString() const;
};

//! The most frequent of ",", ";" and tab outside of quotes in the first line; "," by default.
CORVEX_EXPORT QChar separatorOf(QStringView text);

//! The rows of a text. "\n" also ends a row, and empty lines are skipped. Reports text after a closing quote,
//! a quote that is not closed, and lines that end with a lone "\r"; those lines are omitted. A quote inside
//! an unquoted field is an ordinary character.
CORVEX_EXPORT QList<Row> read(QStringView text, QList<Problem> &problems, QChar separator = u',');

} // namespace Halvane::Corvex::Designer::CsvText
