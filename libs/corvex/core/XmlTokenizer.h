// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include "corvex/core/XmlTokens.h"

#include <expat.h>
#include <memory>

class QIODevice;

namespace Halvane::Corvex::Designer {

/*! Takes XML from a device apart, chunk by chunk and without a tree.

    It is the guard at the door: what is not UTF-8, document types and entities, and values of more than 16 MB
    are an error in the words of someone who opened a file.
*/
class XmlTokenizer
{
public:
    //! How many bytes are read at once.
    static constexpr qsizetype chunkSize = 256 * 1024;

    explicit XmlTokenizer(QIODevice *device);

    //! Puts what the next chunk holds into \a tokens; false when nothing follows, after an error too.
    bool read(XmlTokens *tokens);

    //! As much of a text from a file as a message bears.
    static QString excerpt(const char *utf8);

private:
    void connectHandlers();
    bool feed(qint64 size);
    bool fail(const QString &message);
    XmlPlace place() const;

    std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> m_parser;
    QIODevice *m_device;
    XmlTokens *m_tokens = nullptr;
    qint64 m_fed = 0; //!< bytes that the parser was given
};

} // namespace Halvane::Corvex::Designer
