// SPDX-License-Identifier: MIT
#include "corvex/common/StringsFile.h"

#include "corvex/common/LocalizationHelper.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

//! Decodes UTF-16 or UTF-32 with a byte order mark, and otherwise UTF-8.
QString decoded(const QByteArray &bytes, bool &ok)
{
    const auto encoding = QStringDecoder::encodingForData(bytes).value_or(QStringDecoder::Utf8);
    QStringDecoder decoder(encoding, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    ok = !decoder.hasError();
    return text;
}

class Parser
{
public:
    Parser(QStringView text, QHash<QString, QString> &values)
        : m_text(text)
        , m_values(values)
    { }

    bool parse()
    {
        while (skipBlanks() && !atEnd()) {
            QString key;
            QString value;
            const bool entry = readText(key, u"a key in quotes"_s) && skipBlanks() && expect(u'=')
                               && skipBlanks() && readText(value, u"a value in quotes"_s) && skipBlanks()
                               && expect(u';');
            if (!entry) {
                return false;
            }
            m_values.insert(key, value);
        }
        return m_problem.isEmpty();
    }

    QString problem() const { return m_problem; }
    qsizetype line() const { return m_text.first(qMin(m_at, m_text.size())).count(u'\n') + 1; }

private:
    bool atEnd() const { return m_at >= m_text.size(); }

    bool fail(const QString &problem)
    {
        m_problem = problem;
        return false;
    }

    bool expect(QChar c)
    {
        if (atEnd() || m_text[m_at] != c) {
            return fail(LocalizationHelper::coreString(u"\"%1\" is missing"_s).arg(c));
        }
        ++m_at;
        return true;
    }

    bool skipBlanks()
    {
        while (!atEnd()) {
            const QStringView rest = m_text.sliced(m_at);
            if (rest.front().isSpace()) {
                ++m_at;
            } else if (rest.startsWith("//"_L1)) {
                const qsizetype end = m_text.indexOf(u'\n', m_at);
                m_at = end < 0 ? m_text.size() : end + 1;
            } else if (rest.startsWith("/*"_L1)) {
                const qsizetype end = m_text.indexOf("*/"_L1, m_at + 2);
                if (end < 0) {
                    return fail(LocalizationHelper::coreString(u"a comment is not closed"_s));
                }
                m_at = end + 2;
            } else {
                break;
            }
        }
        return true;
    }

    bool readText(QString &text, const QString &what)
    {
        if (atEnd() || m_text[m_at] != u'"') {
            return fail(LocalizationHelper::coreString(u"%1 is missing"_s).arg(what));
        }
        ++m_at;
        qsizetype plain = m_at;
        for (; !atEnd() && m_text[m_at] != u'"'; plain = m_at) {
            while (!atEnd() && m_text[m_at] != u'"' && m_text[m_at] != u'\\') {
                ++m_at;
            }
            text += m_text.sliced(plain, m_at - plain);
            if (!atEnd() && m_text[m_at] == u'\\' && !readEscape(text)) {
                return false;
            }
        }
        if (atEnd()) {
            return fail(LocalizationHelper::coreString(u"a text is not closed"_s));
        }
        ++m_at;
        return true;
    }

    bool readEscape(QString &text)
    {
        static constexpr QStringView letters = u"nrtabfv\"'\\";
        static constexpr QStringView meanings = u"\n\r\t\a\b\f\v\"'\\";
        const QStringView rest = m_text.sliced(m_at + 1);
        if (rest.isEmpty()) {
            return fail(LocalizationHelper::coreString(u"a text is not closed"_s));
        }
        if (rest.front() == u'u' || rest.front() == u'U') {
            bool ok = rest.size() >= 5;
            const ushort unit = ok ? hexadecimal(rest.sliced(1, 4), ok) : ushort(0);
            if (!ok) {
                return fail(LocalizationHelper::coreString(u"four hexadecimal digits are missing"_s));
            }
            text += QChar(unit);
            m_at += 6;
            return true;
        }
        const qsizetype letter = letters.indexOf(rest.front());
        text += letter < 0 ? rest.front() : meanings[letter];
        m_at += 2;
        return true;
    }

    static ushort hexadecimal(QStringView digits, bool &ok)
    {
        ok = std::all_of(digits.begin(), digits.end(),
                         [](QChar c) { return c.unicode() < 128 && isxdigit(c.unicode()); });
        return ok ? digits.toUShort(nullptr, 16) : ushort(0);
    }

    QStringView m_text;
    QHash<QString, QString> &m_values;
    QString m_problem;
    qsizetype m_at = 0;
};

bool report(QString *error, const QString &text)
{
    if (error) {
        *error = text;
    }
    return false;
}

} // namespace

bool StringsFile::load(const QString &path, QString *error)
{
    m_values.clear();
    QFile file(path);
    const QString name = QDir::toNativeSeparators(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return report(error, LocalizationHelper::coreString(u"The file \"%1\" cannot be read: %2"_s)
                                 .arg(name, file.errorString()));
    }
    constexpr qint64 mostBytes = qint64(16) << 20;
    if (file.size() > mostBytes) {
        const QString tooLarge = LocalizationHelper::coreString(u"The file is too large."_s);
        return report(error, u"%1: %2"_s.arg(name, tooLarge));
    }
    QString problem;
    if (!parse(file.read(mostBytes), &problem)) {
        return report(error, u"%1: %2"_s.arg(name, problem));
    }
    return true;
}

bool StringsFile::parse(const QByteArray &bytes, QString *error)
{
    m_values.clear();
    bool ok = false;
    const QString text = decoded(bytes, ok);
    if (!ok) {
        return report(error, LocalizationHelper::coreString(u"The text is neither UTF-8 nor UTF-16."_s));
    }
    QHash<QString, QString> values;
    Parser parser(text, values);
    if (!parser.parse()) {
        return report(error, LocalizationHelper::coreString(u"Line %1: %2."_s)
                                 .arg(QString::number(parser.line()), parser.problem()));
    }
    m_values = std::move(values);
    return true;
}

} // namespace Halvane::Corvex::Common
