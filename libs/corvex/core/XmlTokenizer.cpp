// SPDX-License-Identifier: MIT
#include "corvex/core/XmlTokenizer.h"

#include "corvex/core/XmlLimits.h"

#include <QIODevice>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Two bytes that no text in UTF-8 begins with and each in UTF-16 does, with a byte order mark or without.
bool beginsAsUtf16(QByteArrayView bytes)
{
    return bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE")
           || (bytes.size() > 1 && (bytes[0] == '\0') != (bytes[1] == '\0'));
}

bool isUtf8(const XML_Char *encoding)
{
    return !encoding || qstricmp(encoding, "UTF-8") == 0 || qstricmp(encoding, "US-ASCII") == 0;
}

//! What the parser has to say in the words of someone who opened a file.
QString parserError(XML_Parser parser)
{
    int offset = 0;
    int size = 0;
    const char *context = XML_GetInputContext(parser, &offset, &size);
    const XML_Error code = XML_GetErrorCode(parser);
    switch (code) {
    case XML_ERROR_NO_ELEMENTS:
    case XML_ERROR_UNCLOSED_TOKEN:
    case XML_ERROR_PARTIAL_CHAR:
        return u"The text ends before its root element does; it is empty or was cut off."_s;
    case XML_ERROR_SYNTAX:
        return u"This is no XML."_s;
    case XML_ERROR_INVALID_TOKEN:
        if (context && offset < size && static_cast<unsigned char>(context[offset]) >= 0x80) {
            return u"The bytes here are not UTF-8, the one encoding that is read."_s;
        }
        [[fallthrough]];
    default:
        return u"This is no well-formed XML: %1."_s.arg(QString::fromUtf8(XML_ErrorString(code)));
    }
}

//! Whether there is nothing but what lies between the lines of a file.
bool isBlank(QByteArrayView text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; });
}

} // namespace

XmlTokenizer::XmlTokenizer(QIODevice *device)
    : m_parser(XML_ParserCreate("UTF-8"), &XML_ParserFree)
    , m_device(device)
{
    connectHandlers();
}

bool XmlTokenizer::read(XmlTokens *tokens)
{
    m_tokens = tokens;
    tokens->clear();
    auto *chunk = static_cast<char *>(XML_GetBuffer(m_parser.get(), int(chunkSize)));
    const qint64 size = chunk ? m_device->read(chunk, chunkSize) : -1;
    // The parser goes by the first bytes before it goes by the encoding that it was told.
    if (m_fed == 0 && beginsAsUtf16({chunk, std::clamp<qint64>(size, 0, 2)})) {
        return fail(u"The text is UTF-16; only UTF-8 is read."_s);
    }
    if (size < 0) {
        return fail(u"The source cannot be read: %1"_s.arg(m_device->errorString()));
    }
    return feed(size) && size > 0;
}

void XmlTokenizer::connectHandlers()
{
    XML_SetUserData(m_parser.get(), this);
    XML_SetElementHandler(
        m_parser.get(),
        [](void *user, const XML_Char *name, const XML_Char **attributes) {
            const auto *self = static_cast<XmlTokenizer *>(user);
            self->m_tokens->addStart(self->place(), name, attributes);
        },
        [](void *user, const XML_Char *name) {
            const auto *self = static_cast<XmlTokenizer *>(user);
            self->m_tokens->addEnd(self->place(), name);
        });
    XML_SetCharacterDataHandler(m_parser.get(), [](void *user, const XML_Char *text, int length) {
        const auto *self = static_cast<XmlTokenizer *>(user);
        const QByteArrayView bytes(text, length);
        self->m_tokens->addText(self->place(), bytes, isBlank(bytes));
    });
    XML_SetCommentHandler(m_parser.get(), [](void *user, const XML_Char *) {
        const auto *self = static_cast<XmlTokenizer *>(user);
        self->m_tokens->add(self->place(), XmlTokens::Comment);
    });
    XML_SetProcessingInstructionHandler(m_parser.get(), [](void *user, const XML_Char *, const XML_Char *) {
        const auto *self = static_cast<XmlTokenizer *>(user);
        self->m_tokens->add(self->place(), XmlTokens::Instruction);
    });
    XML_SetXmlDeclHandler(m_parser.get(), [](void *user, const XML_Char *, const XML_Char *encoding, int) {
        if (!isUtf8(encoding)) {
            static_cast<XmlTokenizer *>(user)->fail(
                u"The text is declared as %1; only UTF-8 is read."_s.arg(excerpt(encoding)));
        }
    });
    XML_SetStartDoctypeDeclHandler(
        m_parser.get(), [](void *user, const XML_Char *, const XML_Char *, const XML_Char *, int) {
            static_cast<XmlTokenizer *>(user)->fail(u"Document types and entities are not accepted."_s);
        });
}

//! Parses what lies in the parser's buffer; nothing there is the end.
bool XmlTokenizer::feed(qint64 size)
{
    if (XML_ParseBuffer(m_parser.get(), int(size), size == 0) != XML_STATUS_OK) {
        return m_tokens->isFailed() ? false : fail(parserError(m_parser.get()));
    }
    m_fed += size;
    // A single token that outgrows every buffer is read again with each chunk; end that in time.
    if (m_fed - XML_GetCurrentByteIndex(m_parser.get()) > XmlLimits::longestValue + chunkSize) {
        return fail(u"A value is longer than 16 MB."_s);
    }
    return true;
}

bool XmlTokenizer::fail(const QString &message)
{
    m_tokens->setError(place(), message);
    XML_StopParser(m_parser.get(), XML_FALSE);
    return false;
}

XmlPlace XmlTokenizer::place() const
{
    return {std::max(quint32(XML_GetCurrentLineNumber(m_parser.get())), 1U),
            quint32(XML_GetCurrentColumnNumber(m_parser.get())) + 1};
}

QString XmlTokenizer::excerpt(const char *utf8)
{
    constexpr qsizetype longest = 80;
    return QString::fromUtf8(QByteArrayView(utf8, qstrnlen(utf8, 4 * longest))).left(longest);
}

} // namespace Halvane::Corvex::Designer
