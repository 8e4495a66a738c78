// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/project/elements/Element.h"

namespace Halvane::Corvex::Designer {

//! A named selection of elements on a screen, which the designer can show and hide.
class CORVEX_EXPORT FilterElement : public Element
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(FilterElement, Element)

public:
    QStringList elementNames() const;

protected:
    using Element::Element;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Designer
