// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

//! The few forms that all generated QML is made of: one tab per level, lines parted by "\n".
namespace Halvane::Corvex::Designer::QmlText {

QString tabs(int indent);
//! "id: value" on a line of its own, without a line end.
QString line(int indent, const QString &id, const QString &value);
//! The text between double quotes, made safe.
QString quoted(const QString &text);
/*! The QML id of the object with that identifier name. Empty when the name holds anything but letters, digits
    and "_": nothing is generated that refers to such an object. */
QString reference(const QString &name);
//! "[a, b]"
QString array(const QStringList &values);

} // namespace Halvane::Corvex::Designer::QmlText
