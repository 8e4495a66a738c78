// SPDX-License-Identifier: MIT
// The forms of fonts, and of shapes made of points and colours. ValueConversion.cpp contains the basic types.
#include "corvex/common/TextHelper.h"
#include "corvex/values/text/GroupText.h"
#include "corvex/values/text/ValueConversion.h"

#include <QStringTokenizer>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

namespace {

//! One key of a font's text: its name, whether it may be absent, and how its value is applied to the font.
struct FontField
{
    QLatin1StringView key;
    bool optional;
    bool (*read)(QFont &font, QStringView value);
};

template<void (QFont::*set)(bool)>
bool readFontFlag(QFont &font, QStringView value)
{
    bool ok = false;
    (font.*set)(ValueConversion::toBoolean(value, &ok));
    return ok;
}

template<void (QFont::*set)(int)>
bool readFontLength(QFont &font, QStringView value)
{
    bool ok = false;
    const int length = ValueConversion::toInt(value, &ok);
    if (!ok || length <= 0) {
        return false;
    }
    (font.*set)(length);
    return true;
}

bool readFamily(QFont &font, QStringView value)
{
    bool ok = false;
    font.setFamily(Common::TextHelper::convertFromBase64(value.toString(), &ok));
    return ok;
}

//! Rounds a spacing to what a font can hold: 64ths, as many as an int can count. The font itself truncates,
//! so that the value would shrink with each reading.
bool readSpacing(QStringView value, qreal &spacing)
{
    constexpr qreal fractions = 64;
    bool ok = false;
    const qreal scaled = std::round(ValueConversion::toReal(value, &ok) * fractions);
    if (!ok || std::abs(scaled) > std::numeric_limits<int>::max()) {
        return false;
    }
    spacing = scaled / fractions;
    return true;
}

bool readLetterSpacing(QFont &font, QStringView value)
{
    qreal spacing = 0;
    const bool ok = readSpacing(value, spacing);
    if (spacing != 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    }
    return ok;
}

bool readWordSpacing(QFont &font, QStringView value)
{
    qreal spacing = 0;
    const bool ok = readSpacing(value, spacing);
    font.setWordSpacing(spacing);
    return ok;
}

constexpr std::array fontFields{
    FontField{"bold"_L1, false, readFontFlag<&QFont::setBold>},
    FontField{"family"_L1, false, readFamily},
    FontField{"italic"_L1, false, readFontFlag<&QFont::setItalic>},
    FontField{"letterSpacing"_L1, false, readLetterSpacing},
    FontField{"overline"_L1, false, readFontFlag<&QFont::setOverline>},
    FontField{"pixelSize"_L1, true, readFontLength<&QFont::setPixelSize>},
    FontField{"pointSize"_L1, true, readFontLength<&QFont::setPointSize>},
    FontField{"strikeout"_L1, false, readFontFlag<&QFont::setStrikeOut>},
    FontField{"underline"_L1, false, readFontFlag<&QFont::setUnderline>},
    FontField{"wordSpacing"_L1, false, readWordSpacing},
};

//! Reads the entry \a key. Refuses a repeated key.
bool readFontEntry(QFont &font, unsigned &seen, QStringView key, QStringView value)
{
    for (size_t i = 0; i < fontFields.size(); ++i) {
        if (key != fontFields[i].key) {
            continue;
        }
        const bool repeated = (seen & 1U << i) != 0;
        seen |= 1U << i;
        return !repeated && fontFields[i].read(font, value);
    }
    return false;
}

//! Reads "a: 1; b: 2;", each key once.
bool readRealPair(QStringView text, QLatin1StringView a, QLatin1StringView b, qreal &first, qreal &second)
{
    return GroupText::readTwo(text, a, b, GroupText::Repeated::Refused,
                              [&](bool isSecond, QStringView value) {
                                  bool ok = false;
                                  (isSecond ? second : first) = ValueConversion::toReal(value, &ok);
                                  return ok;
                              });
}

//! Passes each part of a list, trimmed, to \a read until one is refused.
template<class Read>
bool forEachPart(QStringView text, char16_t separator, Read &&read)
{
    for (const QStringView part : qTokenize(text, separator)) {
        if (!read(part.trimmed())) {
            return false;
        }
    }
    return true;
}

bool readStop(QStringView text, QGradientStop &stop)
{
    const qsizetype comma = text.indexOf(u',');
    if (comma < 0) {
        return false;
    }
    bool positionOk = false;
    bool colorOk = false;
    stop.first = ValueConversion::toReal(text.first(comma), &positionOk);
    stop.second = ValueConversion::toColor(text.sliced(comma + 1).trimmed(), &colorOk);
    return positionOk && colorOk;
}

//! Truncates the position to two decimals. A hundredth is rarely exact in a double (0.29 * 100 is slightly
//! below 29), so values very close to the next hundredth count as reaching it.
double cutToHundredths(double position)
{
    const double scaled = position * 100;
    const double nearest = std::round(scaled);
    const bool isHundredth = std::abs(scaled - nearest) <= 1e-9 * std::max(1.0, std::abs(scaled));
    const double hundredths = isHundredth ? nearest : std::trunc(scaled);
    return std::isfinite(hundredths) ? hundredths / 100 + 0.0 : position;
}

//! The result of a reader: the value, or an empty one.
template<class Value>
Value result(bool success, Value value, bool *ok)
{
    if (ok) {
        *ok = success;
    }
    return success ? value : Value();
}

} // namespace

QFont ValueConversion::toFont(QStringView text, bool *ok)
{
    QFont font;
    unsigned seen = 0;
    bool parsed = GroupText::forEachEntry(
        text, [&](QStringView key, QStringView value) { return readFontEntry(font, seen, key, value); });
    for (size_t i = 0; i < fontFields.size(); ++i) {
        parsed = parsed && (fontFields[i].optional || (seen & 1U << i) != 0);
    }
    return result(parsed, font, ok);
}

QString ValueConversion::toString(const QFont &font)
{
    QString text;
    text.reserve(200);
    GroupText::appendEntry(text, u"bold", toString(font.weight() > QFont::Normal));
    GroupText::appendEntry(text, u"family", Common::TextHelper::convertToBase64(font.family()));
    GroupText::appendEntry(text, u"italic", toString(font.style() != QFont::StyleNormal));
    GroupText::appendEntry(text, u"letterSpacing", toString(font.letterSpacing()));
    GroupText::appendEntry(text, u"overline", toString(font.overline()));
    if (font.pixelSize() > 0) {
        GroupText::appendEntry(text, u"pixelSize", toString(font.pixelSize()));
    }
    if (font.pointSize() > 0) {
        GroupText::appendEntry(text, u"pointSize", toString(font.pointSize()));
    }
    GroupText::appendEntry(text, u"strikeout", toString(font.strikeOut()));
    GroupText::appendEntry(text, u"underline", toString(font.underline()));
    GroupText::appendEntry(text, u"wordSpacing", toString(font.wordSpacing()));
    return text;
}

QPointF ValueConversion::toPoint(QStringView text, bool *ok)
{
    QPointF point;
    const bool parsed = readRealPair(text, "x"_L1, "y"_L1, point.rx(), point.ry());
    return result(parsed, point, ok);
}

void ValueConversion::appendPoint(QString &text, const QPointF &point)
{
    text.append("x: "_L1);
    appendReal(text, point.x());
    text.append("; y: "_L1);
    appendReal(text, point.y());
    text.append(u';');
}

QString ValueConversion::toString(const QPointF &point)
{
    QString text;
    text.reserve(32);
    appendPoint(text, point);
    return text;
}

QSizeF ValueConversion::toSize(QStringView text, bool *ok)
{
    QSizeF size;
    const bool parsed = readRealPair(text, "height"_L1, "width"_L1, size.rheight(), size.rwidth());
    return result(parsed, size, ok);
}

QString ValueConversion::toString(const QSizeF &size)
{
    QString text;
    text.reserve(40);
    text.append("height: "_L1);
    appendReal(text, size.height());
    text.append("; width: "_L1);
    appendReal(text, size.width());
    return text.append(u';');
}

QPolygonF ValueConversion::toPolygon(QStringView text, bool *ok)
{
    QPolygonF polygon;
    const bool parsed = forEachPart(text, u'|', [&](QStringView part) {
        bool pointOk = false;
        polygon.append(toPoint(part, &pointOk));
        return pointOk;
    });
    return result(parsed, polygon, ok);
}

QString ValueConversion::toString(const QPolygonF &polygon)
{
    QString text;
    text.reserve(polygon.size() * 20);
    for (const QPointF &point : polygon) {
        if (!text.isEmpty()) {
            text.append(" | "_L1);
        }
        appendPoint(text, point);
    }
    return text;
}

QList<QPolygonF> ValueConversion::toPolygonList(QStringView text, bool *ok)
{
    QList<QPolygonF> polygons;
    const bool parsed = forEachPart(text, u',', [&](QStringView part) {
        if (part.size() < 2 || part.front() != u'[' || part.back() != u']') {
            return false;
        }
        const QStringView inside = part.sliced(1, part.size() - 2).trimmed();
        bool polygonOk = inside.isEmpty();
        polygons.append(polygonOk ? QPolygonF() : toPolygon(inside, &polygonOk));
        return polygonOk;
    });
    return result(parsed, polygons, ok);
}

QString ValueConversion::toString(const QList<QPolygonF> &polygons)
{
    QString text;
    for (const QPolygonF &polygon : polygons) {
        text.append(text.isEmpty() ? "["_L1 : ", ["_L1);
        text.append(toString(polygon)).append(u']');
    }
    return text;
}

QGradientStops ValueConversion::toGradientStops(QStringView text, bool *ok)
{
    QGradientStops stops;
    const bool parsed =
        forEachPart(text, u'|', [&](QStringView part) { return readStop(part, stops.emplace_back()); });
    return result(parsed, stops, ok);
}

QString ValueConversion::toString(const QGradientStops &stops)
{
    QString text;
    text.reserve(stops.size() * 18);
    for (const auto &[position, color] : stops) {
        if (!text.isEmpty()) {
            text.append(" | "_L1);
        }
        appendReal(text, cutToHundredths(position));
        text.append(", "_L1);
        appendColor(text, color);
    }
    return text;
}

} // namespace Halvane::Corvex::Designer
