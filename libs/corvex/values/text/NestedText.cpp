// SPDX-License-Identifier: MIT
#include "corvex/values/text/NestedText.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Halvane::Corvex::Designer {

namespace {

struct Escape
{
    QChar character;
    //! The length of the escape in the text; 0 if it is not an escape.
    qsizetype length = 0;
};

//! The byte of the "%XX" at \a index; -1 for any other text.
int escapedByte(QStringView text, qsizetype index)
{
    if (index + 3 > text.size() || text[index] != u'%') {
        return -1;
    }
    int byte = 0;
    for (const QChar c : text.sliced(index + 1, 2)) {
        const char16_t digit = c.unicode() | 0x20; // converts letters to lower case
        const bool isDecimal = c >= u'0' && c <= u'9';
        if (!isDecimal && (digit < u'a' || digit > u'f')) {
            return -1;
        }
        byte = byte * 16 + (isDecimal ? c.unicode() - u'0' : digit - u'a' + 10);
    }
    return byte;
}

bool isEscapable(QChar c)
{
    return c == u':' || c == u';' || c == u'|' || c == u'%' || c.isNull() || c.isSpace();
}

//! The escape that begins at \a index.
Escape escapeAt(QStringView text, qsizetype index)
{
    const int lead = escapedByte(text, index);
    if (lead < 0) {
        return {};
    }
    const qsizetype byteCount = lead < 0x80 ? 1 : lead >= 0xC2 && lead < 0xE0 ? 2 : lead >> 4 == 0xE ? 3 : 0;
    if (byteCount == 1) {
        return isEscapable(QChar(lead)) ? Escape{QChar(lead), 3} : Escape{};
    }
    QByteArray bytes(1, char(lead));
    for (qsizetype i = 1; i < byteCount; ++i) {
        const int byte = escapedByte(text, index + 3 * i);
        if (byte >> 6 != 2) {
            return {};
        }
        bytes.append(char(byte));
    }
    const QString decoded = QString::fromUtf8(bytes);
    return decoded.size() == 1 && isEscapable(decoded[0]) ? Escape{decoded[0], 3 * byteCount} : Escape{};
}

void appendEscaped(QString &text, QChar character)
{
    static constexpr std::string_view digits = "0123456789ABCDEF";
    const auto appendByte = [&](unsigned char byte) {
        const std::array<char, 3> form{'%', digits[byte >> 4], digits[byte & 0xF]};
        text.append(QLatin1StringView(form.data(), form.size()));
    };
    if (character.unicode() < 0x80) {
        appendByte(uchar(character.unicode()));
        return;
    }
    const QByteArray bytes = QString(character).toUtf8();
    for (const char byte : bytes) {
        appendByte(uchar(byte));
    }
}

//! Blanks that XML cannot store, not even as a character reference.
bool isUnstorable(QChar c)
{
    return c == u'\v' || c == u'\f';
}

bool isOuterBlank(QStringView text, qsizetype index)
{
    return (index == 0 || index == text.size() - 1) && text[index].isSpace();
}

//! Whether there is nothing to escape, as in almost all names.
bool isPlainName(QStringView text)
{
    return std::ranges::all_of(text, [](QChar character) {
        const char16_t c = character.unicode();
        const char16_t lower = c | 0x20;
        return (lower >= u'a' && lower <= u'z') || (c >= u'0' && c <= u'9') || c == u'_' || c == u'.';
    });
}

template<class IsSpecial>
QString escaped(const QString &text, IsSpecial &&isSpecial)
{
    if (isPlainName(text)) {
        return text;
    }
    QString result;
    qsizetype copied = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool looksEscaped = text[i] == u'%' && escapeAt(text, i).length > 0;
        if (!looksEscaped && !isOuterBlank(text, i) && !isUnstorable(text[i]) && !isSpecial(i)) {
            continue;
        }
        result.append(QStringView(text).sliced(copied, i - copied));
        appendEscaped(result, text[i]);
        copied = i + 1;
    }
    return copied == 0 ? text : result.append(QStringView(text).sliced(copied));
}

} // namespace

QString NestedText::toField(const QString &text)
{
    return escaped(text, [&](qsizetype i) { return text[i] == u':' || text[i] == u';' || text[i] == u'|'; });
}

QString NestedText::toItem(const QString &text)
{
    return escaped(text, [&](qsizetype i) { return isItemSeparator(text, i); });
}

QString NestedText::fromField(QStringView field)
{
    if (!field.contains(u'%')) {
        return field.toString();
    }
    QString text;
    text.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        const Escape escape = field[i] == u'%' ? escapeAt(field, i) : Escape();
        if (escape.length == 0) {
            text.append(field[i]);
            continue;
        }
        if (!escape.character.isNull()) {
            text.append(escape.character);
        }
        i += escape.length - 1;
    }
    return text;
}

bool NestedText::isItemSeparator(QStringView text, qsizetype index)
{
    return text[index] == u'|' && (index == 0 || text[index - 1].isSpace())
           && (index == text.size() - 1 || text[index + 1].isSpace());
}

} // namespace Halvane::Corvex::Designer
