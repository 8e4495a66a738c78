// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Switches between two states when it is pressed, and follows a boolean variable.
class CheckButton : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(CheckButton, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
