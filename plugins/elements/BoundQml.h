// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Designer {
class DesignerProperty;
}

/*! The QML of properties that an expression may stand in for.

    The expression is a property beside the plain one, named like it with "Binding" behind ("textBinding"
   beside "text"). As long as it is empty the plain value is written.
*/
namespace Halvane::Corvex::Elements {

//! An expression beside a plain value: empty, or one that can be written in the value's place.
bool bindingValidator(const Designer::DesignerProperty *property, QString &error);

//! The QML creator of "text", "color", "rotation" and "visible".
QString boundToQml(const Designer::DesignerProperty *property, int indent);

//! The QML creator of "position", whose two lines are bound one by one by "xBinding" and "yBinding".
QString boundPositionToQml(const Designer::DesignerProperty *property, int indent);

} // namespace Halvane::Corvex::Elements
