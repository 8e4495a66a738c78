// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/ExpressionPurpose.h"

#include <QList>

namespace Halvane::Corvex::Designer {

//! What people mean by an expression, where the code of its terms would do something else.
class ExpressionMeaning
{
public:
    /*! The places of each "+" that adds two numbers in an expression for a text.

        There, all constants are texts, so "+" would join them, while "-" converts them to numbers.
    */
    static QList<qsizetype> sums(const GeneralDataList &terms);
    //! The place of a comparison whose first value is the result of a comparison, as in "0 < a < 9"; -1 if
    //! no comparison is chained.
    static qsizetype chained(const GeneralDataList &terms);
    //! Replaces the colors that are compared with a color of an element by the texts that these equal.
    static void compareColors(GeneralDataList &terms);
};

} // namespace Halvane::Corvex::Designer
