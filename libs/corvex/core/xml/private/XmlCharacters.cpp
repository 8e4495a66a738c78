// SPDX-License-Identifier: MIT
#include "corvex/core/xml/private/XmlCharacters.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

struct Range
{
    char32_t first;
    char32_t last;
};

constexpr Range startRanges[] = {
    {0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},
    {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},
    {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF},
};
constexpr Range furtherRanges[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template<size_t Count>
bool isIn(const Range (&ranges)[Count], char32_t character)
{
    return std::any_of(std::begin(ranges), std::end(ranges), [character](const Range &range) {
        return character >= range.first && character <= range.last;
    });
}

unsigned byteAt(const char *next)
{
    return static_cast<unsigned char>(*next);
}

} // namespace

int XmlCharacters::lengthOf(const char *next, const char *end)
{
    const unsigned lead = byteAt(next);
    const int length = lead < 0xC2 || lead > 0xF4 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    // Exclude overlong forms, surrogates and code points beyond Unicode.
    const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    for (int i = 1; i < length; ++i) {
        if (next + i == end) {
            return CutOff;
        }
        const unsigned byte = byteAt(next + i);
        if (byte < (i == 1 ? lowest : 0x80) || byte > (i == 1 ? highest : 0xBF)) {
            return NotUtf8;
        }
    }
    const bool isNone = lead == 0xEF && byteAt(next + 1) == 0xBF && byteAt(next + 2) >= 0xBE;
    return isNone ? int(NoCharacter) : length;
}

char32_t XmlCharacters::characterAt(const char *next)
{
    const unsigned lead = byteAt(next);
    const int length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t character = lead & (0xFFU >> (length + 1));
    for (int i = 1; i < length; ++i) {
        character = (character << 6) | (byteAt(next + i) & 0x3F);
    }
    return character;
}

bool XmlCharacters::isNameCharacter(char32_t character, bool isFirst)
{
    return isIn(startRanges, character) || (!isFirst && isIn(furtherRanges, character));
}

bool XmlCharacters::isCharacter(char32_t character)
{
    return character == '\t' || character == '\n' || character == '\r'
           || (character >= 0x20 && character < 0xD800) || (character >= 0xE000 && character < 0xFFFE)
           || (character >= 0x10000 && character <= 0x10FFFF);
}

char32_t XmlCharacters::numberedCharacter(QByteArrayView reference)
{
    const bool isHexadecimal = reference.startsWith("#x");
    const QByteArrayView digits = reference.sliced(isHexadecimal ? 2 : 1);
    constexpr char32_t beyond = 0x110000;
    char32_t number = 0;
    for (const char byte : digits) {
        const char lower = byte >= 'A' && byte <= 'F' ? char(byte + 0x20) : byte;
        const bool isLetter = isHexadecimal && lower >= 'a' && lower <= 'f';
        if (!isLetter && (byte < '0' || byte > '9')) {
            return noNumber;
        }
        const auto digit = char32_t(isLetter ? lower - 'a' + 10 : byte - '0');
        number = std::min<char32_t>(number * (isHexadecimal ? 16 : 10) + digit, beyond);
    }
    return digits.isEmpty() ? noNumber : number;
}

char32_t XmlCharacters::namedCharacter(QByteArrayView name)
{
    static constexpr struct
    {
        QByteArrayView name;
        char32_t character;
    } names[] = {{"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"apos", '\''}, {"quot", '"'}};
    const auto found = std::find_if(std::begin(names), std::end(names),
                                    [&](const auto &entry) { return entry.name == name; });
    return found == std::end(names) ? 0 : found->character;
}

char *XmlCharacters::putUtf8(char *out, char32_t character)
{
    if (character < 0x80) {
        *out++ = char(character);
        return out;
    }
    if (character < 0x800) {
        *out++ = char(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            *out++ = char(0xE0 | (character >> 12));
        } else {
            *out++ = char(0xF0 | (character >> 18));
            *out++ = char(0x80 | ((character >> 12) & 0x3F));
        }
        *out++ = char(0x80 | ((character >> 6) & 0x3F));
    }
    *out++ = char(0x80 | (character & 0x3F));
    return out;
}

} // namespace Halvane::Corvex::Designer
