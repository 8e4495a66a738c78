// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Designer {
class DesignerProperty;
class QmlBindings;
} // namespace Halvane::Corvex::Designer

/*! Writes properties whose value an expression can replace.

    The expression is a second property, named like the first with the suffix "Binding" ("textBinding" for
    "text"). While it is empty, the plain value is written.
*/
namespace Halvane::Corvex::Elements {

//! Accepts an expression that is empty or can replace the value.
bool bindingValidator(const Designer::DesignerProperty *property, QString &error);

//! The bindings of the property, each replaced by its expression, if there is one: "text" by "textBinding",
//! the "x" of "position" by "xBinding".
Designer::QmlBindings boundToQml(const Designer::DesignerProperty *property);

} // namespace Halvane::Corvex::Elements
