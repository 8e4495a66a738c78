// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/QmlBinding.h"

#include <QGradient>
#include <QPolygonF>
#include <QString>

class QColor;
class QFont;
class QPointF;
class QSizeF;

namespace Halvane::Corvex::Designer {

class BorderInfo;
class ConditionInfo;
class DesignerProperty;
class EnumInfo;
class IdentifierInfo;
class IOErrorInfo;
class ListInfo;
class MapInfo;
class ObjectLinkInfo;
class RangeInfo;
class ReceiveErrorInfo;
class SendErrorInfo;
class ValueRangeInfo;

/*! How a property is written in QML, by the type of its value: bindings, usually with the property's id as
    name. A type without a form of its own writes nothing.

    Numbers that are not whole have as many decimals as the editor parameter "decimals" says, 3 by default.
*/
template<class Value>
struct QmlForm
{
    static QmlBindings bindings(const DesignerProperty &, const Value &) { return {}; }
};

#define CORVEX_QML_FORM(Value)                                                                               \
    template<>                                                                                               \
    struct CORVEX_EXPORT QmlForm<Value>                                                                      \
    {                                                                                                        \
        static QmlBindings bindings(const DesignerProperty &property, const Value &value);                   \
    };
CORVEX_QML_FORM(bool)             // id: true
CORVEX_QML_FORM(int)              // id: 3
CORVEX_QML_FORM(double)           // id: 0.5
CORVEX_QML_FORM(QString)          // id: "text"
CORVEX_QML_FORM(QColor)           // id: "#FFFF0000"
CORVEX_QML_FORM(QList<QColor>)    // id: ["#FFFF0000", "#FF00FF00"]
CORVEX_QML_FORM(QFont)            // id.family: "Arial", and one line for each other attribute of a font
CORVEX_QML_FORM(QSizeF)           // id: Qt.size(40, 20); for the id "size" the lines width and height
CORVEX_QML_FORM(QPointF)          // id: Qt.point(1, 2); for the id "position" the lines x and y
CORVEX_QML_FORM(QPolygonF)        // id: [Qt.point(0, 0), Qt.point(1, 2)]
CORVEX_QML_FORM(QList<QPolygonF>) // id: [[Qt.point(0, 0)], []]
CORVEX_QML_FORM(QGradientStops)   // id: Gradient { with a line for each stop }
CORVEX_QML_FORM(BorderInfo)       // id.width: 2 and id.color: "#FFFF0000"
CORVEX_QML_FORM(RangeInfo)        // id: [0, 100]
// id: [2, 8], the two values. If the owner knows its voltages (see ValueRangeProperty), two more lines give
// the scaling, idFactor and idOffset; both are 0 if the values are too close together.
CORVEX_QML_FORM(ValueRangeInfo)
CORVEX_QML_FORM(EnumInfo)       // id: "Key", or the number when the editor parameter "numberOutput" is set
CORVEX_QML_FORM(ConditionInfo)  // a member without a name: the function validateValue(value)
CORVEX_QML_FORM(IdentifierInfo) // id: qml_name
CORVEX_QML_FORM(ObjectLinkInfo) // id: qml_name, or null
CORVEX_QML_FORM(MapInfo)        // id: [["key", "value"], ["key", "value"]]
CORVEX_QML_FORM(ListInfo)       // id: ["item", "item"]
CORVEX_QML_FORM(IOErrorInfo)    // id: ["IdError", "IOError"], only those that are set
CORVEX_QML_FORM(SendErrorInfo)  // the same for TargetBusy, TargetOffline
// The same for NameDecodeError, TypeDecodeError, ValueDecodeError, DescrDecodeError.
CORVEX_QML_FORM(ReceiveErrorInfo)
#undef CORVEX_QML_FORM

//! For types that only write numbers, booleans and quoted texts.
template<class Value>
inline constexpr bool WritesPlainQml = false;
template<>
inline constexpr bool WritesPlainQml<bool> = true;
template<>
inline constexpr bool WritesPlainQml<int> = true;
template<>
inline constexpr bool WritesPlainQml<double> = true;
template<>
inline constexpr bool WritesPlainQml<QString> = true;
template<>
inline constexpr bool WritesPlainQml<QColor> = true;
template<>
inline constexpr bool WritesPlainQml<QFont> = true;
template<>
inline constexpr bool WritesPlainQml<QSizeF> = true;
template<>
inline constexpr bool WritesPlainQml<BorderInfo> = true;
template<>
inline constexpr bool WritesPlainQml<RangeInfo> = true;
template<>
inline constexpr bool WritesPlainQml<EnumInfo> = true;
//! Names that are not valid in QML are refused before they are written.
template<>
inline constexpr bool WritesPlainQml<IdentifierInfo> = true;

} // namespace Halvane::Corvex::Designer
