// SPDX-License-Identifier: MIT
// Prints Qt's texts in the messages of GoogleTest.
#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *stream)
{
    *stream << '"' << bytes.toStdString() << '"';
}
