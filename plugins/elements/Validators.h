// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/GeneralDataList.h"

#include <QString>

namespace Halvane::Corvex::Designer {
class DesignerProperty;
}

namespace Halvane::Corvex::Elements {

//! A link that has to be set and to lead somewhere.
bool linkTargetValidator(const Designer::DesignerProperty *property, QString &error);
//! The rules of a logic builder: each condition and each assignment is an expression that can be translated.
bool logicValidator(const Designer::DesignerProperty *property, QString &error);
//! An expression is empty or has code; else \a error tells what is wrong with it as one of that kind.
bool acceptExpression(const Designer::GeneralDataList &expression, Designer::GeneralDataList::InfoType kind,
                      bool hasCode, QString &error);
//! A condition, a number or assignments, of which code can be made.
template<Designer::GeneralDataList::InfoType kind>
bool codeValidator(const Designer::DesignerProperty *property, QString &error);
//! Terms that can be translated one by one.
bool termsValidator(const Designer::DesignerProperty *property, QString &error);
//! The names of a trigger's actions: each is an action of the screen.
bool actionsValidator(const Designer::DesignerProperty *property, QString &error);

} // namespace Halvane::Corvex::Elements
