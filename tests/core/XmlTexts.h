// SPDX-License-Identifier: MIT
// Converts XML to comparable texts, once with our tokenizer and once with another reader.
#pragma once

#include "corvex/core/xml/private/XmlTokenizer.h"

#include <QIODevice>
#include <QXmlStreamReader>

namespace Halvane::Corvex::Designer::XmlTexts {

//! Blanks at the ends of a piece of text may be dropped, and pieces end where chunks end.
inline QByteArray withoutBlanks(const QByteArray &text)
{
    return text.simplified().replace(' ', "").toHex();
}

//! The tags and texts as one text; "!" and a message if it is not well-formed.
inline QByteArray readByTokenizer(QIODevice &device, XmlPlace *place = nullptr)
{
    device.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    XmlTokenizer tokenizer(&device);
    XmlTokens chunk;
    QByteArray text;
    for (bool hasMore = true; hasMore;) {
        hasMore = tokenizer.read(&chunk);
        for (const XmlTokens::Token &token : chunk.tokens) {
            if (token.kind == XmlTokens::Start || token.kind == XmlTokens::EmptyElement) {
                text += '<' + XmlTokens::textOf(token).toByteArray();
                for (const XmlAttribute &attribute : chunk.attributesOf(token)) {
                    text += ' ' + attribute.name.toByteArray() + '=' + attribute.value.toByteArray().toHex();
                }
            } else if (token.kind == XmlTokens::Text) {
                text += withoutBlanks(XmlTokens::textOf(token).toByteArray());
            }
            text += token.kind == XmlTokens::End || token.kind == XmlTokens::EmptyElement ? ">" : "";
        }
    }
    if (place) {
        *place = chunk.errorPlace;
    }
    return chunk.isFailed() ? '!' + chunk.error.toUtf8() : text;
}

inline QByteArray readByQt(const QByteArray &xml)
{
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false);
    QByteArray text;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            text += '<' + reader.qualifiedName().toUtf8();
            for (const QXmlStreamAttribute &attribute : reader.attributes()) {
                text += ' ' + attribute.qualifiedName().toUtf8() + '=' + attribute.value().toUtf8().toHex();
            }
        } else if (reader.isCharacters()) {
            text += withoutBlanks(reader.text().toUtf8());
        }
        text += reader.isEndElement() ? ">" : "";
    }
    return reader.hasError() ? "!" + reader.errorString().toUtf8() : text;
}

} // namespace Halvane::Corvex::Designer::XmlTexts
