// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Steps a number variable up and down within a range.
class NumberSpinner : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(NumberSpinner, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
