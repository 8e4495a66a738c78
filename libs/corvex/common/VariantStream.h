// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QDataStream>
#include <QVariant>

//! The binary form of values on the device: one QVariant in a QDataStream of version Qt_4_7, big-endian.
namespace Halvane::Corvex::Common::VariantStream {

//! Returns false if the form does not support the value.
CORVEX_COMMON_EXPORT bool write(const QVariant &value, QByteArray &bytes);

//! Writes a map entry by entry, with the same bytes as write() but without holding the map in memory. Keys
//! may come in any order, each once, and each map must get as many entries as announced.
class CORVEX_COMMON_EXPORT MapWriter
{
public:
    MapWriter(QByteArray *bytes, qsizetype count);

    //! Begins an entry that is itself a map. Its entries follow.
    void beginMap(const QString &key, qsizetype count);
    void add(const QString &key, const QVariant &value);
    //! Adds entries made by encoded(), for entries that occur many times.
    void addEncoded(const QByteArray &entries);
    //! The bytes of an entry.
    static QByteArray encoded(const QString &key, const QVariant &value);

    //! False if the form did not support one of the values.
    bool isGood() const { return m_isGood; }

private:
    void writeMapStart(qsizetype count);

    QDataStream m_stream;
    bool m_isGood = true;
};

//! Reads one value that consists of supported types, compressed or not; all bytes must be used. Counts and
//! sizes are checked against the available bytes, and nothing is unpacked beyond mostBytes.
CORVEX_COMMON_EXPORT QVariant read(const QByteArray &bytes, qint64 mostBytes, bool &ok);

} // namespace Halvane::Corvex::Common::VariantStream
