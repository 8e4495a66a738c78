// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/AssignInfo.h"

#include "corvex/values/expressions/ExpressionRules.h"

namespace Halvane::Corvex::Designer {

bool AssignInfo::isValidValueType() const
{
    return ExpressionRules::allowsValueType(ExpressionRules::Kind::Assign, *this);
}

bool AssignInfo::isValidDataType() const
{
    return ExpressionRules::allowsDataType(ExpressionRules::Kind::Assign, *this);
}

bool AssignInfo::isValidValue() const
{
    return ExpressionRules::allowsValue(ExpressionRules::Kind::Assign, *this);
}

} // namespace Halvane::Corvex::Designer
