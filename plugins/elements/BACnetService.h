// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Serves BACnet objects and talks to BACnet devices, by the names of their variables.
class BACnetService : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(BACnetService, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
