// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QColor;

//! What a property of a kind of value reads, in words that complete "The property takes ...". Translated.
namespace Halvane::Corvex::Designer::FormText {

QString of(const int &value);
QString of(const double &value);
QString of(const bool &value);
QString of(const QColor &value);
//! Of kinds whose texts an example explains.
QString example(const QString &text);

} // namespace Halvane::Corvex::Designer::FormText
