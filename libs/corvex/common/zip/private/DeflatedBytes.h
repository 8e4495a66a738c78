// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Halvane::Corvex::Common {

class Progress;

//! Deflates bytes, and provides their size and checksum for an archive. Uses all processors; the result does
//! not depend on their number.
class DeflatedBytes
{
public:
    //! The level is 1 to 9, as for zlib. When the progress is cancelled, it stops early without a result.
    DeflatedBytes(const QByteArray &bytes, int level, const Progress *progress = nullptr);

    //! A raw deflate stream; empty if memory ran out or the work was cancelled.
    const QByteArray &deflated() const { return m_deflated; }
    //! The size before compression.
    quint64 size() const { return m_size; }
    quint32 crc() const { return m_crc; }

private:
    QByteArray m_deflated;
    quint64 m_size;
    quint32 m_crc = 0;
};

} // namespace Halvane::Corvex::Common
