// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRegularExpression>
#include <QSet>
#include <QString>

//! The grammar of DBC files, as far as J1939 databases use it. It is our own, based on the published format
//! because no reader is packaged, so it is not an independent check: it finds files that no program can read,
//! but not misunderstandings of the format.
class DbcGrammar
{
public:
    //! The first problem of a file, with the rest of the file from there; empty for a valid file.
    static QString problemOf(const QByteArray &bytes)
    {
        DbcGrammar grammar(QString::fromLatin1(bytes));
        const bool isGood = grammar.file();
        return isGood ? QString() : grammar.m_problem + QStringLiteral(" before: ") + grammar.m_rest.left(60);
    }

private:
    explicit DbcGrammar(const QString &text)
        : m_rest(text)
    { }

    bool file()
    {
        bool good = take(R"(VERSION "[^"]*")") && take("NS_ ?:") && take("BS_ ?:") && take("BU_ ?:( \\w+)*");
        while (good && isNext("BO_ ")) {
            good = message();
        }
        while (good && isNext("CM_ ")) {
            good = take(R"(CM_ SG_ (\d+) (\w+) "[^"]*" ?;)") && knowsSignal();
        }
        while (good && isNext("BA_DEF_ ")) {
            good = take(R"-(BA_DEF_ (BO_ |SG_ |)"(\w+)" (STRING|INT -?\d+ -?\d+|ENUM "\w+"(,"\w+")*) ?;)-")
                   && isNew(m_captured.at(2));
        }
        while (good && isNext("BA_DEF_DEF_ ")) {
            good = take(R"-(BA_DEF_DEF_ "(\w+)" ("[^"]*"|-?\d+) ?;)-") && isKnown(m_captured.at(1));
        }
        while (good && isNext("BA_ ")) {
            good = attribute();
        }
        return good && (m_rest.trimmed().isEmpty() || fail("nothing more is due"));
    }

    bool message()
    {
        if (!take(R"(BO_ (\d+) ([A-Za-z_]\w*) ?: ?(\d+) (\w+))")) {
            return false;
        }
        m_message = m_captured.at(1);
        const int bits = 8 * m_captured.at(3).toInt();
        const bool isKeyword = m_captured.at(2).endsWith(u'_') && m_captured.at(2).count(u'_') == 1;
        bool good = isNew(QStringLiteral("BO_ ") + m_message) && isNew(m_captured.at(2))
                    && (!isKeyword || fail("a word of the format as a name"));
        while (good && isNext("SG_ ")) {
            const QString number = QStringLiteral(R"(-?\d+(?:\.\d+)?)");
            good = take(QStringLiteral(R"(SG_ ([A-Za-z_]\w*) ?: ?(\d+)\|(\d+)@([01])[+-] )"
                                       R"(\((%1),%1\) \[%1\|%1\] "[^"]*" \w+)")
                            .arg(number))
                   && isNew(m_message + u' ' + m_captured.at(1))
                   && (m_captured.at(2).toInt() + m_captured.at(3).toInt() <= bits || fail("bits outside"))
                   && (m_captured.at(5).toDouble() != 0 || fail("a factor of 0"));
        }
        return good;
    }

    bool attribute()
    {
        if (!take(R"-(BA_ "(\w+)" (?:BO_ (\d+) |SG_ (\d+) (\w+) |)("[^"]*"|-?\d+) ?;)-")
            || !isKnown(m_captured.at(1))) {
            return false;
        }
        const QString message = m_captured.value(2);
        const QString signalName = m_captured.value(4);
        return (message.isEmpty() || isKnown(QStringLiteral("BO_ ") + message))
               && (signalName.isEmpty() || isKnown(m_captured.at(3) + u' ' + signalName));
    }

    bool knowsSignal() { return isKnown(m_captured.at(1) + u' ' + m_captured.at(2)); }
    bool isKnown(const QString &name) { return m_names.contains(name) || fail("an unknown name"); }
    bool isNew(const QString &name)
    {
        if (m_names.contains(name)) {
            return fail("a name twice");
        }
        m_names.insert(name);
        return true;
    }

    bool isNext(const char *keyword)
    {
        m_rest = m_rest.trimmed();
        return m_rest.startsWith(QLatin1StringView(keyword));
    }

    bool take(const char *pattern) { return take(QString::fromLatin1(pattern)); }
    bool take(const QString &pattern)
    {
        m_rest = m_rest.trimmed();
        const QRegularExpression expression(u'^' + pattern);
        const QRegularExpressionMatch match = expression.match(m_rest);
        if (!match.hasMatch()) {
            return fail("not as due");
        }
        m_captured = match.capturedTexts();
        m_rest = m_rest.sliced(match.capturedLength());
        return m_rest.isEmpty() || m_rest.at(0) == u'\n' || fail("more on the line");
    }

    bool fail(const char *problem)
    {
        m_problem = QString::fromLatin1(problem);
        return false;
    }

    QString m_rest;
    QString m_problem;
    QString m_message;
    QStringList m_captured;
    QSet<QString> m_names;
};
