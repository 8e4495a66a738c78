// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace Halvane::Corvex::Tool {

/*! A file that a verb reads, or standard input for "-". It is read up to a size that nobody needs, since a
   pipe may have no end. */
class InputFile
{
public:
    static constexpr qint64 usualSize = 64 * 1024 * 1024;

    explicit InputFile(const QString &path, qint64 largest = usualSize)
        : m_path(path)
        , m_largest(largest)
    { }

    //! False, with the reason in errorString(), when it cannot be read.
    bool open();
    //! The whole file. False, with the reason, for one that cannot be read or is too large.
    bool readAll(QByteArray &bytes);
    //! One line with its end; empty at the end of the file. False as above.
    bool readLine(QByteArray &line);

    const QString &path() const { return m_path; }
    //! Names the file, and says what to do.
    const QString &errorString() const { return m_error; }

private:
    bool isReadable(qint64 size);

    QString m_path;
    qint64 m_largest;
    QFile m_file;
    qint64 m_size = 0;         //!< that was read
    QByteArray m_ahead;        //!< that was read and is not yet a line of somebody's
    qsizetype m_lineStart = 0; //!< of the next line, in m_ahead
    QString m_error;
};

} // namespace Halvane::Corvex::Tool
