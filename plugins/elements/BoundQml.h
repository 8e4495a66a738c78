// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Designer {
class DesignerProperty;
class QmlBindings;
} // namespace Halvane::Corvex::Designer

/*! The QML of properties that an expression may stand in for.

    The expression is a property beside the plain one, named like it with "Binding" behind ("textBinding"
   beside "text"). As long as it is empty the plain value is written.
*/
namespace Halvane::Corvex::Elements {

//! An expression beside a plain value: empty, or one that can be written in the value's place.
bool bindingValidator(const Designer::DesignerProperty *property, QString &error);

//! The bindings of the plain value, each replaced by the expression beside it: "text" by "textBinding", the
//! "x" of "position" by "xBinding".
Designer::QmlBindings boundToQml(const Designer::DesignerProperty *property);

} // namespace Halvane::Corvex::Elements
