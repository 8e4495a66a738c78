// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Designer {
class DesignerProperty;
}

namespace Halvane::Corvex::Elements {

//! A link that has to be set and to lead somewhere.
bool linkTargetValidator(const Designer::DesignerProperty *property, QString &error);
//! The rules of a logic builder: each condition and each assignment is an expression that can be translated.
bool logicValidator(const Designer::DesignerProperty *property, QString &error);
//! Gives \a error its text when the expression is not complete.
bool acceptExpression(bool isComplete, QString &error);
//! An expression of which its property's QML creator makes code.
bool codeValidator(const Designer::DesignerProperty *property, QString &error);
//! Assignments, each of which can be translated.
bool assignmentsValidator(const Designer::DesignerProperty *property, QString &error);
//! Terms that can be translated one by one.
bool termsValidator(const Designer::DesignerProperty *property, QString &error);
//! The names of a trigger's actions: each is an action of the screen.
bool actionsValidator(const Designer::DesignerProperty *property, QString &error);

} // namespace Halvane::Corvex::Elements
