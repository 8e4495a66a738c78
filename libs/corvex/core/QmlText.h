// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/QmlBinding.h"

#include <QString>
#include <QStringList>

//! The basic forms of generated QML: one tab per level, lines separated by "\n".
namespace Halvane::Corvex::Designer::QmlText {

CORVEX_EXPORT QString tabs(int indent);
//! Appends "name: code", indented by \a indent tabs, without a line ending after it.
CORVEX_EXPORT void append(QString &text, const QmlBinding &binding, int indent);
//! The bindings, one per line, without a line ending after the last.
CORVEX_EXPORT QString print(const QmlBindings &bindings, int indent);
//! The code of a block: "{", the lines with one more tab, "}".
CORVEX_EXPORT QString block(const QStringList &lines);
//! The text between double quotes, made safe.
CORVEX_EXPORT QString quoted(const QString &text);
//! The QML id of the object with that identifier name. Empty if the name contains anything but letters,
//! digits and "_"; such objects are never referred to in generated code.
CORVEX_EXPORT QString reference(const QString &name);
//! "[a, b]"
CORVEX_EXPORT QString array(const QStringList &values);

} // namespace Halvane::Corvex::Designer::QmlText
