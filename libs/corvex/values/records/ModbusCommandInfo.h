// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"

namespace Halvane::Corvex::Designer {

//! A device command as hexadecimal digits, two for each byte.
class CORVEX_EXPORT ModbusCommandInfo : public GeneralDataInfo
{
public:
    using GeneralDataInfo::GeneralDataInfo;
    ModbusCommandInfo() = default;
    ModbusCommandInfo(const GeneralDataInfo &other)
        : GeneralDataInfo(other)
    { }

    bool isValidValueType() const override;
    bool isValidDataType() const override;
    bool isValidValue() const override;
};

} // namespace Halvane::Corvex::Designer
