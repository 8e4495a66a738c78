// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! Whether the code is a value that is always correct: a number, a boolean, a text with plain characters, a
//! name of an enumeration or a reference.
CORVEX_EXPORT bool isPlainCode(QStringView code);

//! The QML with all plain texts, numbers and references replaced by a single one. If the shape is correct,
//! all QML with that shape is.
CORVEX_EXPORT QString qmlShape(const QString &qml);

} // namespace Halvane::Corvex::Designer
