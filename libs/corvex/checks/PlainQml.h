// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace Halvane::Corvex::Designer {

/*! Whether the lines are members whose values cannot be wrong: a number, a boolean, a text with plain
    characters, a name of an enumeration or a reference. A member is a line, as DesignerProperty::toQml writes
    them. The names of the members are not looked at. */
bool isPlainQml(QStringView members);

} // namespace Halvane::Corvex::Designer
