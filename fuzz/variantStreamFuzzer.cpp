// SPDX-License-Identifier: MIT
#include "corvex/common/VariantStream.h"

//! Everything that can be read must be written and read back as the same bytes.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace Halvane::Corvex::Common;
    constexpr qint64 mostBytes = 1 << 20;
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    bool ok = false;
    const QVariant value = VariantStream::read(bytes, mostBytes, ok);
    QByteArray first;
    QByteArray second;
    if (ok
        && (!VariantStream::write(value, first)
            || !VariantStream::write(VariantStream::read(first, mostBytes * 16, ok), second)
            || first != second)) {
        qFatal("a value does not read back");
    }
    return 0;
}
