// SPDX-License-Identifier: MIT
#pragma once

#include "elements/StandardVisual.h"

namespace Halvane::Corvex::Elements {

//! A picture of the project's image resources.
class Image : public StandardVisual
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Image, Designer::VisualElement)

public:
    Designer::RuntimePropertyList runtimeProperties() const override;

protected:
    using StandardVisual::StandardVisual;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
