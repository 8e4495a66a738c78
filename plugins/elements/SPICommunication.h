// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Sends values over the SPI port.
class SPICommunication : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(SPICommunication, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
