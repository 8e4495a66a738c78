// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

//! Elements and variables for channels and connections that the device model does not have.
class DeviceCheck : public ObjectCheck
{
public:
    bool concerns(const DesignerObject &object) override;
    void look(const DesignerObject &object) override;
};

} // namespace Halvane::Corvex::Designer
