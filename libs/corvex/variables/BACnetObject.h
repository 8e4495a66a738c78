// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/variables/DeviceVariable.h"

namespace Halvane::Corvex::Designer {

//! An object that the device exposes over BACnet; see BACnetPropertyList for what its list of properties
//! holds.
class BACnetObject : public DeviceVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(BACnetObject, ProjectVariable)

protected:
    using DeviceVariable::DeviceVariable;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Designer
