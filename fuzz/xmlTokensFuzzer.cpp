// SPDX-License-Identifier: MIT
#include "FuzzSupport.h"
#include "core/XmlTexts.h"

#include <QBuffer>

#include <algorithm>

using namespace Halvane::Corvex::Designer;

//! Everything that the tokenizer accepts must be accepted by another reader, with the same tags and texts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray xml(reinterpret_cast<const char *>(data), qsizetype(size));
    QBuffer buffer(&xml);
    const QByteArray found = XmlTexts::readByTokenizer(buffer);
    // The other reader implements the names of an older edition, with colons as separators.
    const bool hasPlainNames = std::all_of(
        xml.begin(), xml.end(), [](char c) { return static_cast<signed char>(c) > 0 && c != ':'; });
    if (!found.startsWith('!') && hasPlainNames) {
        Fuzz::require(found == XmlTexts::readByQt(xml), "another reader finds something else",
                      QString::fromUtf8(xml));
    }
    return 0;
}
