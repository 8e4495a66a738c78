// SPDX-License-Identifier: MIT
#include "corvex/values/text/ReadableText.h"

#include "corvex/values/private/ExpressionLexer.h"
#include "corvex/values/records/BorderInfo.h"
#include "corvex/values/records/RangeInfo.h"
#include "corvex/values/text/ValueConversion.h"

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QSizeF>

#include <algorithm>
#include <initializer_list>
#include <optional>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Conversion = ValueConversion;

//! Two numbers with one of the separators between them.
std::optional<QPointF> readPair(QStringView text, std::initializer_list<QStringView> separators)
{
    for (const QStringView separator : separators) {
        const qsizetype place = text.indexOf(separator);
        bool isFirst = false;
        bool isSecond = false;
        if (place > 0) {
            const QPointF pair(
                Conversion::toReal(text.first(place).trimmed(), &isFirst),
                Conversion::toReal(text.sliced(place + separator.size()).trimmed(), &isSecond));
            if (isFirst && isSecond) {
                return pair;
            }
        }
    }
    return {};
}

QString printPair(double first, QLatin1StringView separator, double second)
{
    return Conversion::toString(first) + separator + Conversion::toString(second);
}

//! Also reads the long names of colors, which the stored form does not have, and "transparent".
QColor readColor(const QString &text, bool &ok)
{
    if (!text.startsWith(u'#')) {
        const QColor named(text);
        ok = named.isValid();
        return named;
    }
    return Conversion::toColor(text, &ok);
}

QString shortColor(const QColor &color)
{
    const QString name = Conversion::toString(color);
    return color.alpha() == 255 ? u'#' + name.sliced(3) : name;
}

//! A style that a font has or lacks, by its word.
struct FontStyle
{
    QLatin1StringView word;
    bool (QFont::*has)() const;
    void (QFont::*set)(bool);
};

constexpr FontStyle fontStyles[] = {
    {"bold"_L1, &QFont::bold, &QFont::setBold},
    {"italic"_L1, &QFont::italic, &QFont::setItalic},
    {"underline"_L1, &QFont::underline, &QFont::setUnderline},
    {"overline"_L1, &QFont::overline, &QFont::setOverline},
    {"strikeout"_L1, &QFont::strikeOut, &QFont::setStrikeOut},
};

bool readFontSize(QStringView word, QFont &font)
{
    bool isNumber = false;
    const QStringView digits = word.chopped(std::min<qsizetype>(word.size(), 2));
    if (word.endsWith("px"_L1)) {
        const int pixels = digits.toInt(&isNumber);
        font.setPixelSize(std::max(pixels, 1));
        return isNumber && pixels > 0;
    }
    const int points = digits.toInt(&isNumber); // stored without fractions
    const bool isSize = word.endsWith("pt"_L1) && isNumber && points > 0;
    if (isSize) {
        font.setPointSize(points);
    }
    return isSize;
}

bool readFontWord(QStringView word, QFont &font)
{
    for (const FontStyle &style : fontStyles) {
        if (word == style.word) {
            (font.*style.set)(true);
            return true;
        }
    }
    return readFontSize(word, font);
}

} // namespace

QString ReadableText::fromSize(const QString &stored)
{
    bool ok = false;
    const QSizeF size = Conversion::toSize(stored, &ok);
    return ok ? printPair(size.width(), " x "_L1, size.height()) : QString();
}

QString ReadableText::toSize(const QString &text)
{
    const std::optional<QPointF> pair = readPair(text, {u"x", u"X", u"×"});
    return pair ? Conversion::toString(QSizeF(pair->x(), pair->y())) : QString();
}

QString ReadableText::fromPoint(const QString &stored)
{
    bool ok = false;
    const QPointF point = Conversion::toPoint(stored, &ok);
    return ok ? printPair(point.x(), ", "_L1, point.y()) : QString();
}

QString ReadableText::toPoint(const QString &text)
{
    const std::optional<QPointF> pair = readPair(text, {u","});
    return pair ? Conversion::toString(*pair) : QString();
}

QString ReadableText::fromRange(const QString &stored)
{
    bool ok = false;
    const RangeInfo range(stored, &ok);
    return ok ? printPair(range.minimum(), " to "_L1, range.maximum()) : QString();
}

QString ReadableText::toRange(const QString &text)
{
    const std::optional<QPointF> pair = readPair(text, {u" to "});
    return pair ? RangeInfo(pair->x(), pair->y()).toString() : QString();
}

QString ReadableText::fromBorder(const QString &stored)
{
    bool ok = false;
    const BorderInfo border(stored, &ok);
    return ok && border.color().isValid() ? u"%1 %2"_s.arg(border.width()).arg(shortColor(border.color()))
                                          : QString();
}

QString ReadableText::toBorder(const QString &text)
{
    const QStringList words = text.simplified().split(u' ');
    bool isWidth = false;
    bool isColor = words.size() == 1;
    const int width = Conversion::toInt(words.first(), &isWidth);
    const QColor color = isColor ? QColor(Qt::black) : readColor(words.at(1), isColor);
    return isWidth && isColor && words.size() <= 2 ? BorderInfo(width, color).toString() : QString();
}

QString ReadableText::fromColor(const QString &stored)
{
    bool ok = false;
    const QColor color = Conversion::toColor(stored, &ok);
    return ok ? shortColor(color) : QString();
}

QString ReadableText::toColor(const QString &text)
{
    bool ok = false;
    const QColor color = readColor(text.trimmed(), ok);
    return ok ? Conversion::toString(color) : QString();
}

QString ReadableText::fromFont(const QString &stored)
{
    bool ok = false;
    const QFont font = Conversion::toFont(stored, &ok);
    QStringList words;
    for (const FontStyle &style : fontStyles) {
        if ((font.*style.has)()) {
            words.append(style.word);
        }
    }
    if (font.pixelSize() > 0) {
        words.append(u"%1px"_s.arg(font.pixelSize()));
    } else if (font.pointSize() > 0) {
        words.append(u"%1pt"_s.arg(font.pointSize()));
    }
    words.append(quoted(font.family()));
    const QString text = words.join(u' ');
    // A font with spacings has no short form.
    return ok && toFont(text) == stored ? text : QString();
}

QString ReadableText::toFont(const QString &text, const QString &family)
{
    QFont font;
    font.setFamily(family);
    bool hasFamily = false;
    bool hasSize = false;
    qsizetype place = 0;
    while (place < text.size()) {
        if (text.at(place).isSpace()) {
            ++place;
            continue;
        }
        if (text.at(place) == u'"') {
            const QString quoted = takeQuoted(text, place);
            if (hasFamily || quoted.isNull()) {
                return {};
            }
            font.setFamily(quoted);
            hasFamily = true;
            continue;
        }
        const qsizetype begin = place;
        while (place < text.size() && !text.at(place).isSpace()) {
            ++place;
        }
        const QStringView word = QStringView(text).sliced(begin, place - begin);
        const bool isSize = word.front().isDigit();
        if (hasSize && !hasFamily && word.front().isUpper() && !text.contains(u'"')) {
            font.setFamily(text.sliced(begin).trimmed());
            hasFamily = true;
            break;
        }
        if ((isSize && hasSize) || !readFontWord(word, font)) {
            return {};
        }
        hasSize = hasSize || isSize;
    }
    return (hasFamily || !family.isEmpty()) && hasSize ? Conversion::toString(font) : QString();
}

QString ReadableText::quoted(const QString &text)
{
    return ExpressionLexer::quoted(text, u'"');
}

bool ReadableText::needsQuotes(const QString &text)
{
    const auto isSpecial = [](QChar c) {
        return c == u'"' || !(c.isSurrogate() || ExpressionLexer::isPrintable(c.unicode()));
    };
    return text != text.trimmed() || text.startsWith(u'=') || std::ranges::any_of(text, isSpecial);
}

QString ReadableText::unquoted(const QString &text, QString &error)
{
    if (text.size() < 2 || !text.startsWith(u'"') || !text.endsWith(u'"')) {
        return text;
    }
    const ExpressionToken token = ExpressionLexer(text).next(true);
    if (token.type == ExpressionToken::Wrong) {
        error = token.text;
    }
    if (token.type != ExpressionToken::Text || token.length != text.size()) {
        return text;
    }
    return token.text.isNull() ? u""_s : token.text;
}

QString ReadableText::takeQuoted(QStringView text, qsizetype &place)
{
    const ExpressionToken token = ExpressionLexer(text.sliced(place)).next(true);
    if (token.type != ExpressionToken::Text) {
        return {};
    }
    place += token.position + token.length;
    return token.text.isNull() ? u""_s : token.text;
}

} // namespace Halvane::Corvex::Designer
