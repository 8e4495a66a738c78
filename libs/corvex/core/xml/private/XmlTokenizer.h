// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/xml/private/XmlTokens.h"

class QIODevice;

namespace Halvane::Corvex::Designer {

/*! Takes XML from a device apart, chunk by chunk and in place: what it finds are pointers into the bytes that
    were read.

    It refuses whatever is not UTF-8, document types and entities, values of more than 16 MB, and whatever XML
    1.0 calls not well-formed. Its messages are for the person who opened the file.
*/
class CORVEX_EXPORT XmlTokenizer
{
public:
    //! How many bytes are read at once.
    static constexpr qsizetype chunkSize = 256 * 1024;

    explicit XmlTokenizer(QIODevice *device)
        : m_device(device)
    { }

    //! Puts what the next chunk holds into \a tokens; false when nothing follows, after an error too.
    bool read(XmlTokens *tokens);

    //! As much of a text from a file as a message bears.
    static QString excerpt(QByteArrayView utf8);

private:
    //! What became of one token.
    enum class Outcome { Done, Incomplete, Failed };
    enum class Content { Text, CharacterData, Value };
    //! Where the tokenizer is in the lines of the text.
    struct Position
    {
        quint32 line = 1;
        quint32 columnBefore = 0;        //!< columns of the line before lineStart
        const char *lineStart = nullptr; //!< in the bytes at hand
        quint32 hidden = 0;              //!< bytes since lineStart that are no column of their own
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
    //! One character that is not ASCII, or none that XML allows.
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
    //! What is at m_next does not belong there; where the bytes end, more of them may tell.
    Outcome unexpected();

    QIODevice *m_device;
    XmlTokens *m_tokens = nullptr;
    std::vector<char> m_rest; //!< the begin of a token whose end was not in the chunk
    const char *m_token = nullptr;
    XmlPlace m_tokenPlace{1, 1};
    const char *m_next = nullptr;
    const char *m_end = nullptr; //!< a zero byte follows
    Position m_position;
    std::vector<char> m_names;        //!< of the open elements, one after the other
    std::vector<size_t> m_nameStarts; //!< where each of them begins
    bool m_isBegun = false;           //!< something was read
    bool m_isLast = false;            //!< nothing follows the bytes at hand
    bool m_isReturnHeld = false;      //!< a carriage return follows them
    bool m_isDeclarationPossible = true;
    bool m_hasRoot = false;
    bool m_hasText = false; //!< since the last tag
};

} // namespace Halvane::Corvex::Designer
