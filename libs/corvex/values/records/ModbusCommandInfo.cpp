// SPDX-License-Identifier: MIT
#include "corvex/values/records/ModbusCommandInfo.h"

#include "corvex/values/expressions/ExpressionRules.h"

namespace Halvane::Corvex::Designer {

bool ModbusCommandInfo::isValidValueType() const
{
    return ExpressionRules::allowsValueType(ExpressionRules::Kind::ModbusCommand, *this);
}

bool ModbusCommandInfo::isValidDataType() const
{
    return ExpressionRules::allowsDataType(ExpressionRules::Kind::ModbusCommand, *this);
}

bool ModbusCommandInfo::isValidValue() const
{
    return ExpressionRules::allowsValue(ExpressionRules::Kind::ModbusCommand, *this);
}

} // namespace Halvane::Corvex::Designer
