// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

//! The few forms that all generated QML is made of: one tab per level, lines parted by "\n".
namespace Halvane::Corvex::Designer::QmlText {

CORVEX_EXPORT QString tabs(int indent);
//! "id: value" on a line of its own, without a line end.
CORVEX_EXPORT QString line(int indent, const QString &id, const QString &value);
//! The text between double quotes, made safe.
CORVEX_EXPORT QString quoted(const QString &text);
/*! The QML id of the object with that identifier name. Empty when the name holds anything but letters, digits
    and "_": nothing is generated that refers to such an object. */
CORVEX_EXPORT QString reference(const QString &name);
//! "[a, b]"
CORVEX_EXPORT QString array(const QStringList &values);

} // namespace Halvane::Corvex::Designer::QmlText
