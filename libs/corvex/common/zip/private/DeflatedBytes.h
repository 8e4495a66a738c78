// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Halvane::Corvex::Common {

/*! Bytes in their deflated form, with what an archive tells about them. All processors work at it; what comes
    out is the same for any number of them. */
class DeflatedBytes
{
public:
    //! The level is 1 to 9, as for zlib.
    DeflatedBytes(const QByteArray &bytes, int level);

    //! A raw deflate stream; empty when there was no memory for it.
    const QByteArray &deflated() const { return m_deflated; }
    //! Before deflating.
    quint64 size() const { return m_size; }
    quint32 crc() const { return m_crc; }

private:
    QByteArray m_deflated;
    quint64 m_size;
    quint32 m_crc = 0;
};

} // namespace Halvane::Corvex::Common
