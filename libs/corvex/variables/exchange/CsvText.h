// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

//! Tables as RFC 4180 has them. A field with a separator, a quote or a line end in it stands between quotes.
namespace Halvane::Corvex::Designer::CsvText {

//! One row with its line end, "\r\n".
QString row(const QStringList &fields, QChar separator = u',');

struct Row
{
    int line = 0; //!< where it begins, from 1
    QStringList fields;
};

/*! The rows of a text with commas; "\n" ends a row too, and empty lines between rows are passed over. False,
    with the line and the reason in \a error, for text behind a closing quote and for a quote that is not
    closed. A quote inside a field that does not begin with one is a character like others. */
bool read(QStringView text, QList<Row> &rows, QString &error);

} // namespace Halvane::Corvex::Designer::CsvText
