// SPDX-License-Identifier: MIT
#include "corvex/core/properties/QmlForm.h"

#include "corvex/core/DesignerProperty.h"
#include "corvex/core/QmlText.h"
#include "corvex/core/properties/ValueRangeProperty.h"
#include "corvex/values/expressions/ConditionInfo.h"
#include "corvex/values/records/BorderInfo.h"
#include "corvex/values/records/EnumInfo.h"
#include "corvex/values/records/FieldbusErrorInfo.h"
#include "corvex/values/records/IdentifierInfo.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/records/MapInfo.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/values/records/RangeInfo.h"

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The editor parameters of a property that affect how its value is written.
class Writer
{
public:
    explicit Writer(const DesignerProperty &property)
    {
        const QVariant decimals = property.editorParameter(u"decimals"_s);
        if (decimals.isValid()) {
            m_decimals = decimals.toInt();
        }
    }

    QString real(double value) const { return ValueConversion::toQmlString(value, m_decimals); }
    QString pair(const QString &function, double first, double second) const
    {
        return function + u'(' + real(first) + u", "_s + real(second) + u')';
    }
    QString value(const QPointF &point) const { return pair(u"Qt.point"_s, point.x(), point.y()); }
    QString value(const QSizeF &size) const { return pair(u"Qt.size"_s, size.width(), size.height()); }
    QString value(const QPolygonF &polygon) const { return array(polygon); }
    template<class List>
    QString array(const List &list) const
    {
        QStringList values;
        values.reserve(list.size());
        for (const auto &item : list) {
            values.append(value(item));
        }
        return QmlText::array(values);
    }

private:
    int m_decimals = 3;
};

QString quoted(const QColor &color)
{
    return ValueConversion::addQuotes(ValueConversion::toString(color));
}

//! Most values are one binding, named like the property.
QmlBindings one(const DesignerProperty &property, QString code)
{
    return {property.id(), std::move(code)};
}

struct NamedCode
{
    QString name;
    QString code;
};

//! A binding for each code that is not empty, "prefix" before its name.
QmlBindings parts(const QString &prefix, std::initializer_list<NamedCode> all)
{
    QmlBindings bindings;
    bindings.reserve(qsizetype(all.size()));
    for (const auto &[name, code] : all) {
        if (!code.isEmpty()) {
            bindings.add(prefix + name, code);
        }
    }
    return bindings;
}

struct Flag
{
    bool isSet;
    const char *name;
};

QmlBindings flags(const DesignerProperty &property, std::initializer_list<Flag> all)
{
    QStringList names;
    for (const auto &[isSet, name] : all) {
        if (isSet) {
            names.append(QmlText::quoted(QString::fromLatin1(name)));
        }
    }
    return one(property, QmlText::array(names));
}

} // namespace

QmlBindings QmlForm<bool>::bindings(const DesignerProperty &property, const bool &value)
{
    return one(property, ValueConversion::toString(value));
}

QmlBindings QmlForm<int>::bindings(const DesignerProperty &property, const int &value)
{
    return one(property, ValueConversion::toString(value));
}

QmlBindings QmlForm<double>::bindings(const DesignerProperty &property, const double &value)
{
    return one(property, Writer(property).real(value));
}

QmlBindings QmlForm<QString>::bindings(const DesignerProperty &property, const QString &value)
{
    return one(property, QmlText::quoted(value));
}

QmlBindings QmlForm<QColor>::bindings(const DesignerProperty &property, const QColor &color)
{
    return one(property, quoted(color));
}

QmlBindings QmlForm<QList<QColor>>::bindings(const DesignerProperty &property, const QList<QColor> &colors)
{
    QStringList values;
    for (const QColor &color : colors) {
        values.append(quoted(color));
    }
    return one(property, QmlText::array(values));
}

QmlBindings QmlForm<QFont>::bindings(const DesignerProperty &property, const QFont &font)
{
    const Writer writer(property);
    const auto size = [](int number) { return number > 0 ? QString::number(number) : QString(); };
    return parts(property.id() + u'.',
                 {{u"family"_s, QmlText::quoted(font.family())},
                  {u"pointSize"_s, font.pixelSize() > 0 ? QString() : size(font.pointSize())},
                  {u"pixelSize"_s, size(font.pixelSize())},
                  {u"bold"_s, ValueConversion::toString(font.weight() > QFont::Normal)},
                  {u"italic"_s, ValueConversion::toString(font.style() != QFont::StyleNormal)},
                  {u"letterSpacing"_s, writer.real(font.letterSpacing())},
                  {u"overline"_s, ValueConversion::toString(font.overline())},
                  {u"strikeout"_s, ValueConversion::toString(font.strikeOut())},
                  {u"underline"_s, ValueConversion::toString(font.underline())},
                  {u"wordSpacing"_s, writer.real(font.wordSpacing())}});
}

QmlBindings QmlForm<QSizeF>::bindings(const DesignerProperty &property, const QSizeF &size)
{
    const Writer writer(property);
    if (property.id() != "size"_L1) {
        return one(property, writer.value(size));
    }
    return parts(QString(),
                 {{u"width"_s, writer.real(size.width())}, {u"height"_s, writer.real(size.height())}});
}

QmlBindings QmlForm<QPointF>::bindings(const DesignerProperty &property, const QPointF &point)
{
    const Writer writer(property);
    if (property.id() != "position"_L1) {
        return one(property, writer.value(point));
    }
    return parts(QString(), {{u"x"_s, writer.real(point.x())}, {u"y"_s, writer.real(point.y())}});
}

QmlBindings QmlForm<QPolygonF>::bindings(const DesignerProperty &property, const QPolygonF &polygon)
{
    return one(property, Writer(property).array(polygon));
}

QmlBindings QmlForm<QList<QPolygonF>>::bindings(const DesignerProperty &property,
                                                const QList<QPolygonF> &polygons)
{
    return one(property, Writer(property).array(polygons));
}

QmlBindings QmlForm<QGradientStops>::bindings(const DesignerProperty &property, const QGradientStops &stops)
{
    QStringList lines;
    for (const QGradientStop &stop : stops) {
        // The stored form truncates positions. The build must not depend on whether the project was saved
        // before.
        const QStringList fields = ValueConversion::toString(QGradientStops{stop}).split(u", "_s);
        lines.append(u"GradientStop { position: "_s + fields.constFirst() + u"; color: "_s
                     + ValueConversion::addQuotes(fields.constLast()) + u" }"_s);
    }
    return one(property, u"Gradient "_s + QmlText::block(lines));
}

QmlBindings QmlForm<BorderInfo>::bindings(const DesignerProperty &property, const BorderInfo &border)
{
    return parts(property.id() + u'.', {{u"width"_s, ValueConversion::toString(border.width())},
                                        {u"color"_s, quoted(border.color())}});
}

QmlBindings QmlForm<RangeInfo>::bindings(const DesignerProperty &property, const RangeInfo &range)
{
    const Writer writer(property);
    return one(property, QmlText::array({writer.real(range.minimum()), writer.real(range.maximum())}));
}

QmlBindings QmlForm<ValueRangeInfo>::bindings(const DesignerProperty &property, const ValueRangeInfo &range)
{
    // A factor with three decimals would be wrong by volts.
    constexpr int factorDecimals = 9;
    const Writer writer(property);
    const QString values = QmlText::array({writer.real(range.value1()), writer.real(range.value2())});
    const auto scaling = ValueRangeProperty::scaling(range, property.parentObject());
    if (!scaling) {
        return one(property, values);
    }
    return parts(property.id(),
                 {{QString(), values},
                  {u"Factor"_s, ValueConversion::toQmlString(scaling->factor, factorDecimals)},
                  {u"Offset"_s, ValueConversion::toQmlString(scaling->offset, factorDecimals)}});
}

QmlBindings QmlForm<EnumInfo>::bindings(const DesignerProperty &property, const EnumInfo &info)
{
    const bool asNumber = property.editorParameter(u"numberOutput"_s).toBool();
    return one(property,
               asNumber ? ValueConversion::toString(info.value()) : QmlText::quoted(info.valueString()));
}

QmlBindings QmlForm<ConditionInfo>::bindings(const DesignerProperty &property, const ConditionInfo &info)
{
    const Writer writer(property);
    QStringList comparisons;
    const auto add = [&](const QString &condition, double value) {
        const QString comparison = ConditionInfo::conditionToOperator(condition);
        if (!comparison.isEmpty()) {
            comparisons.append(u"value "_s + comparison + u' ' + writer.real(value));
        }
    };
    add(info.condition1(), info.value1());
    add(info.condition2(), info.value2());
    const QString result =
        comparisons.isEmpty() ? u"true"_s : comparisons.join(info.isOr() ? u" || "_s : u" && "_s);
    return QmlBindings::ofText(u"function validateValue(value) "_s
                               + QmlText::block({u"return "_s + result + u';'}));
}

QmlBindings QmlForm<IdentifierInfo>::bindings(const DesignerProperty &property, const IdentifierInfo &info)
{
    const QString id = QmlText::reference(info.name());
    return id.isEmpty() ? QmlBindings() : one(property, id);
}

QmlBindings QmlForm<ObjectLinkInfo>::bindings(const DesignerProperty &property, const ObjectLinkInfo &link)
{
    const QString target = link.isValid() ? QmlText::reference(link.objectId()) : QString();
    return one(property, target.isEmpty() ? u"null"_s : target);
}

QmlBindings QmlForm<MapInfo>::bindings(const DesignerProperty &property, const MapInfo &map)
{
    QStringList entries;
    for (const auto &[key, value] : map) {
        entries.append(QmlText::array({QmlText::quoted(key), QmlText::quoted(value)}));
    }
    return one(property, QmlText::array(entries));
}

QmlBindings QmlForm<ListInfo>::bindings(const DesignerProperty &property, const ListInfo &list)
{
    QStringList items;
    for (const QString &item : list) {
        items.append(QmlText::quoted(item));
    }
    return one(property, QmlText::array(items));
}

QmlBindings QmlForm<IOErrorInfo>::bindings(const DesignerProperty &property, const IOErrorInfo &info)
{
    return flags(property, {{info.idError(), "IdError"}, {info.ioError(), "IOError"}});
}

QmlBindings QmlForm<SendErrorInfo>::bindings(const DesignerProperty &property, const SendErrorInfo &info)
{
    return flags(property, {{info.isBusy(), "TargetBusy"}, {info.isOffline(), "TargetOffline"}});
}

QmlBindings QmlForm<ReceiveErrorInfo>::bindings(const DesignerProperty &property,
                                                const ReceiveErrorInfo &info)
{
    return flags(property, {{info.nameError(), "NameDecodeError"},
                            {info.typeError(), "TypeDecodeError"},
                            {info.valueError(), "ValueDecodeError"},
                            {info.dataFlowError(), "DescrDecodeError"}});
}

} // namespace Halvane::Corvex::Designer
