// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/FunctionCall.h"
#include "corvex/values/expressions/ExpressionFunction.h"
#include "corvex/values/expressions/ExpressionText.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"

#include <QJSEngine>
#include <QSet>

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

TEST(FunctionCall, EveryFunctionOfExpressionsHasAnExampleWithItsValue)
{
    class Names : public ExpressionNames
    {
        std::optional<GeneralDataInfo> find(const QString &path) const override
        {
            using Info = GeneralDataInfo;
            return path == "history"_L1 ? std::optional(Info(Info::VariableValue, Info::LogData, path))
                                        : std::nullopt;
        }
    };
    QJSEngine engine;
    QStringList names;
    for (const ExpressionFunction &function : ExpressionFunction::all()) {
        names.append(function.name);
        const QString text = QString::fromUtf16(function.example);
        const bool isText = ExpressionVocabulary::stringFunctions().contains(function.name);
        const ExpressionPurpose purpose =
            isText ? ExpressionPurpose{GeneralDataList::StringExpression, GeneralDataInfo::StringOutput}
                   : ExpressionPurpose{GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput};
        const ExpressionText::Reading reading = ExpressionText::read(text, purpose, Names());
        EXPECT_FALSE(reading.error) << qPrintable(text + u": "_s + reading.error->message);
        EXPECT_EQ(ExpressionText::print(reading.terms, purpose, Names()), text);
        const QString code = reading.terms.toQmlString(purpose.output, purpose.kind);
        const QString value = QString::fromUtf16(function.value);
        EXPECT_TRUE(value.isEmpty() || code.contains(u"qmlViewer"_s)
                    || engine.evaluate(code).toString() == value)
            << qPrintable(code);
        for (const FunctionCall &call : FunctionCall::of(reading.terms)) {
            EXPECT_TRUE(call.hasGoodCount()) << qPrintable(text);
        }
    }
    QStringList known = ExpressionVocabulary::mathFunctions() + ExpressionVocabulary::stringFunctions();
    EXPECT_EQ(QSet(names.begin(), names.end()), QSet(known.begin(), known.end()));
}
