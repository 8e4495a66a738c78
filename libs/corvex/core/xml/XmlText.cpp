// SPDX-License-Identifier: MIT
#include "corvex/core/xml/XmlText.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/xml/XmlLimits.h"
#include "corvex/core/xml/private/XmlCharacters.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::XmlText {

namespace {

//! Replaces characters that XML cannot store, so that a bad character never makes the whole file unreadable.
constexpr char replacement[] = "\xEF\xBF\xBD";

//! The escape of an ASCII character in an attribute; null if it needs none.
constexpr std::array<const char *, 128> makeEscapes()
{
    std::array<const char *, 128> escapes{};
    for (size_t control = 0; control < 0x20; ++control) {
        escapes[control] = replacement;
    }
    escapes['&'] = "&amp;";
    escapes['<'] = "&lt;";
    escapes['>'] = "&gt;";
    escapes['"'] = "&quot;";
    escapes['\t'] = "&#x9;";
    escapes['\n'] = "&#xA;";
    escapes['\r'] = "&#xD;";
    return escapes;
}

constexpr std::array<const char *, 128> escapes = makeEscapes();

char *appendEscape(char *out, const char *escape)
{
    while (*escape) {
        *out++ = *escape++;
    }
    return out;
}

} // namespace

qsizetype indexOfUnstorable(QStringView text)
{
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t unit = text[i].unicode();
        if (unit >= 0x20 && unit < 0xD800) {
            continue;
        }
        if (QChar::isHighSurrogate(unit) && i + 1 < size && text[i + 1].isLowSurrogate()) {
            ++i;
            continue;
        }
        const bool isBlank = unit == u'\t' || unit == u'\n' || unit == u'\r';
        if (!isBlank && (unit < 0x20 || QChar::isSurrogate(unit) || unit >= 0xFFFE)) {
            return i;
        }
    }
    return -1;
}

QString storageProblem(const QString &value)
{
    using Common::LocalizationHelper;
    const bool mayBeLong = value.size() > XmlLimits::longestValue / longestPerUnit;
    if (mayBeLong && attributeSize(value) > XmlLimits::longestValue) {
        return LocalizationHelper::coreString(
            u"The value is longer than 16 MB in a file. Please shorten it."_s);
    }
    const qsizetype position = indexOfUnstorable(value);
    if (position < 0) {
        return {};
    }
    return LocalizationHelper::coreString(
               u"The character U+%1 at position %2 cannot be stored. Please remove it."_s)
        .arg(QString::number(value.at(position).unicode(), 16).toUpper().rightJustified(4, u'0'),
             QString::number(position + 1));
}

char *putAttribute(char *out, QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit < 0x80) {
            if (const char *escape = escapes[unit]) {
                out = appendEscape(out, escape);
            } else {
                *out++ = char(unit);
            }
        } else if (QChar::isHighSurrogate(unit) && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            out = XmlCharacters::putUtf8(out, QChar::surrogateToUcs4(unit, text[++i].unicode()));
        } else {
            const bool isUnstorable = QChar::isSurrogate(unit) || unit >= 0xFFFE;
            out = isUnstorable ? appendEscape(out, replacement) : XmlCharacters::putUtf8(out, unit);
        }
    }
    return out;
}

qsizetype attributeSize(QStringView text)
{
    std::array<char, 256 * longestPerUnit> piece;
    qsizetype size = 0;
    while (!text.isEmpty()) {
        qsizetype count = std::min<qsizetype>(text.size(), 256);
        // Do not separate the two halves of a character.
        if (count < text.size() && text[count - 1].isHighSurrogate()) {
            --count;
        }
        size += putAttribute(piece.data(), text.first(count)) - piece.data();
        text = text.sliced(count);
    }
    return size;
}

void appendAttribute(QByteArray &bytes, QByteArrayView utf8)
{
    for (const char byte : utf8) {
        const auto unit = static_cast<unsigned char>(byte);
        if (unit < 0x80 && escapes[unit]) {
            bytes.append(escapes[unit]);
        } else {
            bytes.append(byte);
        }
    }
}

} // namespace Halvane::Corvex::Designer::XmlText
