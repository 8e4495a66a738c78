// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/ExpressionPurpose.h"

#include <QString>

namespace Halvane::Corvex::Designer {
class DesignerProperty;
}

namespace Halvane::Corvex::Elements {

//! A link that must be set and have a target.
bool linkTargetValidator(const Designer::DesignerProperty *property, QString &error);
//! The rules of a logic builder: all conditions and assignments must be translatable expressions.
bool logicValidator(const Designer::DesignerProperty *property, QString &error);
//! Accepts an expression that is empty or has code. Otherwise \a error gives the reason.
bool acceptExpression(const Designer::GeneralDataList &expression, const Designer::ExpressionPurpose &purpose,
                      bool hasCode, QString &error);
//! A condition, a number or assignments that can be translated.
template<Designer::GeneralDataList::InfoType kind>
bool codeValidator(const Designer::DesignerProperty *property, QString &error);
//! Terms that can be translated one by one.
bool termsValidator(const Designer::DesignerProperty *property, QString &error);
//! The names of a trigger's actions: each must be an action on the screen.
bool actionsValidator(const Designer::DesignerProperty *property, QString &error);

} // namespace Halvane::Corvex::Elements
