// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

//! Finds Modbus registers that are bound to a value of another type.
class ModbusCheck : public PropertyCheck
{
public:
    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &map) override;
};

} // namespace Halvane::Corvex::Designer
