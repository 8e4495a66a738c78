// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QDataStream>
#include <QVariant>

//! The form in which the device reads values: a QDataStream of version Qt_4_7, big-endian, of one QVariant.
namespace Halvane::Corvex::Common::VariantStream {

//! False for a value that the form cannot hold.
CORVEX_COMMON_EXPORT bool write(const QVariant &value, QByteArray &bytes);

/*! Writes a map entry by entry, as write() writes the whole, without holding it. Keys come in any order, each
    once, and each map gets as many entries as it was begun with. */
class CORVEX_COMMON_EXPORT MapWriter
{
public:
    MapWriter(QByteArray *bytes, qsizetype count);

    //! An entry that is a map itself, whose own entries come next.
    void beginMap(const QString &key, qsizetype count);
    void add(const QString &key, const QVariant &value);
    //! Entries that encoded() gave, for those that come again and again.
    void addEncoded(const QByteArray &entries);
    //! The bytes of an entry.
    static QByteArray encoded(const QString &key, const QVariant &value);

    //! False when a value was none that the form can hold.
    bool isGood() const { return m_isGood; }

private:
    void writeMapStart(qsizetype count);

    QDataStream m_stream;
    bool m_isGood = true;
};

//! Reads a value made of the types of the form alone, compressed by qCompress or not, to the last byte.
//! Counts and sizes in the bytes are believed only as far as there are bytes for them, and nothing is
//! unpacked beyond mostBytes.
CORVEX_COMMON_EXPORT QVariant read(const QByteArray &bytes, qint64 mostBytes, bool &ok);

} // namespace Halvane::Corvex::Common::VariantStream
