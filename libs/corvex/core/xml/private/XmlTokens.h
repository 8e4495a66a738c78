// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <span>
#include <vector>

namespace Halvane::Corvex::Designer {

//! A place in a text, counted from 1; 0 if unknown. Columns count characters, not bytes.
struct XmlPlace
{
    quint32 line = 0;
    quint32 column = 0;
};

struct XmlAttribute
{
    QByteArrayView name;
    QByteArrayView value;
};

//! A parsed block of XML: its tokens in order, and the bytes that they point to, in which references have
//! been decoded. One thread fills it and another reads it. If the block could not be read to its end, an
//! error follows the tokens.
struct XmlTokens
{
    enum Kind : quint8 {
        Start,
        EmptyElement, //!< a tag that is both start and end tag
        End,
        Text, //!< not reported if there is only whitespace between two tags
        Comment,
        Instruction
    };

    struct Token
    {
        Kind kind;
        quint32 attributeCount = 0;
        XmlPlace place;
        const char *text = nullptr; //!< the name of an element, or the text
        quint32 size = 0;
        quint32 firstAttribute = 0;
    };

    static QByteArrayView textOf(const Token &token) { return {token.text, qsizetype(token.size)}; }
    std::span<const XmlAttribute> attributesOf(const Token &token) const
    {
        return std::span(attributes).subspan(token.firstAttribute, token.attributeCount);
    }

    bool isFailed() const { return !error.isEmpty(); }

    std::vector<Token> tokens;
    std::vector<XmlAttribute> attributes;
    std::vector<char> bytes;
    QString error;
    XmlPlace errorPlace;
};

} // namespace Halvane::Corvex::Designer
