// SPDX-License-Identifier: MIT
// Private to the sources of ObjectXmlReader; not installed.
#pragma once

#include <QString>

#include <expat.h>

class QIODevice;

namespace Halvane::Corvex::Designer {

//! Hears what stands in a text, in its order. Texts are UTF-8 and valid during the call.
class XmlHandler
{
public:
    //! \a attributes holds names and values by turns and ends with null.
    virtual void startElement(const char *name, const char **attributes) = 0;
    virtual void endElement(const char *name) = 0;
    //! What lies between two tags may come in several pieces.
    virtual void characters(const char *text, int length) = 0;
    virtual void comment() = 0;
    virtual void processingInstruction() = 0;

protected:
    ~XmlHandler() = default;
};

/*! Takes XML from a device to a handler, chunk by chunk and without a tree.

    It is the guard at the door: what is not UTF-8, document types and entities, and values of more than 16 MB
    end the parsing with an error in the words of someone who opened a file.
*/
class XmlInput
{
public:
    XmlInput(QIODevice *device, XmlHandler *handler);

    //! False when an error ended it, the handler's own among them.
    bool parse();
    //! Ends the parsing here; no more is heard of the text.
    void fail(const QString &message);

    const QString &errorString() const { return m_error; }
    //! Where the error is, from 1; 0 when no place can be told.
    qint64 errorLine() const { return m_errorLine; }
    qint64 errorColumn() const { return m_errorColumn; }

    //! Where the parser is, from 1; for calls from the handler.
    qint64 line() const;
    qint64 column() const;

    //! As much of a text from a file as a message bears.
    static QString excerpt(const char *utf8);

private:
    void connectHandlers();
    bool feed(qint64 size);

    QIODevice *m_device;
    XmlHandler *m_handler;
    XML_Parser m_parser = nullptr;
    qint64 m_fed = 0; //!< bytes that the parser was given
    QString m_error;
    qint64 m_errorLine = 0;
    qint64 m_errorColumn = 0;
};

} // namespace Halvane::Corvex::Designer
