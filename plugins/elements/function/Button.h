// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Runs assignments when its visual element is pressed.
class Button : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Button, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
