// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader and XmlText; not installed.
#pragma once

#include <QByteArrayView>

#include <array>

//! The characters of XML 1.0 (fifth edition), as code points and as UTF-8 bytes.
namespace Halvane::Corvex::Designer::XmlCharacters {

//! The possible uses of a byte below 0x80. The zero byte has none and ends every run.
enum Class : quint8 {
    Blank = 1,
    NameStart = 2,
    NameCharacter = 4,
    PlainText = 8,   //!< neither markup nor whitespace
    PlainValue = 16, //!< needs no escape in a quoted value, and is not a quote
};

constexpr std::array<quint8, 256> makeClasses()
{
    std::array<quint8, 256> classes{};
    for (const int blank : {' ', '\t', '\r', '\n'}) {
        classes[size_t(blank)] = Blank;
    }
    for (int byte = 0x20; byte < 0x80; ++byte) {
        const bool isLetter = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
        const bool isStart = isLetter || byte == '_' || byte == ':';
        const bool isPart = isStart || (byte >= '0' && byte <= '9') || byte == '-' || byte == '.';
        const bool isMarkup = byte == '<' || byte == '&';
        const bool isQuote = byte == '"' || byte == '\'';
        classes[size_t(byte)] =
            quint8(classes[size_t(byte)] | (isStart ? NameStart : 0) | (isPart ? NameCharacter : 0)
                   | (isMarkup || byte == ']' || byte == ' ' ? 0 : PlainText)
                   | (isMarkup || isQuote ? 0 : PlainValue));
    }
    return classes;
}

inline constexpr std::array<quint8, 256> classes = makeClasses();

inline bool is(char byte, Class kind)
{
    return (classes[static_cast<unsigned char>(byte)] & kind) != 0;
}
inline bool isAscii(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}

//! Results instead of the length of a character with several bytes.
enum Fault : int { NotUtf8 = 0, NoCharacter = -1, CutOff = -2 };
//! The number of bytes of the non-ASCII character at \a next; a Fault if XML allows none there.
int lengthOf(const char *next, const char *end);
//! The character that lengthOf() has accepted.
char32_t characterAt(const char *next);
bool isNameCharacter(char32_t character, bool isFirst);

inline constexpr char32_t noNumber = char32_t(-1);
//! Whether a reference may name the character.
bool isCharacter(char32_t character);
//! The character for "#65" or "#x41"; noNumber if it is not a number.
char32_t numberedCharacter(QByteArrayView reference);
//! The character for "lt", "gt", "amp", "apos" or "quot"; 0 for any other name.
char32_t namedCharacter(QByteArrayView name);

//! Writes the character in UTF-8 and returns the end.
char *putUtf8(char *out, char32_t character);

} // namespace Halvane::Corvex::Designer::XmlCharacters
