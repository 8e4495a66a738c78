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

//! The editor parameters of a property that decide how its value is written.
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

QString line(const DesignerProperty &property, int indent, const QString &value)
{
    return QmlText::line(indent, property.id(), value);
}

struct NamedValue
{
    QString name;
    QString value;
};

//! A line for each value, "prefix" before its name.
QString lines(int indent, const QString &prefix, std::initializer_list<NamedValue> values)
{
    constexpr qsizetype usualLine = 32;
    QString text;
    text.reserve(qsizetype(values.size()) * usualLine);
    for (const auto &[name, value] : values) {
        if (!value.isEmpty()) {
            text.append(text.isEmpty() ? QLatin1StringView() : "\n"_L1);
            text.append(QmlText::tabs(indent)).append(prefix).append(name).append(": "_L1).append(value);
        }
    }
    return text;
}

struct Flag
{
    bool isSet;
    const char *name;
};

QString flags(const DesignerProperty &property, int indent, std::initializer_list<Flag> all)
{
    QStringList names;
    for (const auto &[isSet, name] : all) {
        if (isSet) {
            names.append(QmlText::quoted(QString::fromLatin1(name)));
        }
    }
    return line(property, indent, QmlText::array(names));
}

} // namespace

QString QmlForm<bool>::write(const DesignerProperty &property, const bool &value, int indent)
{
    return line(property, indent, ValueConversion::toString(value));
}

QString QmlForm<int>::write(const DesignerProperty &property, const int &value, int indent)
{
    return line(property, indent, ValueConversion::toString(value));
}

QString QmlForm<double>::write(const DesignerProperty &property, const double &value, int indent)
{
    return line(property, indent, Writer(property).real(value));
}

QString QmlForm<QString>::write(const DesignerProperty &property, const QString &value, int indent)
{
    return line(property, indent, QmlText::quoted(value));
}

QString QmlForm<QColor>::write(const DesignerProperty &property, const QColor &color, int indent)
{
    return line(property, indent, quoted(color));
}

QString QmlForm<QList<QColor>>::write(const DesignerProperty &property, const QList<QColor> &colors,
                                      int indent)
{
    QStringList values;
    for (const QColor &color : colors) {
        values.append(quoted(color));
    }
    return line(property, indent, QmlText::array(values));
}

QString QmlForm<QFont>::write(const DesignerProperty &property, const QFont &font, int indent)
{
    const Writer writer(property);
    const auto size = [](int number) { return number > 0 ? QString::number(number) : QString(); };
    return lines(indent, property.id() + u'.',
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

QString QmlForm<QSizeF>::write(const DesignerProperty &property, const QSizeF &size, int indent)
{
    const Writer writer(property);
    if (property.id() != "size"_L1) {
        return line(property, indent, writer.value(size));
    }
    return lines(indent, QString(),
                 {{u"width"_s, writer.real(size.width())}, {u"height"_s, writer.real(size.height())}});
}

QString QmlForm<QPointF>::write(const DesignerProperty &property, const QPointF &point, int indent)
{
    const Writer writer(property);
    if (property.id() != "position"_L1) {
        return line(property, indent, writer.value(point));
    }
    return lines(indent, QString(), {{u"x"_s, writer.real(point.x())}, {u"y"_s, writer.real(point.y())}});
}

QString QmlForm<QPolygonF>::write(const DesignerProperty &property, const QPolygonF &polygon, int indent)
{
    return line(property, indent, Writer(property).array(polygon));
}

QString QmlForm<QList<QPolygonF>>::write(const DesignerProperty &property, const QList<QPolygonF> &polygons,
                                         int indent)
{
    return line(property, indent, Writer(property).array(polygons));
}

QString QmlForm<QGradientStops>::write(const DesignerProperty &property, const QGradientStops &stops,
                                       int indent)
{
    QString text = line(property, indent, u"Gradient {\n"_s);
    for (const QGradientStop &stop : stops) {
        // The stored form cuts positions; what is built must not depend on whether it was saved before.
        const QStringList fields = ValueConversion::toString(QGradientStops{stop}).split(u", "_s);
        text += QmlText::tabs(indent + 1) + u"GradientStop { position: "_s + fields.constFirst()
                + u"; color: "_s + ValueConversion::addQuotes(fields.constLast()) + u" }\n"_s;
    }
    return text + QmlText::tabs(indent) + u'}';
}

QString QmlForm<BorderInfo>::write(const DesignerProperty &property, const BorderInfo &border, int indent)
{
    return lines(
        indent, property.id() + u'.',
        {{u"width"_s, ValueConversion::toString(border.width())}, {u"color"_s, quoted(border.color())}});
}

QString QmlForm<RangeInfo>::write(const DesignerProperty &property, const RangeInfo &range, int indent)
{
    const Writer writer(property);
    return line(property, indent,
                QmlText::array({writer.real(range.minimum()), writer.real(range.maximum())}));
}

QString QmlForm<ValueRangeInfo>::write(const DesignerProperty &property, const ValueRangeInfo &range,
                                       int indent)
{
    // A factor of three decimals would be off by volts.
    constexpr int factorDecimals = 9;
    const Writer writer(property);
    const QString values = QmlText::array({writer.real(range.value1()), writer.real(range.value2())});
    const auto scaling = ValueRangeProperty::scaling(range, property.parentObject());
    if (!scaling) {
        return line(property, indent, values);
    }
    return lines(indent, property.id(),
                 {{QString(), values},
                  {u"Factor"_s, ValueConversion::toQmlString(scaling->factor, factorDecimals)},
                  {u"Offset"_s, ValueConversion::toQmlString(scaling->offset, factorDecimals)}});
}

QString QmlForm<EnumInfo>::write(const DesignerProperty &property, const EnumInfo &info, int indent)
{
    const bool asNumber = property.editorParameter(u"numberOutput"_s).toBool();
    return line(property, indent,
                asNumber ? ValueConversion::toString(info.value()) : QmlText::quoted(info.valueString()));
}

QString QmlForm<ConditionInfo>::write(const DesignerProperty &property, const ConditionInfo &info, int indent)
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
    return QmlText::tabs(indent) + u"function validateValue(value) {\n"_s + QmlText::tabs(indent + 1)
           + u"return "_s + result + u";\n"_s + QmlText::tabs(indent) + u'}';
}

QString QmlForm<IdentifierInfo>::write(const DesignerProperty &property, const IdentifierInfo &info,
                                       int indent)
{
    const QString id = QmlText::reference(info.name());
    return id.isEmpty() ? QString() : line(property, indent, id);
}

QString QmlForm<ObjectLinkInfo>::write(const DesignerProperty &property, const ObjectLinkInfo &link,
                                       int indent)
{
    const QString target = link.isValid() ? QmlText::reference(link.objectId()) : QString();
    return line(property, indent, target.isEmpty() ? u"null"_s : target);
}

QString QmlForm<MapInfo>::write(const DesignerProperty &property, const MapInfo &map, int indent)
{
    QStringList entries;
    for (const auto &[key, value] : map) {
        entries.append(QmlText::array({QmlText::quoted(key), QmlText::quoted(value)}));
    }
    return line(property, indent, QmlText::array(entries));
}

QString QmlForm<ListInfo>::write(const DesignerProperty &property, const ListInfo &list, int indent)
{
    QStringList items;
    for (const QString &item : list) {
        items.append(QmlText::quoted(item));
    }
    return line(property, indent, QmlText::array(items));
}

QString QmlForm<IOErrorInfo>::write(const DesignerProperty &property, const IOErrorInfo &info, int indent)
{
    return flags(property, indent, {{info.idError(), "IdError"}, {info.ioError(), "IOError"}});
}

QString QmlForm<SendErrorInfo>::write(const DesignerProperty &property, const SendErrorInfo &info, int indent)
{
    return flags(property, indent, {{info.isBusy(), "TargetBusy"}, {info.isOffline(), "TargetOffline"}});
}

QString QmlForm<ReceiveErrorInfo>::write(const DesignerProperty &property, const ReceiveErrorInfo &info,
                                         int indent)
{
    return flags(property, indent,
                 {{info.nameError(), "NameDecodeError"},
                  {info.typeError(), "TypeDecodeError"},
                  {info.valueError(), "ValueDecodeError"},
                  {info.dataFlowError(), "DescrDecodeError"}});
}

} // namespace Halvane::Corvex::Designer
