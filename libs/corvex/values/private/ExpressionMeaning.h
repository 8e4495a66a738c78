// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/ExpressionPurpose.h"

#include <QList>

#include <optional>

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
    /*! Replaces constants by those of another type that the code compares in the same way.

        A color beside a color of an element becomes the text that this equals. In an expression for a text,
        all constants are texts and booleans are the numbers 0 and 1; there, true and false become 1 and 0.
    */
    static void adaptConstants(GeneralDataList &terms, GeneralDataList::InfoType kind);

    //! An operation whose result is not what its text says.
    struct Fault
    {
        qsizetype term;         //!< that is wrong
        QString reason;         //!< what to write instead; translated
        bool isOfColor = false; //!< it compares a color of an element
    };
    //! The first fault of a complete expression, such as a comparison of a number with a word.
    static std::optional<Fault> fault(const GeneralDataList &terms, GeneralDataList::InfoType kind);
};

} // namespace Halvane::Corvex::Designer
