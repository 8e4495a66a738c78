// SPDX-License-Identifier: MIT
#include "InputFile.h"

#include <QFileInfo>

#include <cstdio>

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
        m_error =
            u"\"%1\" is longer than %2 MB, the most that is read. Name another file, or divide it."_s.arg(
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
    constexpr qint64 step = 64 * 1024;
    line.clear();
    do {
        const QByteArray part = m_file.readLine(step);
        line += part;
        if (!isReadable(part.size())) {
            return false;
        }
        if (part.isEmpty()) {
            break;
        }
    } while (!line.endsWith('\n'));
    return true;
}

} // namespace Halvane::Corvex::Tool
