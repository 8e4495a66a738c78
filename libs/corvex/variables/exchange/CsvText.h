// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>
#include <QStringList>

/*! Tables as RFC 4180 has them. A field with a separator, a quote or a line end in it is written between
   quotes.

    Spreadsheets run what begins with "=", "+", "-", "@", a tab or a carriage return. Such a field gets a "'"
   in front, which reading takes away; a plain number such as "-5" stays as it is. */
namespace Halvane::Corvex::Designer::CsvText {

//! One row with its line end, "\r\n".
CORVEX_EXPORT QString row(const QStringList &fields, QChar separator = u',');

struct CORVEX_EXPORT Row
{
    int line = 0; //!< where it begins, from 1
    QStringList fields;
};

//! What is wrong with a line of a table, for the user.
struct CORVEX_EXPORT Problem
{
    int line = 0;
    QString text;

    //! "line 3: ..."
    QString toString() const;
};

//! The one of ",", ";" and tab that the first line has most of outside of quotes; "," without any.
CORVEX_EXPORT QChar separatorOf(QStringView text);

/*! The rows of a text; "\n" ends a row too, and empty lines between rows are passed over. Reports text that
    follows a closing quote, a quote that is not closed, and lines that end with "\r" alone; the lines in
   question are left out. A quote inside a field that does not begin with one is a character like others. */
CORVEX_EXPORT QList<Row> read(QStringView text, QList<Problem> &problems, QChar separator = u',');

} // namespace Halvane::Corvex::Designer::CsvText
