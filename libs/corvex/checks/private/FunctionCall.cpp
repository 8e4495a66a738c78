// SPDX-License-Identifier: MIT
#include "corvex/checks/private/FunctionCall.h"

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

//! All functions that take something, as the device has them.
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
    // What is open: a call, or a parenthesis around a part of an argument.
    struct Open
    {
        qsizetype call;             //!< its index; -1 for a parenthesis
        qsizetype termsOfFirst = 0; //!< of its first argument, those within other parentheses among them
    };
    QList<FunctionCall> calls;
    QList<Open> open;
    const auto countTerm = [&](const GeneralDataInfo &term) {
        for (Open &outer : open) {
            FunctionCall *call = outer.call < 0 ? nullptr : &calls[outer.call];
            if (call && call->argumentCount == 0) {
                call->argumentCount = 1;
            }
            if (call && call->argumentCount == 1) {
                call->onlyFirst = ++outer.termsOfFirst == 1 ? std::optional(term) : std::nullopt;
            }
        }
    };
    for (const GeneralDataInfo &term : expression) {
        const auto *function =
            term.valueType() == GeneralDataInfo::FunctionValue
                ? std::ranges::find(functions, term.value(), [](const Function &row) { return row.name; })
                : std::end(functions);
        const bool isCall = function != std::end(functions);
        const bool closes = isOperator(term, ")"_L1) && !open.isEmpty();
        const bool separates = isOperator(term, ","_L1) && !open.isEmpty() && open.constLast().call >= 0;
        if (closes) {
            open.removeLast();
        } else if (separates) {
            ++calls[open.constLast().call].argumentCount;
        }
        if (!separates) {
            countTerm(term);
        }
        if (isCall) {
            calls.append({term.value(), function->fewest, function->most, function->takesLog});
            open.append(Open{calls.size() - 1});
        } else if (isOperator(term, "("_L1)) {
            open.append(Open{-1});
        }
    }
    return calls;
}

} // namespace Halvane::Corvex::Designer
