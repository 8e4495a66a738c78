// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/project/elements/Element.h"

namespace Halvane::Corvex::Designer {

//! An input, an output or a port of the device. Elements with the same channel are notified of each other's
//! changes, so that each reports a conflict.
class CORVEX_EXPORT HardwareElement : public Element
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(HardwareElement, Element)

public:
    void setScreen(Screen *newScreen) override;

protected:
    using Element::Element;

    void afterPropertyChanged(const DesignerProperty *property, const QString &previousValue) override;

private:
    void validateOthersOn(const Screen *on, const QString &channel) const;
};

} // namespace Halvane::Corvex::Designer
