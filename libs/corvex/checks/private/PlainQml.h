// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

/*! Whether the lines are members whose values cannot be wrong: a number, a boolean, a text with plain
    characters, a name of an enumeration or a reference. A member is a line, as DesignerProperty::toQml writes
    them. The names of the members are not looked at. */
CORVEX_EXPORT bool isPlainQml(QStringView members);

/*! The members with one text, number or reference in the place of all plain ones. When the shape is correct,
    all members of that shape are. */
CORVEX_EXPORT QString qmlShape(const QString &members);

} // namespace Halvane::Corvex::Designer
