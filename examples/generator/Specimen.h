// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/VisualElement.h"

namespace Halvane::Corvex::Examples {

//! An element with a property of each kind that the library has but no standard element uses, for pictures
//! and tests of its editor.
class Specimen : public Designer::VisualElement
{
    CORVEX_CLASS_NAMES(Specimen, Designer::VisualElement)

public:
    //! The caller adds it to a screen, which then owns it.
    static Specimen *create(const QString &name);

protected:
    using VisualElement::VisualElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Examples
