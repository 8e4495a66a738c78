// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVariant>

//! The form in which the device reads values: a QDataStream of version Qt_4_7, big-endian, of one QVariant.
namespace Halvane::Corvex::Common::VariantStream {

//! False for a value that the form cannot hold.
bool write(const QVariant &value, QByteArray &bytes);

//! Reads a value made of the types of the form alone, compressed by qCompress or not, to the last byte.
//! Counts and sizes in the bytes are believed only as far as there are bytes for them, and nothing is
//! unpacked beyond mostBytes.
QVariant read(const QByteArray &bytes, qint64 mostBytes, bool &ok);

} // namespace Halvane::Corvex::Common::VariantStream
