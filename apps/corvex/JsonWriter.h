// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Tool {

class Terminal;

/*! Writes one JSON value as the result, members in the order in which they come, without building it in
    memory. Calls are balanced and members stand in objects only; that is up to the caller. */
class JsonWriter
{
public:
    explicit JsonWriter(Terminal &terminal);
    //! Ends the value's last line.
    ~JsonWriter();
    Q_DISABLE_COPY_MOVE(JsonWriter)

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
    void startValue();
    void startLine();
    template<class Real>
    void writeReal(Real number);
    void appendQuoted(QStringView text);
    void flush(qsizetype limit);

    Terminal &m_terminal;
    QByteArray m_text;
    QList<bool> m_hasEntries; //!< for each open bracket
    bool m_isNamed = false;   //!< a member's name stands before what comes next
};

} // namespace Halvane::Corvex::Tool
