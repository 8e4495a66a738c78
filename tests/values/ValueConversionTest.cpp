// SPDX-License-Identifier: MIT
#include "corvex/values/text/ValueConversion.h"

#include <QLocale>
#include <QStringList>

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace Qt::StringLiterals;
using Halvane::Corvex::Designer::ValueConversion;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

//! A slow implementation of the definition of the real form.
QString definedRealForm(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (!text.contains(u'.')) {
        return text;
    }
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    return text.endsWith(u'.') ? text.chopped(1) : text;
}

//! The text after reading and printing, or "refused".
template<class Value>
QString canonical(Value (*read)(QStringView, bool *), const QString &text)
{
    bool ok = false;
    const Value value = read(text, &ok);
    if (!ok) {
        EXPECT_EQ(value, Value()) << text.toStdString();
    }
    return ok ? ValueConversion::toString(value) : u"refused"_s;
}

struct Row
{
    QString text, expected;
};

template<class Value, size_t Count>
void expectCanonical(Value (*read)(QStringView, bool *), const Row (&rows)[Count])
{
    for (const auto &[text, expected] : rows) {
        EXPECT_EQ(canonical(read, text), expected) << text.toStdString();
    }
}

} // namespace

TEST(ValueConversion, Boolean)
{
    static QStringList messages;
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &message) { messages.append(message); });
    expectCanonical<bool>(ValueConversion::toBoolean, {{u"true"_s, u"true"_s},
                                                       {u"TRUE"_s, u"true"_s},
                                                       {u"False"_s, u"false"_s},
                                                       {u""_s, u"refused"_s},
                                                       {u"1"_s, u"refused"_s},
                                                       {u" true"_s, u"refused"_s}});
    qInstallMessageHandler(previous);
    EXPECT_EQ(messages, QStringList({u"value 1"_s, u"value  true"_s}));
    EXPECT_TRUE(ValueConversion::toBoolean(u"true"));
}

TEST(ValueConversion, RealText)
{
    QLocale::setDefault(QLocale(QLocale::German));
    expectCanonical<double>(
        ValueConversion::toReal,
        {{u"1.5"_s, u"1.5"_s},       {u"2.0"_s, u"2"_s},         {u"100"_s, u"100"_s},
         {u"-.5"_s, u"-0.5"_s},      {u"0.0001"_s, u"0"_s},      {u"-0.0004"_s, u"-0"_s},
         {u"-0"_s, u"-0"_s},         {u"1e3"_s, u"1000"_s},      {u" 7. "_s, u"7"_s},
         {u"0.0625"_s, u"0.063"_s},  {u"1,5"_s, u"refused"_s},   {u"1.000,5"_s, u"refused"_s},
         {u"1.2.3"_s, u"refused"_s}, {u"."_s, u"refused"_s},     {u"-"_s, u"refused"_s},
         {u""_s, u"refused"_s},      {u"nan"_s, u"refused"_s},   {u"-inf"_s, u"refused"_s},
         {u"1e400"_s, u"refused"_s}, {u"\u0661"_s, u"refused"_s}});
    QLocale::setDefault(QLocale::c());

    EXPECT_EQ(ValueConversion::toString(1.0 / 3), u"0.333"_s);
    EXPECT_EQ(ValueConversion::toReal(ValueConversion::toString(1e308)), 1e308);
    EXPECT_EQ(ValueConversion::toString(notANumber), u"nan"_s);
    EXPECT_EQ(ValueConversion::toString(-infinity), u"-inf"_s);
}

TEST(ValueConversion, RealTextForCode)
{
    EXPECT_EQ(ValueConversion::toQmlString(0.1, 20), u"0.10000000000000000555"_s);
    EXPECT_EQ(ValueConversion::toQmlString(1.26, -5), u"1"_s);
    EXPECT_EQ(ValueConversion::toQmlString(-0.0, 12), u"-0"_s);
    EXPECT_EQ(ValueConversion::toQmlString(notANumber, 3), u"NaN"_s);
    EXPECT_EQ(ValueConversion::toQmlString(-infinity, 3), u"-Infinity"_s);
}

//! The fast printing and reading must agree with the toolkit to the last bit.
TEST(ValueConversion, RealsEqualThoseOfTheToolkit)
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i) {
        const auto whole = double(qint64(random() % 2000001) - 1000000);
        const quint64 bits = random();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        for (const double number : {whole / 16, whole / 1000, (whole + 0.5) / 1000, value}) {
            const int decimals = i % 12;
            if (!std::isfinite(number)) {
                continue;
            }
            const QString text = ValueConversion::toQmlString(number, decimals);
            ASSERT_EQ(text, definedRealForm(number, decimals)) << number;
            bool ok = false;
            ASSERT_EQ(ValueConversion::toReal(text, &ok), text.toDouble()) << text.toStdString();
            ASSERT_TRUE(ok);
        }
    }
}

TEST(ValueConversion, RestrictDecimals)
{
    const struct
    {
        double value;
        int decimals;
        double expected;
    } rows[] = {
        {2.5, 0, 3},
        {-2.5, 0, -2},
        {-0.4, 0, 0},
        {0.005, 2, 0.01},
        {-1.25, 1, -1.2},
        {1.23456, -1, 1.23456},
        {5e9 + 0.5, 0, 5e9 + 1},
        {1e-30, 20, 0},
        {1.5, 400, 1.5},
        {infinity, 0, infinity},
    };
    for (const auto &[value, decimals, expected] : rows) {
        EXPECT_EQ(ValueConversion::restrictDecimals(value, decimals), expected) << value << ' ' << decimals;
    }
    EXPECT_TRUE(std::isnan(ValueConversion::restrictDecimals(notANumber, 2)));

    EXPECT_EQ(ValueConversion::restrictDecimals(QSizeF(1.26, 2.24), 1), QSizeF(1.3, 2.2));
    EXPECT_EQ(ValueConversion::restrictDecimals(QRectF(0.5, 1.4, 2.5, 3.4), 0), QRectF(1, 1, 3, 3));
    const QList<QPolygonF> polygons{QPolygonF({{0.26, -0.26}}), QPolygonF()};
    EXPECT_EQ(ValueConversion::restrictDecimals(polygons, 1),
              QList<QPolygonF>({QPolygonF({{0.3, -0.3}}), QPolygonF()}));
}

TEST(ValueConversion, Color)
{
    expectCanonical<QColor>(ValueConversion::toColor, {{u"#80ff0000"_s, u"#80FF0000"_s},
                                                       {u"x0512ab9F"_s, u"#0512AB9F"_s},
                                                       {u"#F00"_s, u"#FFFF0000"_s},
                                                       {u"#123456"_s, u"#FF123456"_s},
                                                       {u"transparent"_s, u"#FF000000"_s},
                                                       {u"#80F0F"_s, u"refused"_s},
                                                       {u"#7fF00FFF0"_s, u"refused"_s},
                                                       {u"#GG112233"_s, u"refused"_s},
                                                       {u"#12345678901234567890"_s, u"refused"_s},
                                                       {u""_s, u"refused"_s}});
}

TEST(ValueConversion, ColorList)
{
    const QList<QColor> colors{Qt::red, QColor(0, 255, 0, 5)};
    EXPECT_EQ(ValueConversion::toString(colors), u"[#FFFF0000,#0500FF00]"_s);
    EXPECT_EQ(ValueConversion::toString(QList<QColor>()), u"]"_s);

    const QColor invalid;
    const struct
    {
        QString text;
        QList<QColor> expected;
        bool ok;
    } rows[] = {
        {u"[#FFFF0000,#0500FF00]"_s, colors, true},
        {u"[nope,red]"_s, {invalid, QColor(Qt::red)}, true},
        {u"[red,]"_s, {QColor(Qt::red), invalid}, false},
        {u"[]"_s, {invalid}, false},
        {u""_s, {invalid}, false},
    };
    for (const auto &[text, expected, expectedOk] : rows) {
        bool ok = !expectedOk;
        EXPECT_EQ(ValueConversion::toColorList(text, &ok), expected) << text.toStdString();
        EXPECT_EQ(ok, expectedOk) << text.toStdString();
    }
}

TEST(ValueConversion, Group)
{
    using Group = QMap<QString, QString>;
    EXPECT_EQ(ValueConversion::toString(Group{{u"b"_s, u"2"_s}, {u"a"_s, u""_s}, {u"B"_s, u"1"_s}}),
              u"B: 1; a: ; b: 2;"_s);
    EXPECT_EQ(ValueConversion::toString(Group()), QString());

    const struct
    {
        QString text;
        Group expected;
        bool ok;
    } rows[] = {
        {u" color : #F00 ;; width:2"_s, {{u"color"_s, u"#F00"_s}, {u"width"_s, u"2"_s}}, true},
        {u"a: 1; a: 2; : x"_s, {{u"a"_s, u"2"_s}, {u""_s, u"x"_s}}, true},
        {u"valueString: x: y; z"_s, {{u"valueString"_s, u" x: y; z;"_s}}, true},
        {u"a: 1; VALUESTRING:x:y:dropped; b: 2; ;c"_s,
         {{u"a"_s, u"1"_s}, {u"valueString"_s, u"x:y; b: 2; c;"_s}},
         true},
        {u"valueString: a: b; q; valueString: c: d"_s, {{u"valueString"_s, u" a: b; q;  c: d;"_s}}, true},
        {u"a: 1; b; valueString: x: y"_s, {}, false},
        {u""_s, {}, false},
    };
    for (const auto &[text, expected, expectedOk] : rows) {
        bool ok = !expectedOk;
        EXPECT_EQ(ValueConversion::toGroupProperties(text, &ok), expected) << text.toStdString();
        EXPECT_EQ(ok, expectedOk) << text.toStdString();
    }
}

TEST(ValueConversion, Font)
{
    QFont font(u"Sans"_s);
    font.setPointSize(12);
    font.setWeight(QFont::Medium);
    font.setStyle(QFont::StyleOblique);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    const QString printed =
        u"bold: true; family: U2Fucw==; italic: true; letterSpacing: 1.5; overline: false; "
        "pointSize: 12; strikeout: false; underline: false; wordSpacing: 0;"_s;
    EXPECT_EQ(ValueConversion::toString(font), printed);
    font.setWeight(QFont::Normal);
    EXPECT_TRUE(ValueConversion::toString(font).startsWith(u"bold: false;"));

    const QString inPixels = QString(printed).replace(u"pointSize"_s, u"pixelSize"_s);
    bool ok = false;
    const QFont read = ValueConversion::toFont(inPixels, &ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(read.pixelSize(), 12);
    EXPECT_EQ(read.letterSpacingType(), QFont::AbsoluteSpacing);
    EXPECT_EQ(ValueConversion::toFont(u"bold: false; family: ; italic: false; letterSpacing: 0; "
                                      u"overline: true; strikeout: true; underline: true; wordSpacing: -2",
                                      &ok)
                  .wordSpacing(),
              -2);
    EXPECT_TRUE(ok);

    // The font stores 64ths and truncates the rest. The value must not shrink with each reading.
    for (int fraction = -64; fraction <= 64; ++fraction) {
        const QString spacing = ValueConversion::toString(fraction / 64.0);
        const QString text = QString(printed)
                                 .replace(u"1.5"_s, spacing)
                                 .replace(u"wordSpacing: 0"_s, u"wordSpacing: "_s + spacing);
        EXPECT_EQ(ValueConversion::toString(ValueConversion::toFont(text)), text);
    }
}

TEST(ValueConversion, FontRefusesWhatItDoesNotWrite)
{
    const QString good = u"bold: true; family: U2Fucw==; italic: true; letterSpacing: 0; overline: false; "
                         "pointSize: 12; strikeout: false; underline: false; wordSpacing: 0;"_s;
    const std::pair<QString, QString> faults[] = {
        {u"wordSpacing: 0;"_s, u""_s},
        {u"U2Fucw=="_s, u"Sans"_s},
        {u"pointSize: 12"_s, u"pointSize: 0"_s},
        {u"pointSize: 12"_s, u"pointSize: 12.5"_s},
        {u"pointSize: 12"_s, u"pointSize: 12; pointSize: 12"_s},
        {u"wordSpacing: 0"_s, u"wordSpacing: 1e300"_s},
        {u"letterSpacing: 0"_s, u"letterSpacing: -33554432"_s},
    };
    for (const auto &[part, fault] : faults) {
        bool ok = true;
        ValueConversion::toFont(QString(good).replace(part, fault), &ok);
        EXPECT_FALSE(ok) << fault.toStdString();
    }
}

TEST(ValueConversion, Points)
{
    expectCanonical<QPointF>(ValueConversion::toPoint, {{u"x: 10; y: 20.5;"_s, u"x: 10; y: 20.5;"_s},
                                                        {u" y:-1;x:2 "_s, u"x: 2; y: -1;"_s},
                                                        {u"x: 1; x: 2; y: 3;"_s, u"refused"_s},
                                                        {u"X: 1; y: 2;"_s, u"refused"_s},
                                                        {u"x: 1; y: 2; valueString: 1: 2"_s, u"refused"_s},
                                                        {u""_s, u"refused"_s}});
}

TEST(ValueConversion, Polygons)
{
    const QString triangle = u"x: 0; y: 0; | x: 10; y: 0; | x: 5; y: -5.25;"_s;
    expectCanonical<QPolygonF>(ValueConversion::toPolygon, {{triangle, triangle},
                                                            {u" y: 1; x: 2;"_s, u"x: 2; y: 1;"_s},
                                                            {u"x: 0; y: 0; | "_s, u"refused"_s},
                                                            {u""_s, u"refused"_s}});
    const QString list = u"["_s + triangle + u"], [], [x: 1; y: 1;]"_s;
    expectCanonical<QList<QPolygonF>>(ValueConversion::toPolygonList,
                                      {{list, list},
                                       {u" [ ],[x: 1; y: 1;] "_s, u"[], [x: 1; y: 1;]"_s},
                                       {u"[x: 1; y: 1;"_s, u"refused"_s},
                                       {u"[x: 1; y: 1;], "_s, u"refused"_s},
                                       {u"]"_s, u"refused"_s},
                                       {u""_s, u"refused"_s}});
    EXPECT_EQ(ValueConversion::toString(QList<QPolygonF>()), QString());
}

TEST(ValueConversion, GradientStops)
{
    expectCanonical<QGradientStops>(ValueConversion::toGradientStops,
                                    {{u"0, #FFFF0000 | 0.5, #FF00FF00 | 1, #FF0000FF"_s,
                                      u"0, #FFFF0000 | 0.5, #FF00FF00 | 1, #FF0000FF"_s},
                                     {u"0.999,red|1,blue"_s, u"0.99, #FFFF0000 | 1, #FF0000FF"_s},
                                     {u"0, red, blue"_s, u"refused"_s},
                                     {u""_s, u"refused"_s}});
    // A hundredth that is slightly too small as a double would decrease with each printing.
    for (int hundredth = -100; hundredth <= 100; ++hundredth) {
        const QString text = u"%1, #FF000000"_s.arg(ValueConversion::toString(hundredth / 100.0));
        EXPECT_EQ(canonical<QGradientStops>(ValueConversion::toGradientStops, text), text);
    }
    EXPECT_EQ(ValueConversion::toString(QGradientStops{{-0.001, Qt::red}}), u"0, #FFFF0000"_s);
}
