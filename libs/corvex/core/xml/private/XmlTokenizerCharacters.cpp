// SPDX-License-Identifier: MIT
// The parts of elements: names, references, whitespace and other characters.
#include "corvex/core/xml/private/XmlCharacters.h"
#include "corvex/core/xml/private/XmlTokenizer.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using namespace XmlCharacters;

namespace {

char32_t toCharacter(QByteArrayView reference)
{
    return reference.startsWith('#') ? numberedCharacter(reference) : namedCharacter(reference);
}

} // namespace

XmlTokenizer::Outcome XmlTokenizer::takeName(QByteArrayView *name)
{
    const char *begin = m_next;
    if (isAscii(*m_next) && !is(*m_next, NameStart)) {
        return unexpected();
    }
    while (true) {
        while (is(*m_next, NameCharacter)) {
            ++m_next;
        }
        if (isAscii(*m_next)) {
            break;
        }
        const char *character = m_next;
        if (const Outcome outcome = takeOther(); outcome != Outcome::Done) {
            return outcome;
        }
        if (!isNameCharacter(characterAt(character), character == begin)) {
            return misplaced(character);
        }
    }
    *name = between(begin, m_next);
    // At the end of the bytes the name may continue.
    return m_next == m_end ? Outcome::Incomplete : Outcome::Done;
}

XmlTokenizer::Outcome XmlTokenizer::takeOther()
{
    if (isAscii(*m_next)) {
        return unexpected();
    }
    const int length = lengthOf(m_next, m_end);
    if (length > 0) {
        m_next += length;
        m_position.hidden += quint32(length - 1);
        return Outcome::Done;
    }
    if (length == CutOff && !m_isLast) {
        return Outcome::Incomplete;
    }
    if (length == NoCharacter) {
        return misplaced(m_next);
    }
    m_tokenPlace = placeInToken(m_next);
    return fail(u"The bytes here are not UTF-8, the only supported encoding."_s);
}

XmlTokenizer::Outcome XmlTokenizer::takeReference()
{
    const char *begin = m_next;
    constexpr qsizetype longest = 4096;
    const char *end = m_next + 1;
    while (is(*end, NameCharacter) || *end == '#' || static_cast<unsigned char>(*end) >= 0x80) {
        ++end;
    }
    if (*end != ';' || end - begin > longest) {
        m_next = end;
        return unexpected();
    }
    const QByteArrayView name = between(begin + 1, end);
    m_next = end + 1;
    const char32_t character = toCharacter(name);
    if (isCharacter(character)) {
        return Outcome::Done;
    }
    const bool isWord =
        name.startsWith('#') ? character != noNumber : !name.isEmpty() && is(name.front(), NameStart);
    return !isWord                ? misplaced(begin + 1)
           : name.startsWith('#') ? malformed("this is not a valid character reference"_L1, begin)
                                  : malformed("this entity is not defined"_L1, begin);
}

//! Moves past the next \a end. The contents before it must be valid characters.
XmlTokenizer::Outcome XmlTokenizer::takeUntil(QByteArrayView end, QByteArrayView *content)
{
    const char *begin = m_next;
    while (!between(m_next, m_end).startsWith(end)) {
        if (is(*m_next, Blank)) {
            takeBlank();
        } else if (static_cast<unsigned char>(*m_next) < 0x20 || !isAscii(*m_next)) {
            if (const Outcome outcome = takeOther(); outcome != Outcome::Done) {
                return outcome;
            }
        } else {
            ++m_next;
        }
    }
    *content = between(begin, m_next);
    m_next += end.size();
    return Outcome::Done;
}

//! Takes one whitespace character, which may be a line ending.
void XmlTokenizer::takeBlank()
{
    const char blank = *m_next++;
    if (blank == '\n' || (blank == '\r' && *m_next != '\n')) {
        ++m_position.line;
        m_position.lineStart = m_next;
        m_position.columnBefore = 0;
        m_position.hidden = 0;
    }
}

void XmlTokenizer::skipBlanks()
{
    while (is(*m_next, Blank)) {
        takeBlank();
    }
}

//! Decodes in place; the output is never longer than the input.
QByteArrayView XmlTokenizer::decoded(QByteArrayView raw, Content content)
{
    const auto isSpecial = [content](char c) {
        return c == '\r' || (c == '&' && content != Content::CharacterData)
               || ((c == '\n' || c == '\t') && content == Content::Value);
    };
    const char *next = std::find_if(raw.begin(), raw.end(), isSpecial);
    char *out = const_cast<char *>(next);
    while (next != raw.end()) {
        if (!isSpecial(*next)) {
            *out++ = *next++;
        } else if (*next == '&') {
            const char *end = std::find(next, raw.end(), ';');
            out = putUtf8(out, toCharacter(between(next + 1, end)));
            next = end + 1;
        } else {
            next += between(next, raw.end()).startsWith("\r\n") ? 2 : 1;
            *out++ = content == Content::Value ? ' ' : '\n';
        }
    }
    return between(raw.data(), out);
}

} // namespace Halvane::Corvex::Designer
