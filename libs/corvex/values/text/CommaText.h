// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QStringTokenizer>
#include <QStringView>

#include <array>

//! The comma form, "busy: true, offline: false", of records with a fixed set of fields. All fields are
//! required; they are read in any order.
namespace Halvane::Corvex::Designer::CommaText {

//! Reads a text that consists of exactly the fields \a keys, each once, into \a values. \a read reads one
//! value. After a failure the values are unspecified.
template<class Value, size_t Count>
bool readFields(QStringView text, const std::array<QLatin1StringView, Count> &keys,
                std::array<Value, Count> &values, Value (*read)(QStringView, bool *))
{
    std::array<bool, Count> seen{};
    size_t fieldCount = 0;
    for (QStringView part : qTokenize(text.trimmed(), u',')) {
        part = part.trimmed();
        const qsizetype colon = part.indexOf(u':');
        if (colon < 0 || part.indexOf(u':', colon + 1) >= 0) {
            return false;
        }
        size_t index = 0;
        while (index < Count && part.first(colon) != keys[index]) {
            ++index;
        }
        if (index == Count || seen[index]) {
            return false;
        }
        bool ok = false;
        values[index] = read(part.sliced(colon + 1).trimmed(), &ok);
        if (!ok) {
            return false;
        }
        seen[index] = true;
        ++fieldCount;
    }
    return fieldCount == Count;
}

} // namespace Halvane::Corvex::Designer::CommaText
