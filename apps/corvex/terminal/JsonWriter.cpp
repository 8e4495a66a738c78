// SPDX-License-Identifier: MIT
#include "terminal/JsonWriter.h"

#include "terminal/Terminal.h"

#include <charconv>
#include <cmath>

namespace Halvane::Corvex::Tool {

namespace {

constexpr qsizetype bufferSize = 64 * 1024;

} // namespace

JsonWriter::JsonWriter(Terminal &terminal)
    : m_terminal(terminal)
{ }

void JsonWriter::finish()
{
    if (m_hasEntries.isEmpty()) {
        beginObject();
    }
    close('}');
    m_text.append('\n');
    flush(0);
}

void JsonWriter::name(QStringView text)
{
    Q_ASSERT(!m_hasEntries.isEmpty() && !m_isTopEnded); // beginObject() is missing
    startValue();
    appendQuoted(text);
    m_text.append(": ");
    m_isNamed = true;
}

void JsonWriter::value(QStringView text)
{
    startValue();
    appendQuoted(text);
    flush(bufferSize);
}

void JsonWriter::value(qint64 number)
{
    startValue();
    m_text.append(QByteArray::number(number));
}

void JsonWriter::value(bool truth)
{
    startValue();
    m_text.append(truth ? "true" : "false");
}

template<class Real>
void JsonWriter::writeReal(Real number)
{
    if (!std::isfinite(number)) {
        value(std::isnan(number) ? u"NaN" : number < 0 ? u"-Infinity" : u"Infinity");
        return;
    }
    startValue();
    char digits[32];
    const auto [end, problem] = std::to_chars(std::begin(digits), std::end(digits), number);
    m_text.append(digits, end - digits);
}

void JsonWriter::value(double number)
{
    writeReal(number);
}

void JsonWriter::value(float number)
{
    writeReal(number);
}

void JsonWriter::nothing()
{
    startValue();
    m_text.append("null");
}

void JsonWriter::member(QLatin1StringView memberName, const QStringList &texts)
{
    name(memberName);
    beginArray();
    for (const QString &text : texts) {
        value(text);
    }
    endArray();
}

void JsonWriter::begin(char bracket)
{
    if (std::exchange(m_isTopEnded, false)) {
        return;
    }
    startValue();
    m_text.append(bracket);
    m_hasEntries.append(false);
}

void JsonWriter::end(char bracket)
{
    m_isTopEnded = m_hasEntries.size() == 1;
    if (!m_isTopEnded) {
        close(bracket);
    }
}

void JsonWriter::close(char bracket)
{
    if (m_hasEntries.takeLast()) {
        startLine();
    }
    m_text.append(bracket);
    flush(bufferSize);
}

void JsonWriter::startValue()
{
    if (std::exchange(m_isNamed, false) || m_hasEntries.isEmpty()) {
        return;
    }
    if (std::exchange(m_hasEntries.last(), true)) {
        m_text.append(',');
    }
    startLine();
}

void JsonWriter::startLine()
{
    m_text.append('\n').append(2 * m_hasEntries.size(), ' ');
}

void JsonWriter::appendQuoted(QStringView text)
{
    static constexpr char digits[] = "0123456789abcdef";
    m_text.append('"');
    for (const char byte : text.toUtf8()) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\') {
            m_text.append('\\').append(byte);
        } else if (byte == '\n') {
            m_text.append("\\n");
        } else if (code < 0x20) {
            m_text.append("\\u00").append(digits[code / 16]).append(digits[code % 16]);
        } else {
            m_text.append(byte);
        }
    }
    m_text.append('"');
}

void JsonWriter::flush(qsizetype limit)
{
    if (m_text.size() >= limit) {
        m_terminal.write(m_text);
        m_text.clear();
    }
}

} // namespace Halvane::Corvex::Tool
