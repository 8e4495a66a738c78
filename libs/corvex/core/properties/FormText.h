// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

class QColor;
class QFont;
class QPointF;
class QSizeF;

//! Describes what properties accept, in words that complete "The property takes ...". Translated.
namespace Halvane::Corvex::Designer::FormText {

CORVEX_EXPORT QString of(const int &value);
CORVEX_EXPORT QString of(const double &value);
CORVEX_EXPORT QString of(const bool &value);
CORVEX_EXPORT QString of(const QColor &value);
CORVEX_EXPORT QString of(const QFont &value);
CORVEX_EXPORT QString of(const QPointF &value);
CORVEX_EXPORT QString of(const QSizeF &value);
//! Whether one of these functions takes exactly that type.
template<class Value>
inline constexpr bool HasForm =
    std::disjunction_v<std::is_same<Value, int>, std::is_same<Value, double>, std::is_same<Value, bool>,
                       std::is_same<Value, QColor>, std::is_same<Value, QFont>, std::is_same<Value, QPointF>,
                       std::is_same<Value, QSizeF>>;

//! For types that are best explained by an example.
CORVEX_EXPORT QString example(const QString &text);

} // namespace Halvane::Corvex::Designer::FormText
