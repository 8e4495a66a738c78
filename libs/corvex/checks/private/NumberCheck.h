// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

//! Variables whose text is kept as it was typed and is no number: the device would get no value for them.
class NumberCheck : public PropertyCheck
{
public:
    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &property) override;
};

} // namespace Halvane::Corvex::Designer
