// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

class QColor;
class QFont;
class QPointF;
class QSizeF;

namespace Halvane::Corvex::Designer {
class BorderInfo;
class ListInfo;
class MapInfo;
class PropertyList;
class RangeInfo;
class UpdateObjectList;
} // namespace Halvane::Corvex::Designer

//! Describes what properties accept, in words that complete "The property takes ...". Translated.
namespace Halvane::Corvex::Designer::FormText {

CORVEX_EXPORT QString of(const int &value);
CORVEX_EXPORT QString of(const double &value);
CORVEX_EXPORT QString of(const bool &value);
CORVEX_EXPORT QString of(const QColor &value);
CORVEX_EXPORT QString of(const QFont &value);
CORVEX_EXPORT QString of(const QPointF &value);
CORVEX_EXPORT QString of(const QSizeF &value);
CORVEX_EXPORT QString of(const RangeInfo &value);
CORVEX_EXPORT QString of(const BorderInfo &value);
CORVEX_EXPORT QString of(const ListInfo &value);
CORVEX_EXPORT QString of(const MapInfo &value);
CORVEX_EXPORT QString of(const UpdateObjectList &value);
CORVEX_EXPORT QString of(const PropertyList &value);
template<class Value, class... Others>
inline constexpr bool IsOneOf = std::disjunction_v<std::is_same<Value, Others>...>;
//! Whether one of these functions takes exactly that type.
template<class Value>
inline constexpr bool HasForm = IsOneOf<Value, int, double, bool, QColor, QFont, QPointF, QSizeF, RangeInfo,
                                        BorderInfo, ListInfo, MapInfo, UpdateObjectList, PropertyList>;

CORVEX_EXPORT QString oneOf(const QStringList &words);
//! For types that are best explained by an example.
CORVEX_EXPORT QString example(const QString &text);

} // namespace Halvane::Corvex::Designer::FormText
