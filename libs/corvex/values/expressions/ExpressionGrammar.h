// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/ExpressionRules.h"

#include <QList>

namespace Halvane::Corvex::Designer {

//! How the terms of an expression may follow each other.
class CORVEX_EXPORT ExpressionGrammar
{
public:
    using Kind = ExpressionRules::Kind;
    using Terms = QList<GeneralDataInfo>;

    //! Whether an operand may end with the term, so that an operator is due.
    static bool endsOperand(Kind kind, const GeneralDataInfo &term);

    //! The index of the first term that cannot follow those before it, the number of terms when the
    //! expression ends too early, -1 when it is complete.
    static qsizetype firstMisplaced(Kind kind, const Terms &terms);

    static bool isOperator(const GeneralDataInfo &term, QChar sign)
    {
        return term.valueType() == GeneralDataInfo::OperatorValue && term.value() == sign;
    }
};

} // namespace Halvane::Corvex::Designer
