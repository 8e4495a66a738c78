// SPDX-License-Identifier: MIT
#include "ValueKinds.h"

#include "corvex/common/EnumHelper.h"
#include "corvex/core/properties/IOErrorProperty.h"
#include "corvex/core/properties/TextForm.h"
#include "corvex/core/properties/TransformOriginProperty.h"
#include "corvex/values/expressions/ConditionInfo.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/expressions/PropertyChangeInfo.h"
#include "corvex/values/expressions/UpdateObjectList.h"
#include "corvex/values/records/BorderInfo.h"
#include "corvex/values/records/EnumInfo.h"
#include "corvex/values/records/FieldbusErrorInfo.h"
#include "corvex/values/records/IdentifierInfo.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/records/MapInfo.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/values/records/RangeInfo.h"
#include "corvex/values/records/ValueRangeInfo.h"
#include "corvex/values/runtime/PropertyInfoList.h"
#include "corvex/values/runtime/PropertyList.h"
#include "corvex/values/text/ReadableText.h"

namespace Halvane::Corvex::Tool {

using namespace Designer;
using Common::EnumHelper;

namespace {

template<class Value>
std::optional<QString> canonical(const QString &text)
{
    bool ok = false;
    const Value value = TextForm<Value>::parse(text, &ok);
    return ok ? std::optional(TextForm<Value>::print(value)) : std::nullopt;
}

//! The group form has no value type of its own, so check it here.
std::optional<QString> canonicalGroup(const QString &text)
{
    bool ok = false;
    const QMap<QString, QString> group = ValueConversion::toGroupProperties(text, &ok);
    return ok ? std::optional(ValueConversion::toString(group)) : std::nullopt;
}

template<class Enumeration>
std::optional<QString> canonicalKey(const QString &text)
{
    bool ok = false;
    const EnumInfo value(QMetaEnum::fromType<Enumeration>(), text, &ok);
    return ok ? std::optional(value.toString()) : std::nullopt;
}

} // namespace

const QList<ValueKind> &valueKinds()
{
    static const QList<ValueKind> kinds{
        {"bool", "true", canonical<bool>},
        {"int", "-26", canonical<int>},
        {"real", "1.5", canonical<double>},
        {"string", "Pump 1", canonical<QString>},
        {"color", "#80FF0000", canonical<QColor>, &ReadableText::fromColor, &ReadableText::toColor},
        {"colorlist", "[#FFFF0000,#FF00FF00]", canonical<QList<QColor>>},
        {"font",
         "bold: false; family: U2Fucw==; italic: false; letterSpacing: 0; overline: false; pointSize: 12; "
         "strikeout: false; underline: false; wordSpacing: 0;",
         canonical<QFont>, &ReadableText::fromFont, &ReadableText::toFont},
        {"point", "x: 10; y: 20.5;", canonical<QPointF>, &ReadableText::fromPoint, &ReadableText::toPoint},
        {"size", "height: 20; width: 40;", canonical<QSizeF>, &ReadableText::fromSize, &ReadableText::toSize},
        {"polygon", "x: 0; y: 0; | x: 10; y: 0;", canonical<QPolygonF>},
        {"polygonlist", "[x: 0; y: 0; | x: 10; y: 0;], [x: 5; y: 5;]", canonical<QList<QPolygonF>>},
        {"gradient", "0, #FFFF0000 | 1, #FF0000FF", canonical<QGradientStops>},
        {"group", "color: #FF000000; width: 2;", canonicalGroup},
        {"border", "color: #FF000000; width: 2;", canonical<BorderInfo>, &ReadableText::fromBorder,
         &ReadableText::toBorder},
        {"range", "maximum: 100; minimum: 0;", canonical<RangeInfo>, &ReadableText::fromRange,
         &ReadableText::toRange},
        {"valuerange", "value1: 0, value2: 50, min: 0, max: 100", canonical<ValueRangeInfo>},
        {"senderror", "busy: false, offline: true", canonical<SendErrorInfo>},
        {"receiveerror", "name: false, value: true, type: false, dataFlow: false",
         canonical<ReceiveErrorInfo>},
        {"ioerror", "id: true, io: false", canonical<IOErrorInfo>},
        {"identifier", "filterType: NumberVariable; name: speed; scopeType: Project;",
         canonical<IdentifierInfo>},
        {"link", "filterType: Screen; objectId: Main; scopeType: Project;", canonical<ObjectLinkInfo>},
        {"map", "key: 1; value: On; | key: 0; value: Off;", canonical<MapInfo>},
        {"list", "pump1 | pump2", canonical<ListInfo>},
        {"condition", "condition1: GE; condition2: LT; operator: AND; value1: 1; value2: 5;",
         canonical<ConditionInfo>},
        {"transformorigin", "TopLeft", canonical<QQuickItem::TransformOrigin>},
        {"variabletype", "NumberVariable", canonicalKey<EnumHelper::VariableType>},
        {"variableaccessmode", "ReadWrite", canonicalKey<EnumHelper::VariableAccessMode>},
        {"inputoutputtype", "RECEIVE", canonicalKey<EnumHelper::InputOutputType>},
        {"ftptype", "SFTP", canonicalKey<EnumHelper::FtpType>},
        {"rolloverbehavior", "StopLogging", canonicalKey<EnumHelper::RollOverBehavior>},
        {"bacnettype", "BACnetIP", canonicalKey<EnumHelper::BACnetType>},
        {"property", "propName: color; propValue: red;", canonical<PropertyInfo>},
        {"propertyinfolist", "propName: color; propValue: red; | propName: visible; propValue: true;",
         canonical<PropertyInfoList>},
        {"propertychange", "elementName: lamp; propertyName: color; valueString: cmVk;",
         canonical<PropertyChangeInfo>},
        {"propertylist", "elementName: lamp; propertyName: color; valueString: cmVk;",
         canonical<PropertyList>},
        {"updateobject", "name: lamp; screen: Main;", canonical<UpdateObjectInfo>},
        {"updateobjectlist", "name: lamp; screen: Main; | name: lamp2; screen: Main;",
         canonical<UpdateObjectList>},
        {"generaldata", "0204-1A", canonical<GeneralDataInfo>},
        {"generaldatalist", "<0406speed><0101+><02041>", canonical<GeneralDataList>},
    };
    return kinds;
}

const ValueKind *findValueKind(const QString &name)
{
    const auto found = std::ranges::find(valueKinds(), name,
                                         [](const ValueKind &kind) { return QLatin1StringView(kind.name); });
    return found == valueKinds().cend() ? nullptr : &*found;
}

} // namespace Halvane::Corvex::Tool
