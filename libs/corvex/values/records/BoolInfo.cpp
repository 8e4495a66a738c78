// SPDX-License-Identifier: MIT
#include "corvex/values/records/BoolInfo.h"

#include "corvex/values/expressions/ExpressionRules.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"

namespace Halvane::Corvex::Designer {

bool BoolInfo::isValidValueType() const
{
    return ExpressionRules::allowsValueType(ExpressionRules::Kind::Bool, *this);
}

bool BoolInfo::isValidDataType() const
{
    return ExpressionRules::allowsDataType(ExpressionRules::Kind::Bool, *this);
}

bool BoolInfo::isValidValue() const
{
    return ExpressionRules::allowsValue(ExpressionRules::Kind::Bool, *this);
}

const QStringList &BoolInfo::booleanOperators()
{
    return ExpressionVocabulary::booleanOperators();
}

} // namespace Halvane::Corvex::Designer
