// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/project/elements/Element.h"

namespace Halvane::Corvex::Designer {

//! A named selection of the elements of a screen, by which the designer shows and hides them.
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
