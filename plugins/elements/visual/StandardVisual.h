// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/VisualElement.h"

namespace Halvane::Corvex::Elements {

/*! What the drawn standard elements have in common: position, rotation and visibility may follow expressions.
    No kind of its own: the class names of its elements go on with VisualElement. */
class StandardVisual : public Designer::VisualElement
{
protected:
    using VisualElement::VisualElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
