// SPDX-License-Identifier: MIT
#include "corvex/common/StringsFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    Halvane::Corvex::Common::StringsFile table;
    QString error;
    if (table.parse(bytes, &error) != error.isEmpty()) {
        qFatal("the result and the error disagree");
    }
    return 0;
}
