// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/FunctionCall.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

TEST(FunctionCall, ArgumentsAreCountedByTheParenthesesAroundThem)
{
    //! The calls, each with its number of arguments, "!" for an unsupported number, and the first argument if
    //! it is a single term.
    const struct
    {
        QString expression;
        QString calls;
    } cases[] = {
        {u"<0406speed><0101+><02041>"_s, u""_s},
        {u"<0502getValueAt><0101)>"_s, u"getValueAt 0!"_s},
        {u"<0502getValueAt><040Ahistory><0101,><02040><0101)>"_s, u"getValueAt 2 040Ahistory"_s},
        {u"<0502max><02041><0101,><0502pow><02042><0101,><02043><0101)><0101)>"_s,
         u"max 2 02041, pow 2 02042"_s},
        {u"<0502pow><0502sqrt><02044><0101)><0101)>"_s, u"pow 1!, sqrt 1 02044"_s},
        {u"<0502abs><0101(><02041><0101+><02042><0101)><0101)>"_s, u"abs 1"_s},
        {u"<0502max><0101(><02041><0101)><0101,><02042><0101)>"_s, u"max 2"_s},
        {u"<0502sqrt><02041><0101,><02042><0101)>"_s, u"sqrt 2! 02041"_s},
        {u"0502random"_s, u""_s},
    };
    for (const auto &[expression, wanted] : cases) {
        bool ok = false;
        QStringList calls;
        for (const FunctionCall &call : FunctionCall::of(GeneralDataList(expression, &ok))) {
            calls.append(u"%1 %2%3 %4"_s
                             .arg(call.name, QString::number(call.argumentCount),
                                  call.hasGoodCount() ? u""_s : u"!"_s,
                                  call.onlyFirst ? GeneralDataList({*call.onlyFirst}).toString() : QString())
                             .trimmed());
        }
        EXPECT_TRUE(ok) << expression.toStdString();
        EXPECT_EQ(calls.join(u", "_s), wanted) << expression.toStdString();
    }
}

TEST(FunctionCall, KnowsEveryFunctionThatExpressionsMayCall)
{
    const QStringList words = ExpressionVocabulary::mathFunctions() + ExpressionVocabulary::stringFunctions();
    for (const QString &word : words) {
        const bool isComplete =
            (ExpressionVocabulary::setsOf(word) & ExpressionVocabulary::CompleteFunctions) != 0;
        EXPECT_EQ(FunctionCall::of(GeneralDataList(u"0502"_s + word)).size(), isComplete ? 0 : 1)
            << word.toStdString();
    }
}
