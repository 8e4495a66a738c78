// SPDX-License-Identifier: MIT
#include "corvex/common/VariantStream.h"

#include <QColor>
#include <QDataStream>
#include <QDateTime>
#include <QIODevice>
#include <QRect>
#include <QSize>

#include <array>
#include <zlib.h>

namespace Halvane::Corvex::Common::VariantStream {

namespace {

constexpr int deepestNesting = 64;

//! The type numbers of containers in the stream.
enum ContainerType : quint32 { Map = 8, List = 9, StringList = 11, Hash = 28 };

template<typename T>
QVariant readLeaf(QDataStream &stream)
{
    T value{};
    stream >> value;
    return QVariant::fromValue(value);
}

QVariant readNothing(QDataStream &stream)
{
    // The stream writes an empty text after an invalid value.
    QString nothing;
    stream >> nothing;
    return {};
}

struct LeafType
{
    quint32 number;
    QMetaType::Type type;
    QVariant (*read)(QDataStream &stream);
};

constexpr auto leafTypes = std::to_array<LeafType>({
    {0, QMetaType::UnknownType, readNothing},
    {1, QMetaType::Bool, readLeaf<bool>},
    {2, QMetaType::Int, readLeaf<int>},
    {3, QMetaType::UInt, readLeaf<uint>},
    {4, QMetaType::LongLong, readLeaf<qlonglong>},
    {5, QMetaType::ULongLong, readLeaf<qulonglong>},
    {6, QMetaType::Double, readLeaf<double>},
    {10, QMetaType::QString, readLeaf<QString>},
    {12, QMetaType::QByteArray, readLeaf<QByteArray>},
    {14, QMetaType::QDate, readLeaf<QDate>},
    {15, QMetaType::QTime, readLeaf<QTime>},
    {16, QMetaType::QDateTime, readLeaf<QDateTime>},
    {19, QMetaType::QRect, readLeaf<QRect>},
    {20, QMetaType::QRectF, readLeaf<QRectF>},
    {21, QMetaType::QSize, readLeaf<QSize>},
    {22, QMetaType::QSizeF, readLeaf<QSizeF>},
    {25, QMetaType::QPoint, readLeaf<QPoint>},
    {26, QMetaType::QPointF, readLeaf<QPointF>},
    {67, QMetaType::QColor, readLeaf<QColor>},
    {135, QMetaType::Float, readLeaf<float>},
});

class Reader
{
public:
    explicit Reader(QDataStream &stream)
        : m_stream(stream)
    { }

    QVariant readValue(int depth)
    {
        quint32 type = 0;
        qint8 isNull = 0;
        m_stream >> type >> isNull;
        switch (type) {
        case Map:
            return readMap<QVariantMap>(depth + 1);
        case Hash:
            return readMap<QVariantHash>(depth + 1);
        case List:
            return readList(depth + 1);
        case StringList:
            return readStrings();
        default:
            break;
        }
        const auto leaf = std::find_if(leafTypes.begin(), leafTypes.end(), [type](const LeafType &candidate) {
            return candidate.number == type;
        });
        if (leaf != leafTypes.end() && m_stream.status() == QDataStream::Ok) {
            return leaf->read(m_stream);
        }
        m_stream.setStatus(QDataStream::ReadCorruptData);
        return {};
    }

private:
    //! Reads a count. If the remaining bytes cannot hold as many entries, marks the stream as corrupt.
    quint32 readCount(qint64 leastBytesOfOne)
    {
        quint32 count = 0;
        m_stream >> count;
        if (m_stream.status() == QDataStream::Ok
            && count <= m_stream.device()->bytesAvailable() / leastBytesOfOne) {
            return count;
        }
        m_stream.setStatus(QDataStream::ReadCorruptData);
        return 0;
    }

    bool isGood() const { return m_stream.status() == QDataStream::Ok; }

    quint32 readCountOfValues(int depth, qint64 leastBytesOfOne)
    {
        if (depth > deepestNesting) {
            m_stream.setStatus(QDataStream::ReadCorruptData);
        }
        return readCount(leastBytesOfOne);
    }

    template<typename Container>
    QVariant readMap(int depth)
    {
        Container map;
        for (quint32 left = readCountOfValues(depth, 9); left > 0 && isGood(); --left) {
            QString key;
            m_stream >> key;
            map.insert(key, readValue(depth));
        }
        return map;
    }

    QVariant readList(int depth)
    {
        QVariantList list;
        for (quint32 left = readCountOfValues(depth, 5); left > 0 && isGood(); --left) {
            list.append(readValue(depth));
        }
        return list;
    }

    QVariant readStrings()
    {
        QStringList strings;
        for (quint32 left = readCount(4); left > 0 && isGood(); --left) {
            QString string;
            m_stream >> string;
            strings.append(string);
        }
        return strings;
    }

    QDataStream &m_stream;
};

void setForm(QDataStream &stream)
{
    stream.setVersion(QDataStream::Qt_4_7);
    stream.setByteOrder(QDataStream::BigEndian);
}

//! After its four bytes of size, a compressed file has the first byte of the zlib format; a plain file has 0
//! or 1 there.
bool isCompressed(const QByteArray &bytes)
{
    return bytes.size() > 4 && bytes.at(4) == 0x78;
}

//! Unpacks the output of qCompress. Unlike qUncompress it never grows beyond mostBytes, whatever size the
//! bytes claim.
QByteArray uncompressed(const QByteArray &bytes, qint64 mostBytes, bool &ok)
{
    ok = false;
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK) {
        return {};
    }
    QByteArray packed = bytes.sliced(4);
    stream.next_in = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_in = static_cast<uInt>(packed.size());
    QByteArray result;
    QByteArray block(1 << 16, Qt::Uninitialized);
    int status = Z_OK;
    while (status == Z_OK && result.size() <= mostBytes) {
        stream.next_out = reinterpret_cast<Bytef *>(block.data());
        stream.avail_out = static_cast<uInt>(block.size());
        status = inflate(&stream, Z_NO_FLUSH);
        result.append(block.constData(), block.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    ok = status == Z_STREAM_END && result.size() <= mostBytes;
    return result;
}

bool canHold(const QVariant &value)
{
    const auto all = [](const auto &values) { return std::all_of(values.begin(), values.end(), canHold); };
    switch (value.typeId()) {
    case QMetaType::QVariantMap:
        return all(value.toMap());
    case QMetaType::QVariantHash:
        return all(value.toHash());
    case QMetaType::QVariantList:
        return all(value.toList());
    case QMetaType::QStringList:
        return true;
    default:
        return std::any_of(leafTypes.begin(), leafTypes.end(),
                           [&value](const LeafType &leaf) { return leaf.type == value.typeId(); });
    }
}

} // namespace

bool write(const QVariant &value, QByteArray &bytes)
{
    if (!canHold(value)) {
        return false;
    }
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    setForm(stream);
    stream << value;
    return stream.status() == QDataStream::Ok;
}

MapWriter::MapWriter(QByteArray *bytes, qsizetype count)
    : m_stream(bytes, QIODevice::WriteOnly)
{
    setForm(m_stream);
    writeMapStart(count);
}

void MapWriter::writeMapStart(qsizetype count)
{
    m_stream << quint32(Map) << qint8(0) << quint32(count);
}

void MapWriter::beginMap(const QString &key, qsizetype count)
{
    m_stream << key;
    writeMapStart(count);
}

void MapWriter::add(const QString &key, const QVariant &value)
{
    m_isGood = m_isGood && canHold(value);
    if (m_isGood) {
        m_stream << key << value;
    }
}

void MapWriter::addEncoded(const QByteArray &entries)
{
    m_stream.writeRawData(entries.constData(), int(entries.size()));
}

QByteArray MapWriter::encoded(const QString &key, const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    setForm(stream);
    stream << key << value;
    return bytes;
}

QVariant read(const QByteArray &bytes, qint64 mostBytes, bool &ok)
{
    if (isCompressed(bytes)) {
        const QByteArray plain = uncompressed(bytes, mostBytes, ok);
        ok = ok && !isCompressed(plain);
        return ok ? read(plain, mostBytes, ok) : QVariant();
    }
    QDataStream stream(bytes);
    setForm(stream);
    const QVariant value = Reader(stream).readValue(0);
    ok = stream.status() == QDataStream::Ok && stream.atEnd();
    return ok ? value : QVariant();
}

} // namespace Halvane::Corvex::Common::VariantStream
