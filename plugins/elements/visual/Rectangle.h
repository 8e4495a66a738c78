// SPDX-License-Identifier: MIT
#pragma once

#include "elements/visual/StandardVisual.h"

namespace Halvane::Corvex::Elements {

//! A rectangle with a border and rounded corners.
class Rectangle : public StandardVisual
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Rectangle, Designer::VisualElement)

public:
    Designer::RuntimePropertyList runtimeProperties() const override;

protected:
    using StandardVisual::StandardVisual;
    Designer::ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
