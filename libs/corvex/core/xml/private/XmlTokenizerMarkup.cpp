// SPDX-License-Identifier: MIT
// The other parts of an XML text: comments, character data, instructions and the declaration at its start.
#include "corvex/core/xml/private/XmlCharacters.h"
#include "corvex/core/xml/private/XmlTokenizer.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using namespace XmlCharacters;

namespace {

bool isUtf8(QByteArrayView encoding)
{
    return encoding.compare("UTF-8", Qt::CaseInsensitive) == 0
           || encoding.compare("US-ASCII", Qt::CaseInsensitive) == 0;
}

} // namespace

//! Takes comments, character data and document types.
XmlTokenizer::Outcome XmlTokenizer::takeMarkup()
{
    const QByteArrayView rest = between(m_next, m_end);
    const bool isInside = !m_nameStarts.empty();
    if (rest.startsWith("<!--")) {
        return takeComment();
    }
    if (isInside && rest.startsWith("<![CDATA[")) {
        return takeCharacterData();
    }
    if (!m_hasRoot && rest.startsWith("<!DOCTYPE")) {
        return fail(u"Document types and entities are not accepted."_s);
    }
    for (const QByteArrayView begin :
         {QByteArrayView("<!--"), QByteArrayView("<![CDATA["), QByteArrayView("<!DOCTYPE")}) {
        if (begin.startsWith(rest) && !m_isLast) {
            return Outcome::Incomplete;
        }
    }
    m_next += 2;
    return unexpected();
}

XmlTokenizer::Outcome XmlTokenizer::takeComment()
{
    m_next += 4;
    QByteArrayView content;
    if (const Outcome outcome = takeUntil("--", &content); outcome != Outcome::Done) {
        return outcome;
    }
    if (*m_next != '>') {
        return unexpected();
    }
    ++m_next;
    add(XmlTokens::Comment, {});
    return Outcome::Done;
}

XmlTokenizer::Outcome XmlTokenizer::takeCharacterData()
{
    m_next += 9;
    QByteArrayView content;
    if (const Outcome outcome = takeUntil("]]>", &content); outcome != Outcome::Done) {
        return outcome;
    }
    m_hasText = true;
    add(XmlTokens::Text, decoded(content, Content::CharacterData));
    return Outcome::Done;
}

XmlTokenizer::Outcome XmlTokenizer::takeInstruction()
{
    m_next += 2;
    QByteArrayView name;
    if (const Outcome outcome = takeName(&name); outcome != Outcome::Done) {
        return outcome;
    }
    if (name == "xml") {
        return m_isDeclarationPossible ? takeDeclaration()
                                       : malformed("the XML declaration must come first"_L1, m_token);
    }
    if (name.compare("xml", Qt::CaseInsensitive) == 0) {
        return misplaced(name.data());
    }
    if (!is(*m_next, Blank) && *m_next != '?') {
        return unexpected();
    }
    const bool hasContent = *m_next != '?';
    QByteArrayView content;
    const Outcome outcome = takeUntil("?>", &content);
    if (outcome != Outcome::Done) {
        return outcome;
    }
    if (!hasContent && !content.isEmpty()) {
        return misplaced(content.data());
    }
    add(XmlTokens::Instruction, {});
    return Outcome::Done;
}

XmlTokenizer::Outcome XmlTokenizer::takeDeclaration()
{
    static constexpr QByteArrayView names[] = {"version", "encoding", "standalone"};
    constexpr auto what = "the XML declaration is invalid"_L1;
    size_t expected = 0;
    while (*m_next != '?') {
        QByteArrayView name;
        QByteArrayView value;
        if (const Outcome outcome = takePseudoAttribute(&name, &value); outcome != Outcome::Done) {
            return outcome;
        }
        if (name.isEmpty()) {
            break;
        }
        const auto known = size_t(std::find(names + expected, names + 3, name) - names);
        const bool isGood =
            known < 3 && (expected > 0 || known == 0) && (known < 2 || value == "yes" || value == "no");
        if (!isGood) {
            return malformed(what, name.data());
        }
        if (known == 0 && value != "1.0") {
            return fail(u"The text is XML %1; only XML 1.0 is supported."_s.arg(excerpt(value)));
        }
        if (known == 1 && !isUtf8(value)) {
            return fail(u"The text is declared as %1; only UTF-8 is supported."_s.arg(excerpt(value)));
        }
        expected = known + 1;
    }
    if (expected == 0) {
        return malformed(what, m_next);
    }
    if (*m_next != '?' || *++m_next != '>') {
        return unexpected();
    }
    ++m_next;
    return Outcome::Done;
}

//! Returns an empty name at the end of the declaration.
XmlTokenizer::Outcome XmlTokenizer::takePseudoAttribute(QByteArrayView *name, QByteArrayView *value)
{
    if (!is(*m_next, Blank)) {
        return unexpected();
    }
    skipBlanks();
    if (*m_next == '?') {
        return Outcome::Done;
    }
    const auto first = m_tokens->attributes.size();
    const Outcome outcome = takeAttribute();
    if (outcome != Outcome::Done) {
        return outcome;
    }
    *name = m_tokens->attributes.back().name;
    *value = m_tokens->attributes.back().value;
    m_tokens->attributes.resize(first);
    const bool isWord = !value->isEmpty() && std::all_of(value->begin(), value->end(), [](char c) {
        return is(c, NameCharacter);
    });
    return isWord ? Outcome::Done : malformed("the XML declaration is invalid"_L1, value->data());
}

} // namespace Halvane::Corvex::Designer
