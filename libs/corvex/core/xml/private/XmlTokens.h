// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <span>
#include <vector>

namespace Halvane::Corvex::Designer {

//! A place in a text, from 1; 0 where none can be told. A column is a character, not a byte.
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

/*! A stretch of XML, taken apart: the tokens in their order, and the bytes that they point into, in which
    references have been replaced by what they stand for. It is filled by one thread and walked by another. A
    stretch that could not be read to its end has an error after its tokens.
*/
struct XmlTokens
{
    enum Kind : quint8 {
        Start,
        EmptyElement, //!< a start tag that is its own end tag
        End,
        Text, //!< not reported where there is nothing but blanks between two tags
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
