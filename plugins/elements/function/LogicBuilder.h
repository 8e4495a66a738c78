// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Rules: while a condition is true, assignments are executed whenever a value changes.
class LogicBuilder : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(LogicBuilder, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
