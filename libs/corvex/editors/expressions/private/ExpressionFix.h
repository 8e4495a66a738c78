// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/expressions/private/ExpressionScope.h"

namespace Halvane::Corvex::Designer {

//! A correction of the text of an expression that has an error.
struct ExpressionFix
{
    qsizetype position = 0;
    qsizetype length = 0;
    QString text;  //!< replaces that part
    QString title; //!< for a button

    //! Nothing if no correction is likely.
    static std::optional<ExpressionFix> of(const ExpressionScope &scope, const QString &text,
                                           const ExpressionText::Error &error);
};

} // namespace Halvane::Corvex::Designer
