// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/PropertyTable.h"

namespace Halvane::Corvex::Designer {
class GeneralDataList;
}

//! Table rows shared by several elements.
namespace Halvane::Corvex::Elements {

//! Stored, edited and sent to the runtime, for property classes with other default flags.
inline constexpr int ordinary = Designer::OrdinaryFlags.toInt();
//! Stored and edited. The classes that use the value write it to the runtime.
inline constexpr int notAtRuntime = ordinary & ~Designer::RuntimeFlag;

// Each takes the description of the property: what it is for, in one sentence.

//! An expression, initially empty.
Designer::PropertyRow expressionRow(const char *id, const char *title, const char *description,
                                    const char *editor);
//! The expression in a property of such a row.
const Designer::GeneralDataList &expressionOf(const Designer::DesignerProperty &property);
//! An expression that replaces the value in its name: "textBinding".
Designer::PropertyRow bindingRow(const char *id, const char *title, const char *description,
                                 const char *editor);
//! A link to an element on the same screen.
Designer::PropertyRow elementLinkRow(const char *id, const char *title, const char *description,
                                     const char *className);
//! A link to an object of the project.
Designer::PropertyRow projectLinkRow(const char *id, const char *title, const char *description,
                                     const char *className);
//! The visual element that a function element works with. It is required.
Designer::PropertyRow visualElementRow(const char *id, const char *title, const char *description);
//! The look of a linked element in one state: updates of objects.
Designer::PropertyRow stateRow(const char *id, const char *title, const char *description);
//! The number of a device channel, counted from 1.
Designer::PropertyRow channelRow(const char *description);
//! The value of an output when the screen starts: a condition or a number.
Designer::PropertyRow initialConditionRow();
Designer::PropertyRow initialNumberRow();

} // namespace Halvane::Corvex::Elements
