// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/FunctionCall.h"

#include "corvex/common/LocalizationHelper.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype any = std::numeric_limits<qsizetype>::max();

struct Function
{
    QLatin1StringView name;
    qsizetype fewest;
    qsizetype most;
    bool takesLog = false;
};

//! All functions with arguments, as on the device.
constexpr Function functions[] = {
    {"abs"_L1, 1, 1},
    {"acos"_L1, 1, 1},
    {"asin"_L1, 1, 1},
    {"atan"_L1, 1, 1},
    {"atan2"_L1, 2, 2},
    {"ceil"_L1, 1, 1},
    {"cos"_L1, 1, 1},
    {"exp"_L1, 1, 1},
    {"floor"_L1, 1, 1},
    {"log"_L1, 1, 1},
    {"max"_L1, 1, any},
    {"min"_L1, 1, any},
    {"pow"_L1, 2, 2},
    {"round"_L1, 1, 1},
    {"sin"_L1, 1, 1},
    {"sqrt"_L1, 1, 1},
    {"tan"_L1, 1, 1},
    {"getValueAt"_L1, 2, 2, true},
    {"getLogCount"_L1, 1, 1, true},
    {"getLogMax"_L1, 1, 1, true},
    {"getLogMin"_L1, 1, 1, true},
    {"getLogAvg"_L1, 1, 1, true},
    {"poly"_L1, 2, any},
    {"concat"_L1, 1, any},
    {"split"_L1, 2, 3},
    {"replace"_L1, 3, 3},
    {"replaceFirst"_L1, 3, 3},
    {"replaceLast"_L1, 3, 3},
    {"subString"_L1, 2, 3},
    {"toLowerCase"_L1, 1, 1},
    {"toUpperCase"_L1, 1, 1},
    {"trim"_L1, 1, 1},
    {"length"_L1, 1, 1},
};

bool isOperator(const GeneralDataInfo &term, QLatin1StringView sign)
{
    return term.valueType() == GeneralDataInfo::OperatorValue && term.value() == sign;
}

} // namespace

QString FunctionCall::wanted() const
{
    using Common::LocalizationHelper;
    if (most == any) {
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
        const auto *function =
            term.valueType() == GeneralDataInfo::FunctionValue
                ? std::ranges::find(functions, term.value(), [](const Function &row) { return row.name; })
                : std::end(functions);
        const bool isCall = function != std::end(functions);
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
            calls.append({term.value(), function->fewest, function->most, function->takesLog});
            open.append({calls.size() - 1, i + 1});
        } else if (isOperator(term, "("_L1)) {
            open.append({-1, i + 1});
        }
    }
    return calls;
}

} // namespace Halvane::Corvex::Designer
