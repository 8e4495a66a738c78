// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/ExpressionRules.h"

#include <QList>

namespace Halvane::Corvex::Designer {

//! The order of terms in an expression.
class CORVEX_EXPORT ExpressionGrammar
{
public:
    using Kind = ExpressionRules::Kind;
    using Terms = QList<GeneralDataInfo>;

    //! Whether the term can end an operand, so that an operator must follow.
    static bool endsOperand(Kind kind, const GeneralDataInfo &term);

    //! The index of the first term that cannot follow the previous ones; the number of terms if the
    //! expression is incomplete; -1 if it is complete.
    static qsizetype firstMisplaced(Kind kind, const Terms &terms);

    static bool isOperator(const GeneralDataInfo &term, QChar sign)
    {
        return term.valueType() == GeneralDataInfo::OperatorValue && term.value() == sign;
    }
};

} // namespace Halvane::Corvex::Designer
