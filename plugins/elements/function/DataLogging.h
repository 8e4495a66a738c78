// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Samples a log variable while the screen is shown.
class DataLogging : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(DataLogging, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
