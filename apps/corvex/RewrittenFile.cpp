// SPDX-License-Identifier: MIT
#include "RewrittenFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

RewrittenFile::RewrittenFile(const QString &path, Mode mode)
    : m_old(path)
    , m_mode(mode)
{ }

bool RewrittenFile::fail(const QString &error)
{
    setErrorString(error);
    m_hasFailed = true;
    return false;
}

bool RewrittenFile::openForWriting()
{
    if (!m_old.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return fail(u"The file \"%1\" cannot be read: %2"_s.arg(m_old.fileName(), m_old.errorString()));
    }
    return open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 RewrittenFile::writeData(const char *data, qint64 size)
{
    qint64 equal = 0;
    if (m_line == 0) {
        equal = countEqual({data, size});
        m_equalBytes += equal;
        if (equal < size && !beginDifference()) {
            return -1;
        }
    }
    if (m_new) {
        m_new->write(data + equal, size - equal); // commit() reports a failed write
    }
    return size;
}

qint64 RewrittenFile::countEqual(QByteArrayView bytes)
{
    const QByteArray old = m_old.read(bytes.size());
    return std::ranges::mismatch(old, bytes).in1 - old.begin();
}

bool RewrittenFile::beginDifference()
{
    QString error;
    if (m_mode == Mode::Rewrite) {
        m_new = std::make_unique<Common::SafeFile>(m_old.fileName());
        if (!m_new->openForWriting(&error)) {
            return fail(error);
        }
    }
    constexpr qint64 blockSize = qint64(256) * 1024;
    m_line = 1;
    m_old.seek(0);
    for (qint64 left = m_equalBytes; left > 0;) {
        const QByteArray block = m_old.read(std::min(left, blockSize));
        if (block.isEmpty()) {
            return fail(u"The file \"%1\" cannot be read: %2"_s.arg(m_old.fileName(), m_old.errorString()));
        }
        m_line += block.count('\n');
        if (m_new) {
            m_new->write(block);
        }
        left -= block.size();
    }
    return true;
}

bool RewrittenFile::finish()
{
    return m_line > 0 || m_equalBytes == m_old.size() || beginDifference();
}

bool RewrittenFile::commit()
{
    QString error;
    return m_new->commit(&error) || fail(error);
}

} // namespace Halvane::Corvex::Tool
