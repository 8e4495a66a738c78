// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/project/elements/Element.h"

namespace Halvane::Corvex::Designer {

//! The base of actions at run time: changes of properties.
class CORVEX_EXPORT BasicAction : public Element
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(BasicAction, Element)

protected:
    using Element::Element;
};

} // namespace Halvane::Corvex::Designer
