// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/FunctionCall.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/ExpressionFunction.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

bool isOperator(const GeneralDataInfo &term, QLatin1StringView sign)
{
    return term.valueType() == GeneralDataInfo::OperatorValue && term.value() == sign;
}

} // namespace

QString FunctionCall::wanted() const
{
    using Common::LocalizationHelper;
    if (most == ExpressionFunction::anyNumber) {
        return LocalizationHelper::coreString(u"%1 or more arguments"_s).arg(fewest);
    }
    if (fewest < most) {
        return LocalizationHelper::coreString(u"%1 to %2 arguments"_s).arg(fewest).arg(most);
    }
    return fewest == 1 ? LocalizationHelper::coreString(u"1 argument"_s)
                       : LocalizationHelper::coreString(u"%1 arguments"_s).arg(fewest);
}

QList<FunctionCall> FunctionCall::of(const GeneralDataList &expression)
{
    // An open call, or a parenthesis around a part of an argument.
    struct Open
    {
        qsizetype call;      //!< its index; -1 for a parenthesis
        qsizetype firstTerm; //!< the first term inside
    };
    QList<FunctionCall> calls;
    QList<Open> open;
    // Ends an argument of the innermost call, before the term with that index.
    const auto endArgument = [&](qsizetype end) {
        const auto [index, first] = open.constLast();
        FunctionCall *call = index < 0 ? nullptr : &calls[index];
        if (call && call->argumentCount == 0 && end > first) {
            call->argumentCount = 1;
            call->onlyFirst = end == first + 1 ? std::optional(expression.at(first)) : std::nullopt;
        }
    };
    for (qsizetype i = 0; i < expression.count(); ++i) {
        const GeneralDataInfo &term = expression.at(i);
        const ExpressionFunction *function = term.valueType() == GeneralDataInfo::FunctionValue
                                                 ? ExpressionFunction::find(term.value())
                                                 : nullptr;
        const bool isCall = function && function->most > 0;
        const bool closes = isOperator(term, ")"_L1) && !open.isEmpty();
        const bool separates = isOperator(term, ","_L1) && !open.isEmpty() && open.constLast().call >= 0;
        if (closes) {
            endArgument(i);
            open.removeLast();
        } else if (separates) {
            endArgument(i);
            ++calls[open.constLast().call].argumentCount;
        }
        if (isCall) {
            calls.append({term.value(), function->fewest, function->most, function->takesLog()});
            open.append({calls.size() - 1, i + 1});
        } else if (isOperator(term, "("_L1)) {
            open.append({-1, i + 1});
        }
    }
    return calls;
}

} // namespace Halvane::Corvex::Designer
