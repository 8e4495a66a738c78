// SPDX-License-Identifier: MIT
#include "corvex/values/private/ExpressionOperations.h"

#include "corvex/values/expressions/ExpressionFunction.h"
#include "corvex/values/expressions/ExpressionGrammar.h"
#include "corvex/values/private/ExpressionWords.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Info = GeneralDataInfo;
using List = GeneralDataList;
using Operand = ExpressionOperand;
using enum OperandType;

//! An operator with a higher rank binds more.
struct Rank
{
    QLatin1StringView sign;
    int rank;
    OperandType result; //!< Other: depends on the values
};
constexpr int rankOfBrackets = -1;
constexpr int rankOfSelection = 0;
constexpr int rankOfUnary = 11;
constexpr Rank ranks[] = {
    {"||"_L1, 1, Other},    {"&&"_L1, 2, Other},   {"|"_L1, 3, Number},   {"^"_L1, 4, Number},
    {"&"_L1, 5, Number},    {"=="_L1, 6, Boolean}, {"!="_L1, 6, Boolean}, {"==="_L1, 6, Boolean},
    {"!=="_L1, 6, Boolean}, {"<"_L1, 7, Boolean},  {">"_L1, 7, Boolean},  {"<="_L1, 7, Boolean},
    {">="_L1, 7, Boolean},  {"<<"_L1, 8, Number},  {">>"_L1, 8, Number},  {"+"_L1, 9, Other},
    {"-"_L1, 9, Number},    {"*"_L1, 10, Number},  {"/"_L1, 10, Number},  {"%"_L1, 10, Number},
};

OperandType common(OperandType a, OperandType b)
{
    return a == b ? a : Other;
}

class OperationReader
{
public:
    OperationReader(const List &terms, List::InfoType kind)
        : m_terms(terms)
        , m_kind(kind)
    { }

    QList<ExpressionOperation> read()
    {
        for (qsizetype i = 0; i < m_terms.count(); ++i) {
            take(m_terms.at(i), i);
        }
        combineAbove(rankOfBrackets);
        return m_operations;
    }

private:
    struct Sign
    {
        qsizetype term;
        int rank;
        OperandType result;
        qsizetype values; //!< the number of values before it
    };

    void take(const Info &term, qsizetype place)
    {
        if (term.valueType() == Info::FunctionValue) {
            takeFunction(term, place);
        } else if (term.valueType() != Info::OperatorValue) {
            m_values.append(operand(term, place));
            m_isOperandDue = false;
        } else if (term.value() == u'(') {
            push(place, rankOfBrackets, Other);
        } else if (term.value() == u')') {
            close();
        } else {
            takeOperator(term.value(), place);
        }
    }

    void takeFunction(const Info &function, qsizetype place)
    {
        const ExpressionFunction *known = ExpressionFunction::find(function.value());
        const OperandType result = !known ? Other : known->result == "number"_L1 ? Number : Text;
        if (ExpressionWords::isWholeCall(function.value())) {
            m_values.append({result, result, -1});
            m_isOperandDue = false;
        } else {
            push(place, rankOfBrackets, result);
        }
    }

    void takeOperator(const QString &sign, qsizetype place)
    {
        if (m_isOperandDue) {
            push(place, rankOfUnary, Number);
        } else if (sign == u'?') {
            combineAbove(rankOfSelection);
            dropTo(m_values.size() - 1);
            push(place, rankOfSelection, Other);
        } else if (sign == u':') {
            while (!m_signs.isEmpty() && m_signs.last().rank >= rankOfSelection && !isAtSelector()) {
                combine();
            }
            if (isAtSelector()) {
                m_signs.last().term = place;
            }
            m_isOperandDue = true;
        } else if (sign == u',') {
            combineAbove(rankOfBrackets);
            m_isOperandDue = true;
        } else if (const Rank *row = std::ranges::find(ranks, sign, &Rank::sign); row != std::end(ranks)) {
            combineAbove(row->rank - 1);
            push(place, row->rank, row->result);
        }
    }

    void push(qsizetype place, int rank, OperandType result)
    {
        m_signs.append({place, rank, result, m_values.size()});
        m_isOperandDue = true;
    }

    bool isAtSelector() const
    {
        return !m_signs.isEmpty() && ExpressionGrammar::isOperator(m_terms.at(m_signs.last().term), u'?');
    }

    void dropTo(qsizetype count) { m_values.resize(std::clamp<qsizetype>(count, 0, m_values.size())); }

    void close()
    {
        combineAbove(rankOfBrackets);
        m_isOperandDue = false;
        if (m_signs.isEmpty()) {
            return;
        }
        const Sign opening = m_signs.takeLast();
        if (m_terms.at(opening.term).valueType() == Info::FunctionValue) {
            dropTo(opening.values);
            m_values.append({opening.result, opening.result, -1});
        }
    }

    void combineAbove(int rank)
    {
        while (!m_signs.isEmpty() && m_signs.last().rank > rank) {
            combine();
        }
    }

    void combine()
    {
        const Sign sign = m_signs.takeLast();
        if (m_values.isEmpty()) {
            return;
        }
        const Operand right = m_values.takeLast();
        if (sign.rank == rankOfUnary || m_values.isEmpty()) {
            m_operations.append({sign.term, right, right});
            m_values.append({sign.result, sign.result, -1});
            return;
        }
        const Operand left = m_values.takeLast();
        if (sign.rank != rankOfSelection) {
            m_operations.append({sign.term, left, right});
        }
        Operand result{sign.result, sign.result, -1};
        if (m_terms.at(sign.term).value() == u'+') {
            const bool joins = m_kind == List::StringExpression && (left.code == Text || right.code == Text);
            const bool isText = left.meaning == Text || right.meaning == Text;
            result = {joins && isText ? Text : Number, joins ? Text : Number, -1};
        } else if (sign.result == Other) {
            result = {common(left.meaning, right.meaning), common(left.code, right.code), -1};
        }
        m_values.append(result);
    }

    Operand operand(const Info &term, qsizetype place) const
    {
        const OperandType meaning = meaningOf(term.dataType());
        const bool isConstant = term.valueType() == Info::ConstantValue;
        const bool selects =
            place + 1 < m_terms.count() && ExpressionGrammar::isOperator(m_terms.at(place + 1), u'?');
        OperandType code = meaning;
        if (m_kind != List::BoolExpression && selects) {
            code = Boolean;
        } else if (m_kind == List::MathExpression) {
            code = Number;
        } else if (m_kind == List::StringExpression) {
            code = isConstant ? Text : meaning == Boolean ? Number : meaning;
        } else if (meaning == Color && term.valueType() != Info::ObjectValue) {
            code = Text;
        }
        return {meaning, code, place};
    }

    static OperandType meaningOf(Info::DataType type)
    {
        switch (type) {
        case Info::BooleanData:
            return Boolean;
        case Info::IntegerData:
        case Info::FloatData:
        case Info::NumberData:
            return Number;
        case Info::StringData:
            return Text;
        case Info::ColorData:
            return Color;
        default:
            return Other;
        }
    }

    const List &m_terms;
    List::InfoType m_kind;
    QList<Operand> m_values;
    QList<Sign> m_signs;
    QList<ExpressionOperation> m_operations;
    bool m_isOperandDue = true;
};

} // namespace

bool ExpressionOperation::isComparison(const QString &sign)
{
    const auto *row = std::ranges::find(ranks, sign, &Rank::sign);
    return row != std::end(ranks) && row->result == Boolean;
}

bool ExpressionOperation::compares(const List &terms)
{
    return std::any_of(terms.begin(), terms.end(), [](const Info &term) {
        return term.valueType() == Info::OperatorValue && isComparison(term.value());
    });
}

QList<ExpressionOperation> ExpressionOperation::of(const List &terms, List::InfoType kind)
{
    return OperationReader(terms, kind).read();
}

} // namespace Halvane::Corvex::Designer
