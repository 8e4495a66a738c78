// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Tool {

class Terminal;

/*! Writes one JSON object as the result, directly and in the order of the calls. The caller must balance the
    calls and write members only into objects.

    Several objects at the top level are merged into one: the members of each follow those of the one before.
    finish() closes it.
*/
class JsonWriter
{
public:
    explicit JsonWriter(Terminal &terminal);
    Q_DISABLE_COPY_MOVE(JsonWriter)

    //! Closes the top-level object and ends the line.
    void finish();

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    //! Writes the name of the next member.
    void name(QStringView text);
    void name(QLatin1StringView text) { name(QString(text)); }

    void value(QStringView text);
    void value(qint64 number);
    void value(int number) { value(qint64(number)); }
    void value(bool truth);
    //! Writes the shortest digits that restore the number; NaN and infinity, which JSON lacks, as text.
    void value(double number);
    void value(float number);
    void nothing();

    template<class Value>
    void member(QLatin1StringView memberName, const Value &memberValue)
    {
        name(memberName);
        value(memberValue);
    }
    void member(QLatin1StringView memberName, const QStringList &texts);

private:
    void begin(char bracket);
    void end(char bracket);
    void close(char bracket);
    void startValue();
    void startLine();
    template<class Real>
    void writeReal(Real number);
    void appendQuoted(QStringView text);
    void flush(qsizetype limit);

    Terminal &m_terminal;
    QByteArray m_text;
    QList<bool> m_hasEntries;  //!< for each open bracket
    bool m_isTopEnded = false; //!< the top-level object is complete but not closed
    bool m_isNamed = false;    //!< a member name was written and its value is due
};

} // namespace Halvane::Corvex::Tool
