// SPDX-License-Identifier: MIT
#include "corvex/core/xml/private/XmlTokenizer.h"

#include "corvex/core/xml/XmlLimits.h"
#include "corvex/core/xml/private/XmlCharacters.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using namespace XmlCharacters;

//! Whether the first two bytes cannot begin a UTF-8 text but begin UTF-16 texts, with or without a byte order
//! mark.
bool beginsAsUtf16(QByteArrayView bytes)
{
    return bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE")
           || (bytes.size() > 1 && (bytes[0] == '\0') != (bytes[1] == '\0'));
}

} // namespace

bool XmlTokenizer::read(XmlTokens *tokens)
{
    m_tokens = tokens;
    tokens->tokens.clear();
    tokens->attributes.clear();
    tokens->error.clear();
    tokens->errorPlace = {};
    tokens->bytes.assign(m_rest.begin(), m_rest.end());
    m_rest.clear();
    // A token may need several chunks.
    while (fill(tokens)) {
        Outcome outcome = Outcome::Done;
        while (outcome == Outcome::Done && m_next < m_end) {
            const Position before = m_position;
            const size_t attributeCount = tokens->attributes.size();
            m_token = m_next;
            outcome = takeToken();
            if (outcome == Outcome::Done) {
                m_isDeclarationPossible = false;
            } else if (outcome == Outcome::Incomplete) {
                m_next = m_token;
                m_position = before;
                tokens->attributes.resize(attributeCount);
            }
        }
        if (outcome == Outcome::Failed) {
            return false;
        }
        if (m_isLast) {
            finish();
            return false;
        }
        if (m_end - m_next > XmlLimits::longestValue + chunkSize) {
            m_token = m_next;
            fail(u"A value is longer than 16 MB."_s);
            return false;
        }
        keepRest();
        if (!tokens->tokens.empty()) {
            return true;
        }
        tokens->bytes.swap(m_rest);
        m_rest.clear();
    }
    return false;
}

//! Reads at least enough bytes to detect the encoding at the start.
qint64 XmlTokenizer::readBytes(char *bytes, qint64 wanted)
{
    constexpr qint64 few = 4;
    qint64 size = m_device->read(bytes, wanted);
    for (qint64 more = size; !m_isBegun && more > 0 && size < few;) {
        more = m_device->read(bytes + size, wanted - size);
        size += std::max<qint64>(more, 0);
    }
    return size;
}

//! Doubles the available bytes, so that a long token is scanned only a few times.
bool XmlTokenizer::fill(XmlTokens *tokens)
{
    const auto held = qsizetype(tokens->bytes.size());
    constexpr qint64 least = 64;
    const qint64 there = m_device->isSequential() ? chunkSize : m_device->bytesAvailable();
    const qsizetype wanted = std::max(std::clamp(there, least, qint64(chunkSize)), qint64(held));
    tokens->bytes.resize(size_t(held + wanted + 1));
    const qint64 size = readBytes(tokens->bytes.data() + held, wanted);
    m_next = tokens->bytes.data();
    m_end = m_next + held + std::max<qint64>(size, 0);
    tokens->bytes.resize(size_t(m_end - m_next) + 1);
    tokens->bytes.back() = '\0';
    m_position.lineStart = m_next;
    m_token = m_next;
    if (!std::exchange(m_isBegun, true)) {
        if (beginsAsUtf16(between(m_next, std::min(m_next + 2, m_end)))) {
            fail(u"The text is UTF-16; only UTF-8 is supported."_s);
            return false;
        }
        if (between(m_next, m_end).startsWith("\xEF\xBB\xBF")) {
            m_next += 3;
            m_position.lineStart = m_next;
        }
    }
    if (size < 0) {
        fail(u"The source cannot be read: %1"_s.arg(m_device->errorString()));
        return false;
    }
    m_isLast = size == 0;
    // The next chunk shows whether it is the first half of a line ending.
    m_isReturnHeld = !m_isLast && m_end > m_next && m_end[-1] == '\r';
    if (m_isReturnHeld) {
        --m_end;
        tokens->bytes[size_t(m_end - tokens->bytes.data())] = '\0';
    }
    return true;
}

void XmlTokenizer::keepRest()
{
    m_rest.assign(m_next, m_end);
    if (m_isReturnHeld) {
        m_rest.push_back('\r');
    }
    m_position.columnBefore = placeOfNext().column - 1;
    m_position.hidden = 0;
}

XmlTokenizer::Outcome XmlTokenizer::takeToken()
{
    m_tokenPlace = placeOfNext();
    if (*m_next != '<') {
        return takeText();
    }
    switch (m_next[1]) {
    case '/':
        return takeEndTag();
    case '!':
        return takeMarkup();
    case '?':
        return takeInstruction();
    default:
        return takeStartTag();
    }
}

XmlTokenizer::Outcome XmlTokenizer::takeText()
{
    skipBlanks();
    const bool isInside = !m_nameStarts.empty();
    if (m_next == m_end || *m_next == '<') {
        if (isInside && m_hasText) {
            add(XmlTokens::Text, decoded(between(m_token, m_next), Content::Text));
        }
        return Outcome::Done;
    }
    if (!isInside) {
        m_tokenPlace = placeInToken(m_next);
        m_token = m_next;
        return m_hasRoot ? malformed("something follows the end of the root element"_L1, m_next)
                         : fail(u"This is not XML."_s);
    }
    const XmlPlace firstWord = placeOfNext();
    // The text before an incomplete character is a piece of its own.
    Outcome outcome = Outcome::Done;
    const char *last = m_next;
    while (outcome == Outcome::Done && m_next < m_end && *m_next != '<') {
        last = m_next;
        outcome = takeTextCharacter();
    }
    if (outcome == Outcome::Incomplete) {
        m_next = last;
    }
    if (outcome == Outcome::Failed || m_next == m_token) {
        return outcome;
    }
    m_hasText = true;
    m_tokenPlace = firstWord;
    add(XmlTokens::Text, decoded(between(m_token, m_next), Content::Text));
    return Outcome::Done;
}

XmlTokenizer::Outcome XmlTokenizer::takeTextCharacter()
{
    if (is(*m_next, PlainText)) {
        ++m_next;
        return Outcome::Done;
    }
    if (is(*m_next, Blank)) {
        takeBlank();
        return Outcome::Done;
    }
    if (*m_next == '&') {
        return takeReference();
    }
    if (*m_next != ']') {
        return takeOther();
    }
    const QByteArrayView rest = between(m_next, std::min(m_next + 3, m_end));
    if (rest == "]]>") {
        return misplaced(m_next + 2);
    }
    if (QByteArrayView("]]>").startsWith(rest) && !m_isLast) {
        return Outcome::Incomplete;
    }
    ++m_next;
    return Outcome::Done;
}

XmlTokenizer::Outcome XmlTokenizer::takeStartTag()
{
    ++m_next;
    QByteArrayView name;
    if (const Outcome outcome = takeName(&name); outcome != Outcome::Done) {
        return outcome;
    }
    const auto first = quint32(m_tokens->attributes.size());
    while (true) {
        const bool isApart = is(*m_next, Blank);
        if (isApart) {
            skipBlanks();
        }
        if (*m_next == '>' || *m_next == '/') {
            break;
        }
        if (!isApart) {
            return unexpected();
        }
        if (const Outcome outcome = takeAttribute(); outcome != Outcome::Done) {
            return outcome;
        }
    }
    const bool isEmpty = *m_next == '/';
    if (isEmpty && *++m_next != '>') {
        return unexpected();
    }
    ++m_next;
    if (const Outcome outcome = checkAttributes(first); outcome != Outcome::Done) {
        return outcome;
    }
    if (m_nameStarts.empty() && m_hasRoot) {
        return malformed("something follows the end of the root element"_L1, m_token);
    }
    m_hasRoot = true;
    m_hasText = false;
    if (!isEmpty) {
        m_nameStarts.push_back(m_names.size());
        m_names.insert(m_names.end(), name.begin(), name.end());
    }
    add(isEmpty ? XmlTokens::EmptyElement : XmlTokens::Start, name, first);
    return Outcome::Done;
}

XmlTokenizer::Outcome XmlTokenizer::takeAttribute()
{
    QByteArrayView name;
    if (const Outcome outcome = takeName(&name); outcome != Outcome::Done) {
        return outcome;
    }
    skipBlanks();
    if (*m_next != '=') {
        return unexpected();
    }
    ++m_next;
    skipBlanks();
    const char quote = *m_next;
    if (quote != '"' && quote != '\'') {
        return unexpected();
    }
    const char *begin = ++m_next;
    while (true) {
        while (is(*m_next, PlainValue)) {
            ++m_next;
        }
        if (*m_next == quote) {
            break;
        }
        Outcome outcome = Outcome::Done;
        if (*m_next == '"' || *m_next == '\'') {
            ++m_next;
        } else if (*m_next == '&') {
            outcome = takeReference();
        } else if (is(*m_next, Blank)) {
            skipBlanks();
        } else {
            outcome = takeOther();
        }
        if (outcome != Outcome::Done) {
            return outcome;
        }
    }
    if (m_next - begin > XmlLimits::longestValue) {
        return fail(u"A value is longer than 16 MB."_s);
    }
    m_tokens->attributes.push_back({name, between(begin, m_next)});
    ++m_next;
    return Outcome::Done;
}

XmlTokenizer::Outcome XmlTokenizer::checkAttributes(quint32 first)
{
    const std::span attributes = std::span(m_tokens->attributes).subspan(first);
    constexpr size_t few = 8;
    std::vector<QByteArrayView> sorted;
    for (size_t i = 0; i < attributes.size(); ++i) {
        if (attributes.size() > few) {
            sorted.push_back(attributes[i].name);
        }
        for (size_t j = 0; j < i && attributes.size() <= few; ++j) {
            if (attributes[i].name == attributes[j].name) {
                return malformed("an attribute is repeated"_L1, attributes[i].name.data());
            }
        }
    }
    std::sort(sorted.begin(), sorted.end());
    if (const auto twice = std::adjacent_find(sorted.begin(), sorted.end()); twice != sorted.end()) {
        return malformed("an attribute is repeated"_L1, std::max(twice[0].data(), twice[1].data()));
    }
    for (XmlAttribute &attribute : attributes) {
        attribute.value = decoded(attribute.value, Content::Value);
    }
    return Outcome::Done;
}

XmlTokenizer::Outcome XmlTokenizer::takeEndTag()
{
    m_next += 2;
    if (m_nameStarts.empty()) {
        --m_next;
        return unexpected();
    }
    QByteArrayView name;
    if (const Outcome outcome = takeName(&name); outcome != Outcome::Done) {
        return outcome;
    }
    skipBlanks();
    if (*m_next != '>') {
        return unexpected();
    }
    const size_t start = m_nameStarts.back();
    if (name != QByteArrayView(m_names.data() + start, qsizetype(m_names.size() - start))) {
        return malformed("the end tag does not match the start tag"_L1, name.data());
    }
    ++m_next;
    m_names.resize(start);
    m_nameStarts.pop_back();
    m_hasText = false;
    add(XmlTokens::End, name);
    return Outcome::Done;
}

XmlTokenizer::Outcome XmlTokenizer::finish()
{
    const bool isComplete = m_hasRoot && m_nameStarts.empty() && m_next == m_end;
    if (!isComplete) {
        m_tokenPlace = placeOfNext();
        return fail(u"The text ends before its root element does; it is empty or was cut off."_s);
    }
    return Outcome::Done;
}

void XmlTokenizer::add(XmlTokens::Kind kind, QByteArrayView text, quint32 firstAttribute)
{
    const bool isStart = kind == XmlTokens::Start || kind == XmlTokens::EmptyElement;
    const auto count = isStart ? quint32(m_tokens->attributes.size()) - firstAttribute : 0;
    m_tokens->tokens.push_back(
        {kind, count, m_tokenPlace, text.data(), quint32(text.size()), firstAttribute});
}

XmlPlace XmlTokenizer::placeOfNext() const
{
    const auto bytes = quint32(m_next - m_position.lineStart);
    return {m_position.line, m_position.columnBefore + bytes - m_position.hidden + 1};
}

XmlPlace XmlTokenizer::placeInToken(const char *at) const
{
    XmlPlace place = m_tokenPlace;
    for (const char *next = m_token; next < at; ++next) {
        const bool isLineEnd = *next == '\n' || (*next == '\r' && next[1] != '\n');
        const bool isColumn = (static_cast<unsigned char>(*next) & 0xC0) != 0x80;
        place =
            isLineEnd ? XmlPlace{place.line + 1, 1} : XmlPlace{place.line, place.column + (isColumn ? 1 : 0)};
    }
    return place;
}

XmlTokenizer::Outcome XmlTokenizer::fail(const QString &message)
{
    m_tokens->error = message;
    m_tokens->errorPlace = m_tokenPlace;
    return Outcome::Failed;
}

XmlTokenizer::Outcome XmlTokenizer::malformed(QLatin1StringView what, const char *at)
{
    m_tokenPlace = placeInToken(at);
    return fail(u"This is not well-formed XML: %1."_s.arg(what));
}

XmlTokenizer::Outcome XmlTokenizer::misplaced(const char *character)
{
    return malformed("a character is not allowed here"_L1, character);
}

XmlTokenizer::Outcome XmlTokenizer::unexpected()
{
    if (m_next >= m_end) {
        return Outcome::Incomplete;
    }
    const char *at = m_next;
    const Outcome outcome = isAscii(*m_next) ? Outcome::Done : takeOther();
    return outcome == Outcome::Done ? misplaced(at) : outcome;
}

QString XmlTokenizer::excerpt(QByteArrayView utf8)
{
    constexpr qsizetype longest = 80;
    return QString::fromUtf8(utf8.first(std::min(utf8.size(), 4 * longest))).left(longest);
}

} // namespace Halvane::Corvex::Designer
