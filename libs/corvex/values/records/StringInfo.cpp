// SPDX-License-Identifier: MIT
#include "corvex/values/records/StringInfo.h"

#include "corvex/values/expressions/ExpressionCode.h"
#include "corvex/values/expressions/ExpressionRules.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"

namespace Halvane::Corvex::Designer {

bool StringInfo::isValidValueType() const
{
    return ExpressionRules::allowsValueType(ExpressionRules::Kind::String, *this);
}

bool StringInfo::isValidDataType() const
{
    return ExpressionRules::allowsDataType(ExpressionRules::Kind::String, *this);
}

bool StringInfo::isValidValue() const
{
    return ExpressionRules::allowsValue(ExpressionRules::Kind::String, *this);
}

QString StringInfo::toQmlString(const OutputType &output) const
{
    QString code;
    ExpressionCode::appendTerm(code, ExpressionRules::Kind::String, *this, output);
    return code;
}

const QStringList &StringInfo::stringFunctions()
{
    return ExpressionVocabulary::stringFunctions();
}

const QStringList &StringInfo::stringOperators()
{
    return ExpressionVocabulary::stringOperators();
}

const QStringList &StringInfo::booleanOperators()
{
    return ExpressionVocabulary::booleanOperators();
}

QString StringInfo::parserString(const StringInfo &term)
{
    return ExpressionCode::parserString(term);
}

} // namespace Halvane::Corvex::Designer
