// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ExpressionVocabulary.h"

#include <QHash>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

const QStringList &ExpressionVocabulary::mathOperators()
{
    static const QStringList words{u"+"_s, u"-"_s,  u"*"_s,  u"/"_s, u"%"_s, u"&"_s, u"|"_s, u"~"_s,
                                   u"^"_s, u"<<"_s, u">>"_s, u"("_s, u")"_s, u","_s, u"?"_s, u":"_s};
    return words;
}

const QStringList &ExpressionVocabulary::booleanOperators()
{
    static const QStringList words{u"("_s,  u")"_s,   u"&&"_s, u"||"_s, u"=="_s, u"==="_s,
                                   u"!="_s, u"!=="_s, u">"_s,  u">="_s, u"<"_s,  u"<="_s};
    return words;
}

const QStringList &ExpressionVocabulary::stringOperators()
{
    static const QStringList words{u"("_s, u")"_s, u","_s};
    return words;
}

const QStringList &ExpressionVocabulary::mathValues()
{
    static const QStringList words{u"E"_s,      u"LN2"_s, u"LN10"_s,    u"LOG2E"_s,
                                   u"LOG10E"_s, u"PI"_s,  u"SQRT1_2"_s, u"SQRT2"_s};
    return words;
}

const QStringList &ExpressionVocabulary::mathFunctions()
{
    static const QStringList words{
        u"abs"_s,        u"acos"_s,        u"asin"_s,      u"atan"_s,      u"atan2"_s,     u"ceil"_s,
        u"cos"_s,        u"exp"_s,         u"floor"_s,     u"log"_s,       u"max"_s,       u"min"_s,
        u"pow"_s,        u"random"_s,      u"round"_s,     u"sin"_s,       u"sqrt"_s,      u"tan"_s,
        u"getValueAt"_s, u"getLogCount"_s, u"getLogMax"_s, u"getLogMin"_s, u"getLogAvg"_s, u"poly"_s};
    return words;
}

const QStringList &ExpressionVocabulary::stringFunctions()
{
    static const QStringList words{u"concat"_s,      u"split"_s,     u"replace"_s,     u"replaceFirst"_s,
                                   u"replaceLast"_s, u"subString"_s, u"toLowerCase"_s, u"toUpperCase"_s,
                                   u"trim"_s,        u"length"_s};
    return words;
}

namespace {

QHash<QString, quint8> collectWords()
{
    QHash<QString, quint8> sets;
    const auto add = [&sets](const QStringList &words, ExpressionVocabulary::WordSet set) {
        for (const QString &word : words) {
            sets[word] |= set;
        }
    };
    add(ExpressionVocabulary::mathOperators(), ExpressionVocabulary::MathOperators);
    add(ExpressionVocabulary::booleanOperators(), ExpressionVocabulary::BooleanOperators);
    add(ExpressionVocabulary::mathFunctions(), ExpressionVocabulary::MathFunctions);
    add(ExpressionVocabulary::stringFunctions(), ExpressionVocabulary::StringFunctions);
    add(ExpressionVocabulary::mathValues(), ExpressionVocabulary::MathValues);
    add({u"random"_s}, ExpressionVocabulary::CompleteFunctions);
    add({u"getValueAt"_s, u"getLogCount"_s, u"getLogMax"_s, u"getLogMin"_s, u"getLogAvg"_s, u"poly"_s},
        ExpressionVocabulary::DeviceFunctions);
    add({u"concat"_s}, ExpressionVocabulary::MethodFunctions);
    return sets;
}

} // namespace

quint8 ExpressionVocabulary::setsOf(const QString &word)
{
    static const QHash<QString, quint8> sets = collectWords();
    return sets.value(word, 0);
}

} // namespace Halvane::Corvex::Designer
