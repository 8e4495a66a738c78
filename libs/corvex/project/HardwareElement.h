// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/Element.h"

namespace Halvane::Corvex::Designer {

//! An input, an output or a port of the device.
class HardwareElement : public Element
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(HardwareElement, Element)

protected:
    using Element::Element;

    void afterPropertyChanged(const DesignerProperty *property, const QString &previousValue) override;
};

} // namespace Halvane::Corvex::Designer
