// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/CsvText.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::CsvText {

namespace {

constexpr QChar mark = u'\'';

//! Whether a spreadsheet would run the field as a formula, now or without its protection marks.
bool isRun(const QString &field)
{
    static const QRegularExpression dangerous(u"^'*[=+\\-@\t\r]"_s);
    static const QRegularExpression number(u"^[+-]?[0-9]+(\\.[0-9]*)?([eE][+-]?[0-9]+)?$"_s);
    return dangerous.match(field).hasMatch() && !number.match(field).hasMatch();
}

QString marked(const QString &field)
{
    return isRun(field) ? mark + field : field;
}

QString unmarked(const QString &field)
{
    return field.startsWith(mark) && isRun(field) ? field.sliced(1) : field;
}

QString quoted(const QString &field, QChar separator)
{
    const bool isPlain = std::ranges::none_of(field, [separator](QChar character) {
        return character == separator || character == u'"' || character == u'\n' || character == u'\r';
    });
    return isPlain ? field : u"\"%1\""_s.arg(QString(field).replace(u'"', u"\"\""_s));
}

class Reader
{
public:
    Reader(QStringView text, QChar separator)
        : m_text(text)
        , m_separator(separator)
    { }

    bool atEnd() const { return m_at == m_text.size(); }
    int line() const { return m_line; }
    //! The first line that ends with a lone "\r"; 0 if no line does.
    int lineOfLoneReturn() const { return m_lineOfLoneReturn; }

    //! Returns false for a field whose quotes are not closed, or with text after the closing quote.
    bool readField(QString &field)
    {
        field.clear();
        if (!atEnd() && m_text.at(m_at) == u'"') {
            ++m_at;
            return readQuoted(field) && (atEnd() || atLineEnd() || m_text.at(m_at) == m_separator);
        }
        while (!atEnd() && !atLineEnd() && m_text.at(m_at) != m_separator) {
            const QChar character = m_text.at(m_at++);
            if (character == u'\r' && m_lineOfLoneReturn == 0) {
                m_lineOfLoneReturn = m_line;
            }
            field += character;
        }
        return true;
    }

    //! Returns whether another field follows in this row. Otherwise skips the line ending.
    bool readSeparator()
    {
        if (!atEnd() && m_text.at(m_at) == m_separator) {
            ++m_at;
            return true;
        }
        passLineEnd();
        return false;
    }

    void passLine()
    {
        while (!atEnd() && !atLineEnd()) {
            ++m_at;
        }
        passLineEnd();
    }

private:
    bool atLineEnd() const
    {
        return m_text.at(m_at) == u'\n'
               || (m_text.at(m_at) == u'\r' && m_at + 1 < m_text.size() && m_text.at(m_at + 1) == u'\n');
    }

    void passLineEnd()
    {
        if (!atEnd()) {
            m_at += m_text.at(m_at) == u'\r' ? 2 : 1;
            ++m_line;
        }
    }

    bool readQuoted(QString &field)
    {
        for (; !atEnd(); ++m_at) {
            const QChar character = m_text.at(m_at);
            if (character == u'"') {
                ++m_at;
                if (atEnd() || m_text.at(m_at) != u'"') {
                    return true;
                }
            }
            m_line += character == u'\n';
            field += character;
        }
        return false;
    }

    QStringView m_text;
    QChar m_separator;
    qsizetype m_at = 0;
    int m_line = 1;
    int m_lineOfLoneReturn = 0;
};

} // namespace

QString row(const QStringList &fields, QChar separator)
{
    QStringList texts;
    for (const QString &field : fields) {
        texts.append(quoted(marked(field), separator));
    }
    return texts.join(separator) + u"\r\n"_s;
}

QString Problem::toString() const
{
    return u"line %1: %2"_s.arg(QString::number(line), text);
}

QChar separatorOf(QStringView text)
{
    static constexpr std::array<char16_t, 3> candidates{u',', u';', u'\t'};
    std::array<int, candidates.size()> counts{};
    bool isQuoted = false;
    for (const QChar character : text) {
        if (character == u'\n' && !isQuoted) {
            break;
        }
        isQuoted = isQuoted != (character == u'"');
        const auto *candidate = std::ranges::find(candidates, character.unicode());
        if (!isQuoted && candidate != candidates.end()) {
            ++counts.at(size_t(candidate - candidates.begin()));
        }
    }
    return candidates.at(size_t(std::ranges::max_element(counts) - counts.begin()));
}

QList<Row> read(QStringView text, QList<Problem> &problems, QChar separator)
{
    QList<Row> rows;
    Reader reader(text, separator);
    while (!reader.atEnd()) {
        Row row;
        row.line = reader.line();
        bool isGood = true;
        do {
            QString field;
            isGood = reader.readField(field);
            row.fields.append(unmarked(field));
        } while (isGood && reader.readSeparator());
        if (!isGood) {
            problems.append(
                {row.line, u"A field in quotes is not closed, or text follows its closing quote."_s});
            reader.passLine();
        } else if (row.fields != QStringList(QString())) {
            rows.append(row);
        }
    }
    if (reader.lineOfLoneReturn() > 0) {
        problems.append(
            {reader.lineOfLoneReturn(),
             u"The lines end with only a carriage return. Save the table with LF or CRLF line endings."_s});
        rows.clear();
    }
    return rows;
}

} // namespace Halvane::Corvex::Designer::CsvText
