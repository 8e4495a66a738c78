// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/ExpressionPurpose.h"

#include <functional>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! An expression in the value of a property, which has several of them if it has rules.
struct ExpressionPart
{
    GeneralDataList terms;
    ExpressionPurpose purpose;

    //! In order.
    static QList<ExpressionPart> of(const DesignerProperty &property);
    //! The value in which \a change was applied to the terms of each part.
    static QString changed(const DesignerProperty &property,
                           const std::function<void(ExpressionPart &)> &change);
};

} // namespace Halvane::Corvex::Designer
