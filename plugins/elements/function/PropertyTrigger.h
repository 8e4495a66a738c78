// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Runs actions when one of its values has changed and its condition is true.
class PropertyTrigger : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(PropertyTrigger, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
