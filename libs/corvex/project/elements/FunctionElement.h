// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/Element.h"

namespace Halvane::Corvex::Designer {

//! Behaviour bound to visual elements and hardware.
class FunctionElement : public Element
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(FunctionElement, Element)

protected:
    using Element::Element;
};

} // namespace Halvane::Corvex::Designer
