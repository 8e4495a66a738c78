// SPDX-License-Identifier: MIT
#include "InputFile.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

bool InputFile::open()
{
    m_file.setFileName(m_path);
    const bool isOpen = m_path == "-"_L1 ? m_file.open(stdin, QIODevice::ReadOnly)
                                         : !QFileInfo(m_path).isDir() && m_file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        m_error = QFileInfo(m_path).isDir()
                      ? u"\"%1\" is a folder. Name a file in it."_s.arg(m_path)
                      : u"\"%1\" cannot be read: %2."_s.arg(m_path, m_file.errorString());
    }
    return isOpen;
}

bool InputFile::isReadable(qint64 size)
{
    m_size += size;
    if (m_file.error() != QFileDevice::NoError) {
        m_error = u"\"%1\" cannot be read: %2."_s.arg(m_path, m_file.errorString());
    } else if (m_size > m_largest) {
        m_error = u"\"%1\" is larger than %2 MB, the maximum. Choose another file, or split it."_s.arg(
            m_path, QString::number(m_largest >> 20));
    }
    return m_error.isEmpty();
}

bool InputFile::readAll(QByteArray &bytes)
{
    constexpr qint64 step = 1024 * 1024;
    bytes.clear();
    for (QByteArray part = m_file.read(step); !part.isEmpty(); part = m_file.read(step)) {
        bytes += part;
        if (!isReadable(part.size())) {
            return false;
        }
    }
    return isReadable(0);
}

bool InputFile::readLine(QByteArray &line)
{
    // QFile reads lines from a pipe byte by byte, or blocks until its buffer is full.
    QByteArray part(64 * 1024, Qt::Uninitialized);
    qsizetype end = m_ahead.indexOf('\n', m_lineStart);
    while (end < 0) {
        const qsizetype searched = m_ahead.size() - m_lineStart;
        m_ahead.remove(0, std::exchange(m_lineStart, 0));
        const ssize_t size = ::read(m_file.handle(), part.data(), size_t(part.size()));
        if (size < 0 && errno != EINTR) {
            m_error = u"\"%1\" cannot be read: %2."_s.arg(m_path, qt_error_string(errno));
            return false;
        }
        if (size <= 0) {
            break; // end of file, or the program was interrupted
        }
        if (!isReadable(size)) {
            return false;
        }
        m_ahead.append(part.constData(), size);
        end = m_ahead.indexOf('\n', searched);
    }
    line = end < 0 ? m_ahead : m_ahead.sliced(m_lineStart, end + 1 - m_lineStart);
    m_lineStart = end < 0 ? m_ahead.size() : end + 1;
    return true;
}

} // namespace Halvane::Corvex::Tool
