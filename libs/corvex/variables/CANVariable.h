// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/DeviceVariable.h"

namespace Halvane::Corvex::Designer {

//! A J1939 parameter group. See CanParameterMap for its map.
class CORVEX_EXPORT CANVariable : public DeviceVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(CANVariable, ProjectVariable)

public:
    Connection connection() const override { return Connection::Can; }

    const SharedProperty &parameterMap() const { return m_parameterMap; }

protected:
    using DeviceVariable::DeviceVariable;
    bool initializeProperties() override;

private:
    SharedProperty m_parameterMap;
};

} // namespace Halvane::Corvex::Designer
