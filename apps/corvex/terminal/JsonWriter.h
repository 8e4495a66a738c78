// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Tool {

class Terminal;

/*! Writes one JSON object as the result, members in the order in which they come, without building it in
    memory. Calls are balanced and members are in objects only; that is up to the caller.

    Objects at the top are parts of one: members of the second follow those of the first. finish() closes
    it. */
class JsonWriter
{
public:
    explicit JsonWriter(Terminal &terminal);
    Q_DISABLE_COPY_MOVE(JsonWriter)

    //! Closes the object at the top and its line.
    void finish();

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    //! The name of the member whose value comes next.
    void name(QStringView text);
    void name(QLatin1StringView text) { name(QString(text)); }

    void value(QStringView text);
    void value(qint64 number);
    void value(bool truth);
    //! In the fewest digits that give the number back; NaN and the infinities, which JSON has not, as text.
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
    bool m_isTopEnded = false; //!< the object at the top may go on or be closed
    bool m_isNamed = false;    //!< the name of a member was written, its value comes next
};

} // namespace Halvane::Corvex::Tool
