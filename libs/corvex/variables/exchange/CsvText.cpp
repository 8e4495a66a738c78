// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/CsvText.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::CsvText {

namespace {

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
    explicit Reader(QStringView text)
        : m_text(text)
    { }

    bool atEnd() const { return m_at == m_text.size(); }
    int line() const { return m_line; }

    //! False for a field that is not closed, or that goes on behind its closing quote.
    bool readField(QString &field)
    {
        field.clear();
        if (m_at < m_text.size() && m_text.at(m_at) == u'"') {
            ++m_at;
            return readQuoted(field) && (atEnd() || atLineEnd() || m_text.at(m_at) == u',');
        }
        while (!atEnd() && !atLineEnd() && m_text.at(m_at) != u',') {
            field += m_text.at(m_at++);
        }
        return true;
    }

    //! Whether another field follows in this row; otherwise the row's line end is passed.
    bool readSeparator()
    {
        if (!atEnd() && m_text.at(m_at) == u',') {
            ++m_at;
            return true;
        }
        if (!atEnd()) {
            m_at += m_text.at(m_at) == u'\r' ? 2 : 1;
            ++m_line;
        }
        return false;
    }

private:
    bool atLineEnd() const
    {
        return m_text.at(m_at) == u'\n'
               || (m_text.at(m_at) == u'\r' && m_at + 1 < m_text.size() && m_text.at(m_at + 1) == u'\n');
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
    qsizetype m_at = 0;
    int m_line = 1;
};

} // namespace

QString row(const QStringList &fields, QChar separator)
{
    QStringList texts;
    for (const QString &field : fields) {
        texts.append(quoted(field, separator));
    }
    return texts.join(separator) + u"\r\n"_s;
}

bool read(QStringView text, QList<Row> &rows, QString &error)
{
    rows.clear();
    Reader reader(text);
    while (!reader.atEnd()) {
        Row row;
        row.line = reader.line();
        do {
            QString field;
            if (!reader.readField(field)) {
                error = u"line %1: A field in quotes is not closed, or text follows its closing quote."_s.arg(
                    QString::number(row.line));
                return false;
            }
            row.fields.append(field);
        } while (reader.readSeparator());
        if (row.fields != QStringList(QString())) {
            rows.append(row);
        }
    }
    return true;
}

} // namespace Halvane::Corvex::Designer::CsvText
