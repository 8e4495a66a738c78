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

/*! Takes XML from a device to a handler. What is larger than a chunk of the tokenizer is taken apart in a
    thread of its own while the handler hears what stood before it; the handler is always called in the thread
    of the caller. Nobody else may touch the device meanwhile.
*/
class XmlInput
{
public:
    XmlInput(QIODevice *device, XmlHandler *handler);

    //! Advances by the bytes that the handler has heard; null for nobody.
    void setProgress(Common::Progress *progress) { m_progress = progress; }
    //! False when an error ended it, the handler's own among them.
    bool parse();
    //! Ends the parsing here; no more is heard of the text. For calls from the handler.
    void fail(const QString &message);

    const QString &errorString() const { return m_error; }
    //! Where the error is; no place when none can be told.
    XmlPlace errorPlace() const { return m_errorPlace; }
    //! Where the token is that the handler is hearing of.
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
