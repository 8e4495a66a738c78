// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/MathInfo.h"

#include "corvex/values/expressions/ExpressionCode.h"
#include "corvex/values/expressions/ExpressionRules.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"

namespace Halvane::Corvex::Designer {

bool MathInfo::isValidValueType() const
{
    return ExpressionRules::allowsValueType(ExpressionRules::Kind::Math, *this);
}

bool MathInfo::isValidDataType() const
{
    return ExpressionRules::allowsDataType(ExpressionRules::Kind::Math, *this);
}

bool MathInfo::isValidValue() const
{
    return ExpressionRules::allowsValue(ExpressionRules::Kind::Math, *this);
}

QString MathInfo::toQmlString(const OutputType &output) const
{
    QString code;
    ExpressionCode::appendTerm(code, ExpressionRules::Kind::Math, *this, output);
    return code;
}

const QStringList &MathInfo::mathOperators()
{
    return ExpressionVocabulary::mathOperators();
}

const QStringList &MathInfo::mathValues()
{
    return ExpressionVocabulary::mathValues();
}

const QStringList &MathInfo::mathFunctions()
{
    return ExpressionVocabulary::mathFunctions();
}

const QStringList &MathInfo::booleanOperators()
{
    return ExpressionVocabulary::booleanOperators();
}

QString MathInfo::parserString(const MathInfo &term)
{
    return ExpressionCode::parserString(term);
}

} // namespace Halvane::Corvex::Designer
