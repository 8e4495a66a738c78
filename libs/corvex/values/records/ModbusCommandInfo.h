// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"

namespace Halvane::Corvex::Designer {

//! A device command in hexadecimal digits, two per byte.
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
