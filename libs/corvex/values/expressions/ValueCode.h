// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/ExpressionPurpose.h"

#include <QColor>

namespace Halvane::Corvex::Designer {

/*! The code of an expression that is the value of a property.

    QML converts the result of code, but it refuses a document in which a property has a constant of another
    type. So a constant is converted here, or it has no code.
*/
class CORVEX_EXPORT ValueCode
{
public:
    //! Empty if the terms are incomplete, cannot be translated, or contain a misfit.
    static QString of(const GeneralDataList &terms, const ExpressionPurpose &purpose);
    //! The index of a constant that is the value but has the wrong type; -1 if all types fit.
    static qsizetype misfit(const GeneralDataList &terms, const ExpressionPurpose &purpose);
    //! What a misfit is not, for the user.
    static QString explanation(const ExpressionPurpose &purpose);

    //! The text that a color of an element equals: "#rrggbb", or "#aarrggbb" for a transparent color.
    static QString comparable(const QColor &color);
};

} // namespace Halvane::Corvex::Designer
