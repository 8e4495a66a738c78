// SPDX-License-Identifier: MIT
#include "corvex/core/XmlInput.h"

#include <QByteArrayView>
#include <QIODevice>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype chunkSize = 256 * 1024;
constexpr qint64 longestToken = 16 * 1024 * 1024;

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

} // namespace

XmlInput::XmlInput(QIODevice *device, XmlHandler *handler)
    : m_device(device)
    , m_handler(handler)
{ }

bool XmlInput::parse()
{
    if (!m_device->isReadable()) {
        fail(u"The source cannot be read."_s);
        return false;
    }
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> owner(
        XML_ParserCreate("UTF-8"), &XML_ParserFree);
    m_parser = owner.get();
    connectHandlers();
    bool good = true;
    qint64 size = 0;
    do {
        auto *chunk = static_cast<char *>(XML_GetBuffer(m_parser, int(chunkSize)));
        size = chunk ? m_device->read(chunk, chunkSize) : -1;
        // The parser goes by the first bytes before it goes by the encoding that it was told.
        if (m_fed == 0 && beginsAsUtf16({chunk, std::clamp<qint64>(size, 0, 2)})) {
            fail(u"The text is UTF-16; only UTF-8 is read."_s);
        } else if (size < 0) {
            fail(u"The source cannot be read: %1"_s.arg(m_device->errorString()));
        }
        good = m_error.isEmpty() && feed(size);
    } while (good && size > 0);
    m_parser = nullptr;
    return good;
}

void XmlInput::connectHandlers()
{
    XML_SetUserData(m_parser, this);
    XML_SetElementHandler(
        m_parser,
        [](void *self, const XML_Char *name, const XML_Char **attributes) {
            static_cast<XmlInput *>(self)->m_handler->startElement(name, attributes);
        },
        [](void *self, const XML_Char *name) { static_cast<XmlInput *>(self)->m_handler->endElement(name); });
    XML_SetCharacterDataHandler(m_parser, [](void *self, const XML_Char *text, int length) {
        static_cast<XmlInput *>(self)->m_handler->characters(text, length);
    });
    XML_SetCommentHandler(
        m_parser, [](void *self, const XML_Char *) { static_cast<XmlInput *>(self)->m_handler->comment(); });
    XML_SetProcessingInstructionHandler(m_parser, [](void *self, const XML_Char *, const XML_Char *) {
        static_cast<XmlInput *>(self)->m_handler->processingInstruction();
    });
    XML_SetXmlDeclHandler(m_parser, [](void *self, const XML_Char *, const XML_Char *encoding, int) {
        if (!isUtf8(encoding)) {
            static_cast<XmlInput *>(self)->fail(
                u"The text is declared as %1; only UTF-8 is read."_s.arg(excerpt(encoding)));
        }
    });
    XML_SetStartDoctypeDeclHandler(
        m_parser, [](void *self, const XML_Char *, const XML_Char *, const XML_Char *, int) {
            static_cast<XmlInput *>(self)->fail(u"Document types and entities are not accepted."_s);
        });
}

//! Parses what lies in the parser's buffer; nothing there is the end.
bool XmlInput::feed(qint64 size)
{
    if (XML_ParseBuffer(m_parser, int(size), size == 0) != XML_STATUS_OK) {
        if (m_error.isEmpty()) {
            fail(parserError(m_parser));
        }
        return false;
    }
    m_fed += size;
    // A single token that outgrows every buffer is read again with each chunk; end that in time.
    if (m_fed - XML_GetCurrentByteIndex(m_parser) > longestToken + chunkSize) {
        fail(u"A value is longer than 16 MB."_s);
        return false;
    }
    return true;
}

void XmlInput::fail(const QString &message)
{
    m_error = message;
    if (m_parser) {
        m_errorLine = line();
        m_errorColumn = column();
        XML_StopParser(m_parser, XML_FALSE);
    }
}

qint64 XmlInput::line() const
{
    return std::max<qint64>(qint64(XML_GetCurrentLineNumber(m_parser)), 1);
}

qint64 XmlInput::column() const
{
    return qint64(XML_GetCurrentColumnNumber(m_parser)) + 1;
}

QString XmlInput::excerpt(const char *utf8)
{
    constexpr qsizetype longest = 80;
    return QString::fromUtf8(QByteArrayView(utf8, qstrnlen(utf8, 4 * longest))).left(longest);
}

} // namespace Halvane::Corvex::Designer
