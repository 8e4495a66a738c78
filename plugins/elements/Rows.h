// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/PropertyTable.h"

namespace Halvane::Corvex::Designer {
class GeneralDataList;
}

//! Rows that occur in the tables of several elements.
namespace Halvane::Corvex::Elements {

//! Stored, edited and sent to the runtime, for property classes that are not so by themselves.
inline constexpr int ordinary = Designer::OrdinaryFlags.toInt();
//! Stored and edited; what goes to the runtime is written by those who use it.
inline constexpr int notAtRuntime = ordinary & ~Designer::RuntimeFlag;

//! An expression, empty at first.
Designer::PropertyRow expressionRow(const char *id, const char *title, const char *editor);
//! What a property of such a row holds.
const Designer::GeneralDataList &expressionOf(const Designer::DesignerProperty &property);
//! An expression that is written in the place of the value that it is named after, "textBinding".
Designer::PropertyRow bindingRow(const char *id, const char *title, const char *editor);
//! A link to an element of the same screen.
Designer::PropertyRow elementLinkRow(const char *id, const char *title, const char *className);
//! A link to an object of the project.
Designer::PropertyRow projectLinkRow(const char *id, const char *title, const char *className);
//! The visual element that a function element works with; one has to be set.
Designer::PropertyRow visualElementRow(const char *id, const char *title);
//! How a linked element looks in one state: updates of objects.
Designer::PropertyRow stateRow(const char *id, const char *title);
//! The number of a device channel, from 1.
Designer::PropertyRow channelRow();
//! The value that an output has when the screen starts: a condition or a number.
Designer::PropertyRow initialConditionRow();
Designer::PropertyRow initialNumberRow();

} // namespace Halvane::Corvex::Elements
