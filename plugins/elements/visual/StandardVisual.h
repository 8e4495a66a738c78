// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/VisualElement.h"

namespace Halvane::Corvex::Elements {

//! The base of the standard elements that are drawn: position, rotation and visibility may be expressions. It
//! is not a class in the model: in the class names of its elements VisualElement follows directly.
class StandardVisual : public Designer::VisualElement
{
protected:
    using VisualElement::VisualElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
