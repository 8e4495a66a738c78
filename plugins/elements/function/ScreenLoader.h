// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Shows another screen when its visual element is pressed.
class ScreenLoader : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ScreenLoader, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
