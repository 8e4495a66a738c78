// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataInfo.h"

#include <QStringList>

namespace Halvane::Corvex::Designer {

//! A term of a boolean expression.
class CORVEX_EXPORT BoolInfo : public GeneralDataInfo
{
public:
    using GeneralDataInfo::GeneralDataInfo;
    BoolInfo() = default;
    BoolInfo(const GeneralDataInfo &other)
        : GeneralDataInfo(other)
    { }

    bool isValidValueType() const override;
    bool isValidDataType() const override;
    bool isValidValue() const override;

    static const QStringList &booleanOperators();
};

} // namespace Halvane::Corvex::Designer
