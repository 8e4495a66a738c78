// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include "corvex/core/xml/private/XmlTokens.h"

class QIODevice;

namespace Halvane::Corvex::Common {
class Progress;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class XmlHandler;
class XmlTokenizer;

//! Passes XML from a device to a handler. Texts larger than a chunk of the tokenizer are parsed in a separate
//! thread, parallel to the handler, which is always called in the thread of the caller. Nothing else may use
//! the device meanwhile.
class XmlInput
{
public:
    XmlInput(QIODevice *device, XmlHandler *handler);

    //! Reports the bytes that the handler has received; may be null.
    void setProgress(Common::Progress *progress) { m_progress = progress; }
    //! Returns false after an error, including errors of the handler.
    bool parse();
    //! Stops the parsing with an error. Called by the handler.
    void fail(const QString &message);

    const QString &errorString() const { return m_error; }
    //! The place of the error, or no place if it is unknown.
    XmlPlace errorPlace() const { return m_errorPlace; }
    //! The place of the token that the handler is receiving.
    XmlPlace place() const { return m_place; }

private:
    void parseInThisThread(XmlTokenizer &tokenizer);
    void parseInTwoThreads(XmlTokenizer &tokenizer);
    bool deliver(const XmlTokens &tokens);
    void tell(const XmlTokens &tokens, const XmlTokens::Token &token);

    QIODevice *m_device;
    XmlHandler *m_handler;
    Common::Progress *m_progress = nullptr;
    XmlPlace m_place;
    QString m_error;
    XmlPlace m_errorPlace;
};

} // namespace Halvane::Corvex::Designer
