// SPDX-License-Identifier: MIT
#include "corvex/values/private/ExpressionMeaning.h"

#include "corvex/values/expressions/ExpressionFunction.h"
#include "corvex/values/expressions/ExpressionGrammar.h"
#include "corvex/values/private/ExpressionWords.h"

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Info = GeneralDataInfo;

bool isAnyOf(const Info &term, std::initializer_list<QLatin1StringView> signs)
{
    return term.valueType() == Info::OperatorValue && std::ranges::find(signs, term.value()) != signs.end();
}

bool opensCall(const Info &term)
{
    return term.valueType() == Info::FunctionValue && !ExpressionWords::isWholeCall(term.value());
}

bool opensLevel(const Info &term)
{
    return opensCall(term) || ExpressionGrammar::isOperator(term, u'(');
}

bool isName(const Info &term)
{
    return term.valueType() == Info::ObjectValue || term.valueType() == Info::VariableValue;
}

bool isNumber(const Info &term)
{
    const Info::DataType type = term.dataType();
    return type == Info::IntegerData || type == Info::FloatData || type == Info::NumberData
           || (type == Info::BooleanData && isName(term)) || term.valueType() == Info::FunctionValue;
}

//! Finds the sums of numbers, without recursion: a hostile text can have any number of parentheses.
class SumFinder
{
public:
    QList<qsizetype> find(const GeneralDataList &terms)
    {
        m_levels.append(Level());
        for (qsizetype i = 0; i < terms.count(); ++i) {
            take(terms.at(i), i);
        }
        endProduct();
        std::ranges::sort(m_sums);
        return m_sums;
    }

private:
    //! What is between two parentheses: products, their sums, and the results that these are.
    struct Level
    {
        bool isValueNumber = false; //!< the last value of the product
        bool hasValue = false;
        bool isCalculated = false; //!< the product has a sign that gives numbers
        bool isSumNumber = false;
        bool hasSum = false;
        bool areResultsNumbers = true;
        qsizetype plus = -1; //!< the "+" before the product
        QString function;    //!< the level contains its arguments
    };

    void take(const Info &term, qsizetype place)
    {
        Level &level = m_levels.last();
        if (opensLevel(term)) {
            m_levels.append(Level());
            m_levels.last().function = opensCall(term) ? term.value() : QString();
        } else if (ExpressionGrammar::isOperator(term, u')')) {
            close();
        } else if (term.valueType() != Info::OperatorValue) {
            level.isValueNumber = isNumber(term);
            level.hasValue = true;
        } else if (!level.hasValue || isAnyOf(term, {"*"_L1, "/"_L1, "%"_L1})) {
            level.isCalculated = true;
        } else if (isAnyOf(term, {"+"_L1, "-"_L1})) {
            endProduct();
            level.plus = term.value() == u'+' ? place : -1;
        } else {
            endResult(term);
        }
    }

    void endProduct()
    {
        Level &level = m_levels.last();
        const bool isNumber = level.hasValue && (level.isCalculated || level.isValueNumber);
        const bool isSum = level.plus >= 0 && level.isSumNumber && isNumber;
        if (isSum) {
            m_sums.append(level.plus);
        }
        level.isSumNumber = level.plus >= 0 ? isSum : level.hasSum || isNumber;
        level.hasSum = true;
        level.plus = -1;
        level.hasValue = false;
        level.isCalculated = false;
    }

    //! At an operator that binds less than "+".
    void endResult(const Info &sign)
    {
        endProduct();
        Level &level = m_levels.last();
        level.hasSum = false;
        if (isAnyOf(sign, {":"_L1, "&&"_L1, "||"_L1})) {
            level.areResultsNumbers = level.areResultsNumbers && level.isSumNumber;
        } else if (sign.value() == u',') {
            level.areResultsNumbers = true;
        }
    }

    void close()
    {
        endProduct();
        if (m_levels.size() == 1) {
            return;
        }
        const Level inner = m_levels.takeLast();
        const ExpressionFunction *function = ExpressionFunction::find(inner.function);
        m_levels.last().hasValue = true;
        m_levels.last().isValueNumber =
            function ? function->result == "number"_L1 : inner.areResultsNumbers && inner.isSumNumber;
    }

    QList<Level> m_levels;
    QList<qsizetype> m_sums;
};

} // namespace

QList<qsizetype> ExpressionMeaning::sums(const GeneralDataList &terms)
{
    return SumFinder().find(terms);
}

qsizetype ExpressionMeaning::chained(const GeneralDataList &terms)
{
    struct Level
    {
        bool hasOrder = false;    //!< the value before is the result of "<" or a similar sign
        bool hasEquality = false; //!< the same for "==" and "!="
    };
    QList<Level> levels{Level()};
    for (qsizetype i = 0; i < terms.count(); ++i) {
        const Info &term = terms.at(i);
        Level &level = levels.last();
        if (opensLevel(term)) {
            levels.append(Level());
        } else if (ExpressionGrammar::isOperator(term, u')')) {
            levels.removeLast();
            if (levels.isEmpty()) {
                return -1;
            }
        } else if (isAnyOf(term, {"<"_L1, "<="_L1, ">"_L1, ">="_L1})) {
            if (level.hasOrder) {
                return i;
            }
            level.hasOrder = true;
        } else if (isAnyOf(term, {"=="_L1, "==="_L1, "!="_L1, "!=="_L1})) {
            // The result of a comparison can be compared with a boolean.
            if (level.hasEquality && i + 1 < terms.count() && isNumber(terms.at(i + 1))
                && terms.at(i + 1).dataType() != Info::BooleanData) {
                return i;
            }
            level = {false, true};
        } else if (isAnyOf(term, {"&&"_L1, "||"_L1, ","_L1, "?"_L1, ":"_L1, "&"_L1, "|"_L1, "^"_L1})) {
            level = Level();
        }
    }
    return -1;
}

} // namespace Halvane::Corvex::Designer
