// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/project/elements/Element.h"

namespace Halvane::Corvex::Designer {

//! Behaviour bound to visual elements and hardware.
class CORVEX_EXPORT FunctionElement : public Element
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(FunctionElement, Element)

protected:
    using Element::Element;
};

} // namespace Halvane::Corvex::Designer
