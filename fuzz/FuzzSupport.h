// SPDX-License-Identifier: MIT
// Shared by the targets: input as text, assertions, round trips.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace Fuzz {

//! Silences the library's messages about hostile input, which would fill the log.
inline const QtMessageHandler quiet =
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &message) {
        if (type == QtFatalMsg) {
            std::fprintf(stderr, "%s\n", qUtf8Printable(message));
        }
    });

inline QString toText(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
}

//! Ends the program, which libFuzzer reports, if a condition is false.
inline void require(bool kept, const char *promise, const QString &about = {})
{
    if (!kept) {
        qFatal("%s: %s", promise, qUtf8Printable(about));
    }
}

//! A text that can be read and is written again must read back, and then be written as the same text.
template<class Read, class Write>
void checkText(const char *kind, const QString &text, Read read, Write write)
{
    bool ok = false;
    const auto value = read(text, &ok);
    if (!ok) {
        return;
    }
    const QString first = write(value);
    const auto again = read(first, &ok);
    require(ok, kind, QStringLiteral("what was written cannot be read: ") + first);
    require(write(again) == first, kind, QStringLiteral("the second output differs: ") + first);
}

//! The same for a record or list with a constructor from text and toString().
template<class Record>
void checkText(const char *kind, const QString &text)
{
    checkText(
        kind, text, [](const QString &form, bool *ok) { return Record(form, ok); },
        [](const Record &record) { return record.toString(); });
}

//! The text of any record must give the same record again.
template<class Record>
void checkRecord(const char *kind, const Record &record)
{
    bool ok = false;
    const QString text = record.toString();
    const Record again(text, &ok);
    require(ok && again == record, kind, text);
}

} // namespace Fuzz
