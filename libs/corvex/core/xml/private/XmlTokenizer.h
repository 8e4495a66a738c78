// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/xml/private/XmlTokens.h"

class QIODevice;

namespace Halvane::Corvex::Designer {

/*! Splits XML from a device into tokens, chunk by chunk and in place: the tokens point into the bytes that
    were read.

    Refuses anything that is not UTF-8, document types and entities, values larger than 16 MB, and everything
    that is not well-formed XML 1.0. Its messages are for the user who opened the file.
*/
class CORVEX_EXPORT XmlTokenizer
{
public:
    //! The number of bytes to read at once.
    static constexpr qsizetype chunkSize = 256 * 1024;

    explicit XmlTokenizer(QIODevice *device)
        : m_device(device)
    { }

    //! Fills \a tokens from the next chunk. Returns false at the end and after an error.
    bool read(XmlTokens *tokens);

    //! A text from a file, shortened for a message.
    static QString excerpt(QByteArrayView utf8);

private:
    //! The result of reading one token.
    enum class Outcome { Done, Incomplete, Failed };
    enum class Content { Text, CharacterData, Value };
    //! The position in the lines of the text.
    struct Position
    {
        quint32 line = 1;
        quint32 columnBefore = 0;        //!< columns of the line before lineStart
        const char *lineStart = nullptr; //!< in the current bytes
        quint32 hidden = 0;              //!< bytes since lineStart that do not count as columns
    };

    bool fill(XmlTokens *tokens);
    qint64 readBytes(char *bytes, qint64 wanted);
    void keepRest();
    Outcome takeToken();
    Outcome takeText();
    Outcome takeTextCharacter();
    Outcome takeStartTag();
    Outcome takeAttribute();
    Outcome takeEndTag();
    Outcome takeMarkup();
    Outcome takeComment();
    Outcome takeCharacterData();
    Outcome takeInstruction();
    Outcome takeDeclaration();
    Outcome takePseudoAttribute(QByteArrayView *name, QByteArrayView *value);
    Outcome takeName(QByteArrayView *name);
    //! Takes one non-ASCII character.
    Outcome takeOther();
    Outcome takeReference();
    Outcome takeUntil(QByteArrayView end, QByteArrayView *content);
    Outcome checkAttributes(quint32 first);
    void takeBlank();
    void skipBlanks();
    static QByteArrayView decoded(QByteArrayView raw, Content content);
    Outcome finish();
    static QByteArrayView between(const char *begin, const char *end) { return {begin, end - begin}; }

    void add(XmlTokens::Kind kind, QByteArrayView text, quint32 firstAttribute = 0);
    XmlPlace placeOfNext() const;
    XmlPlace placeInToken(const char *at) const;
    Outcome fail(const QString &message);
    Outcome malformed(QLatin1StringView what, const char *at);
    Outcome misplaced(const char *character);
    //! Handles an unexpected character at m_next; at the end of the bytes, asks for more.
    Outcome unexpected();

    QIODevice *m_device;
    XmlTokens *m_tokens = nullptr;
    std::vector<char> m_rest; //!< the start of a token that was not complete in the chunk
    const char *m_token = nullptr;
    XmlPlace m_tokenPlace{1, 1};
    const char *m_next = nullptr;
    const char *m_end = nullptr; //!< a zero byte follows
    Position m_position;
    std::vector<char> m_names;        //!< of the open elements, one after the other
    std::vector<size_t> m_nameStarts; //!< the start of each name
    bool m_isBegun = false;           //!< something has been read
    bool m_isLast = false;            //!< the current bytes are the last ones
    bool m_isReturnHeld = false;      //!< a carriage return follows the current bytes
    bool m_isDeclarationPossible = true;
    bool m_hasRoot = false;
    bool m_hasText = false; //!< since the last tag
};

} // namespace Halvane::Corvex::Designer
