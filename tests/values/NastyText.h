// SPDX-License-Identifier: MIT
#pragma once

#include <QRandomGenerator>
#include <QString>
#include <QStringList>

using namespace Qt::StringLiterals;

//! Random texts of separators, escapes and blanks; the same in every run.
class NastyText
{
public:
    explicit NastyText(quint32 seed)
        : m_random(seed)
    { }

    int number(int below) { return int(m_random.bounded(below)); }

    QString text()
    {
        static const QStringList pieces{
            u":"_s,   u";"_s,      u"|"_s,       u" | "_s,      u"%"_s,  u"%3B"_s,          u"%00"_s,
            u"%2"_s,  u"5"_s,      u"3a"_s,      u" "_s,        u"\n"_s, u"\u00A0"_s,       u"\u2003"_s,
            u"%E2"_s, u"%80%83"_s, u"key: a;"_s, u"propName"_s, u"é"_s,  u"\U0001F600"_s,   u","_s,
            u"["_s,   u"]"_s,      u"text"_s,    u"{x}"_s,      u"\\"_s, u"valueString:"_s, u"\""_s,
        };
        QString text;
        for (int length = number(6); length > 0; --length) {
            text += pieces[number(int(pieces.size()))];
        }
        return text;
    }

private:
    QRandomGenerator m_random;
};
