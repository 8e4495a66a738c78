// SPDX-License-Identifier: MIT
#include "corvex/core/xml/private/XmlInput.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/Progress.h"
#include "corvex/core/xml/private/XmlHandler.h"
#include "corvex/core/xml/private/XmlTokenQueue.h"
#include "corvex/core/xml/private/XmlTokenizer.h"

#include <QIODevice>
#include <QThread>

#include <memory>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

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
    XmlTokenizer tokenizer(m_device);
    if (m_device->isSequential() || m_device->size() <= XmlTokenizer::chunkSize) {
        parseInThisThread(tokenizer);
    } else {
        parseInTwoThreads(tokenizer);
    }
    return m_error.isEmpty();
}

void XmlInput::parseInThisThread(XmlTokenizer &tokenizer)
{
    XmlTokens tokens;
    bool hasMore = true;
    while (hasMore) {
        hasMore = tokenizer.read(&tokens);
        hasMore = deliver(tokens) && hasMore;
    }
}

void XmlInput::parseInTwoThreads(XmlTokenizer &tokenizer)
{
    XmlTokenQueue queue;
    const std::unique_ptr<QThread> reader(QThread::create([&tokenizer, &queue] {
        bool hasMore = true;
        while (XmlTokens *tokens = hasMore ? queue.beginFilling() : nullptr) {
            hasMore = tokenizer.read(tokens);
            queue.endFilling(!hasMore);
        }
    }));
    reader->start();
    // A finished thread is not running either. If no thread could be started, this one reads.
    if (!reader->isRunning() && !reader->isFinished()) {
        parseInThisThread(tokenizer);
        return;
    }
    while (const XmlTokens *tokens = queue.beginWalking()) {
        if (!deliver(*tokens)) {
            queue.close();
            break;
        }
        queue.endWalking();
    }
    reader->wait();
}

bool XmlInput::deliver(const XmlTokens &tokens)
{
    for (const XmlTokens::Token &token : tokens.tokens) {
        m_place = token.place;
        tell(tokens, token);
        if (!m_error.isEmpty()) {
            return false;
        }
    }
    if (m_progress) {
        m_progress->advance(qint64(tokens.bytes.size()));
        if (m_progress->isCancelled()) {
            fail(Common::LocalizationHelper::coreString(u"Reading was cancelled."_s));
            return false;
        }
    }
    if (tokens.isFailed()) {
        m_error = tokens.error;
        m_errorPlace = tokens.errorPlace;
    }
    return m_error.isEmpty();
}

void XmlInput::tell(const XmlTokens &tokens, const XmlTokens::Token &token)
{
    const QByteArrayView text = XmlTokens::textOf(token);
    switch (token.kind) {
    case XmlTokens::Start:
        m_handler->startElement(text, tokens.attributesOf(token));
        break;
    case XmlTokens::EmptyElement:
        m_handler->emptyElement(text, tokens.attributesOf(token));
        break;
    case XmlTokens::End:
        m_handler->endElement(text);
        break;
    case XmlTokens::Text:
        m_handler->characters(text);
        break;
    case XmlTokens::Comment:
        m_handler->comment();
        break;
    case XmlTokens::Instruction:
        m_handler->processingInstruction();
        break;
    }
}

void XmlInput::fail(const QString &message)
{
    m_error = message;
    m_errorPlace = m_place;
}

} // namespace Halvane::Corvex::Designer
