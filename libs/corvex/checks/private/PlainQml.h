// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! Whether the code is a value that cannot be wrong: a number, a boolean, a text with plain characters, a
//! name of an enumeration or a reference.
CORVEX_EXPORT bool isPlainCode(QStringView code);

/*! The QML with one text, number or reference in the place of all plain ones. When the shape is correct, all
   QML of that shape is. */
CORVEX_EXPORT QString qmlShape(const QString &qml);

} // namespace Halvane::Corvex::Designer
