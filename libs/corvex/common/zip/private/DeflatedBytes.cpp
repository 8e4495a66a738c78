// SPDX-License-Identifier: MIT
#include "corvex/common/zip/private/DeflatedBytes.h"

#include "corvex/common/Processors.h"
#include "corvex/common/Progress.h"

#include <algorithm>
#include <atomic>
#include <vector>
#include <zlib.h>

namespace Halvane::Corvex::Common {

namespace {

// Large enough to be worth a thread. A constant, because other pieces would give other bytes.
constexpr qsizetype pieceSize = qsizetype(2) * 1024 * 1024;
constexpr qsizetype windowSize = 32 * 1024; // how far back the format can refer
constexpr qsizetype markSize = 16;          // room for the end marker of a piece
constexpr int memoryLevel = 8;              // the default of zlib

//! How thoroughly the highest level searches for matches when there are several pieces: 128 candidates
//! instead of 4,096. For a large project that takes 30 % of the time and 13 % more bytes.
struct Search
{
    int good = 8;
    int lazy = 16;
    int nice = 128;
    int places = 128;
};

const Bytef *bytesOf(QByteArrayView view)
{
    return reinterpret_cast<const Bytef *>(view.data());
}

struct Piece
{
    QByteArrayView before; //!< the end of the previous piece, to which this one may refer
    QByteArrayView bytes;
    bool isLast = false;
    bool isOnly = false;
    QByteArray deflated = {}; //!< ends on a byte boundary; empty if memory ran out
    uLong crc = 0;
};

void deflatePiece(Piece &piece, int level)
{
    z_stream stream{};
    if (deflateInit2(&stream, level, Z_DEFLATED, -MAX_WBITS, memoryLevel, Z_DEFAULT_STRATEGY) != Z_OK) {
        return;
    }
    if (level == Z_BEST_COMPRESSION && !piece.isOnly) {
        const auto [good, lazy, nice, places] = Search();
        deflateTune(&stream, good, lazy, nice, places);
    }
    if (!piece.before.isEmpty()) {
        deflateSetDictionary(&stream, bytesOf(piece.before), uInt(piece.before.size()));
    }
    const uLong room = deflateBound(&stream, uLong(piece.bytes.size())) + markSize;
    piece.deflated.resize(qsizetype(room));
    stream.next_in = bytesOf(piece.bytes);
    stream.avail_in = uInt(piece.bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(piece.deflated.data());
    stream.avail_out = uInt(room);
    const int result = deflate(&stream, piece.isLast ? Z_FINISH : Z_SYNC_FLUSH);
    const bool isDone = result == (piece.isLast ? Z_STREAM_END : Z_OK) && stream.avail_in == 0;
    piece.deflated.resize(isDone ? qsizetype(stream.total_out) : 0);
    piece.crc = crc32(0, bytesOf(piece.bytes), uInt(piece.bytes.size()));
    deflateEnd(&stream);
}

std::vector<Piece> piecesOf(QByteArrayView bytes)
{
    std::vector<Piece> pieces;
    qsizetype from = 0;
    do {
        const qsizetype size = std::min(pieceSize, bytes.size() - from);
        const qsizetype known = std::min(from, windowSize);
        pieces.push_back({bytes.sliced(from - known, known), bytes.sliced(from, size),
                          from + size == bytes.size(), size == bytes.size()});
        from += size;
    } while (from < bytes.size());
    return pieces;
}

} // namespace

DeflatedBytes::DeflatedBytes(const QByteArray &bytes, int level, const Progress *progress)
    : m_size(static_cast<quint64>(bytes.size()))
{
    std::vector<Piece> pieces = piecesOf(bytes);
    std::atomic<size_t> next = 0;
    const auto deflateSome = [&pieces, &next, level, progress] {
        for (size_t i = next++; i < pieces.size() && !(progress && progress->isCancelled()); i = next++) {
            deflatePiece(pieces[i], level);
        }
    };
    Processors::run(pieces.size(), deflateSome);
    for (const Piece &piece : pieces) {
        if (piece.deflated.isEmpty()) {
            m_deflated.clear();
            return;
        }
        m_deflated.append(piece.deflated);
        m_crc = quint32(crc32_combine(m_crc, piece.crc, z_off_t(piece.bytes.size())));
    }
}

} // namespace Halvane::Corvex::Common
