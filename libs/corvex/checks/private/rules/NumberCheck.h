// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

//! Finds number variables whose text is not a number, so that the device would get no value.
class NumberCheck : public PropertyCheck
{
public:
    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &property) override;
};

} // namespace Halvane::Corvex::Designer
