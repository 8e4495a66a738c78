// SPDX-License-Identifier: MIT
#include "corvex/common/zip/DeflatedBytes.h"

#include <libdeflate.h>
#include <memory>

namespace Halvane::Corvex::Common {

DeflatedBytes::DeflatedBytes(const QByteArray &bytes, int level)
    : m_size(static_cast<quint64>(bytes.size()))
    , m_crc(libdeflate_crc32(0, bytes.constData(), m_size))
{
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(level), &libdeflate_free_compressor);
    if (!compressor)
        return;
    const size_t bound = libdeflate_deflate_compress_bound(compressor.get(), m_size);
    m_deflated.resize(static_cast<qsizetype>(bound));
    m_deflated.resize(static_cast<qsizetype>(
        libdeflate_deflate_compress(compressor.get(), bytes.constData(), m_size, m_deflated.data(), bound)));
}

} // namespace Halvane::Corvex::Common
