// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <vector>

namespace Halvane::Corvex::Designer {

//! A place in a text, from 1; 0 where none can be told.
struct XmlPlace
{
    quint32 line = 0;
    quint32 column = 0;
};

/*! What a stretch of XML consists of, in its order, written down in one block of bytes: it is filled by one
    thread and walked by another. A stretch that could not be read to its end has an error behind its tokens.
*/
class XmlTokens
{
public:
    enum Kind : quint8 { Start, End, Blank, Text, Comment, Instruction };

    //! Empties it; the room that it took stays.
    void clear();

    //! \a attributes holds names and values by turns and ends with null.
    void addStart(XmlPlace place, const char *name, const char **attributes);
    void addEnd(XmlPlace place, const char *name);
    void addText(XmlPlace place, QByteArrayView text, bool isBlank);
    void add(XmlPlace place, Kind kind);
    void setError(XmlPlace place, const QString &message);

    bool isFailed() const { return !m_error.isEmpty(); }
    const QString &error() const { return m_error; }
    XmlPlace errorPlace() const { return m_errorPlace; }

    /*! Walks over the tokens from the first on. Everything that it tells is valid until its next step and as
        long as the tokens are not changed. */
    class Cursor
    {
    public:
        explicit Cursor(const XmlTokens &tokens)
            : m_next(tokens.m_bytes.data())
            , m_end(m_next + tokens.m_bytes.size())
        { }

        //! To the next token, which is the first one at the first call; false behind the last one.
        bool next();
        Kind kind() const { return m_kind; }
        XmlPlace place() const { return m_place; }
        //! The name of an element or a text, closed by a zero byte.
        QByteArrayView text() const { return m_text; }
        //! Names and values by turns, closed by null.
        const char **attributes() { return m_attributes.data(); }

    private:
        template<typename Number>
        Number takeNumber();
        QByteArrayView takeText();

        const char *m_next;
        const char *m_end;
        Kind m_kind = Start;
        XmlPlace m_place;
        QByteArrayView m_text;
        std::vector<const char *> m_attributes;
    };

private:
    template<typename Number>
    void putNumber(Number number);
    void putText(QByteArrayView text);
    void putHead(XmlPlace place, Kind kind);

    static constexpr size_t noText = size_t(-1);

    std::vector<char> m_bytes;
    size_t m_openBlank = noText; //!< where the size of a blank text stands that more may be added to
    QString m_error;
    XmlPlace m_errorPlace;
};

} // namespace Halvane::Corvex::Designer
