// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/GeneralDataList.h"

namespace Halvane::Corvex::Designer {

//! What a list of terms is for, which decides how it is checked, translated and written.
struct ExpressionPurpose
{
    GeneralDataList::InfoType kind = GeneralDataList::GeneralExpression;
    GeneralDataInfo::OutputType output = GeneralDataInfo::RawOutput;
    bool isTermList = false; //!< the terms are values of their own, such as the data that a trigger observes
    bool isColor = false;    //!< the value is a color

    bool isAssignment() const { return kind == GeneralDataList::AssignExpression; }
    //! Whether a sign, which is no term, is between any two terms.
    bool separatesTerms() const { return isTermList || isAssignment(); }
};

} // namespace Halvane::Corvex::Designer
