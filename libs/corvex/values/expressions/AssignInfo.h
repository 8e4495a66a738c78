// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"

namespace Halvane::Corvex::Designer {

//! A term of a list of assignments, which alternates between targets and sources.
class CORVEX_EXPORT AssignInfo : public GeneralDataInfo
{
public:
    using GeneralDataInfo::GeneralDataInfo;
    AssignInfo() = default;
    AssignInfo(const GeneralDataInfo &other)
        : GeneralDataInfo(other)
    { }

    bool isValidValueType() const override;
    bool isValidDataType() const override;
    bool isValidValue() const override;
};

} // namespace Halvane::Corvex::Designer
