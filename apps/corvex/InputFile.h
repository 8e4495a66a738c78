// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace Halvane::Corvex::Tool {

//! A file that a verb reads; "-" is standard input. The size is limited because a pipe may never end.
class InputFile
{
public:
    static constexpr qint64 usualSize = 64 * 1024 * 1024;

    explicit InputFile(const QString &path, qint64 largest = usualSize)
        : m_path(path)
        , m_largest(largest)
    { }

    //! Returns false, with errorString(), if the file cannot be opened.
    bool open();
    //! Reads the whole file. Returns false, with errorString(), if it cannot be read or is too large.
    bool readAll(QByteArray &bytes);
    //! Reads one line including its line ending; an empty line means the end of the file. Returns false as
    //! above.
    bool readLine(QByteArray &line);

    const QString &path() const { return m_path; }
    //! The message names the file and says what to do.
    const QString &errorString() const { return m_error; }

private:
    bool isReadable(qint64 size);

    QString m_path;
    qint64 m_largest;
    QFile m_file;
    qint64 m_size = 0;         //!< bytes read so far
    QByteArray m_ahead;        //!< bytes read but not yet returned
    qsizetype m_lineStart = 0; //!< offset of the next line in m_ahead
    QString m_error;
};

} // namespace Halvane::Corvex::Tool
