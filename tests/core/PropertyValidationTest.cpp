// SPDX-License-Identifier: MIT
#include "corvex/common/EnumHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BorderProperty.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/EnumProperty.h"
#include "corvex/core/properties/GradientStopsProperty.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/core/properties/RangeProperty.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/core/properties/ValueRangeProperty.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using Halvane::Corvex::Common::EnumHelper;
using namespace Qt::StringLiterals;

namespace {

//! Keeps invalid values, so that every value can be set and validated.
class Device : public DesignerObject
{
    CORVEX_CLASS_NAMES(Device, DesignerObject)

public:
    Device() { initialize(); }

    //! The error of a property after it was set to that text.
    QString errorOf(const char *id, const QString &text)
    {
        const SharedProperty property = getProperty(QString::fromLatin1(id));
        EXPECT_TRUE(changePropertyValue(property, text));
        EXPECT_TRUE(property->equalsValue(text));
        const bool isValid = property->validate();
        EXPECT_EQ(isValid, property->errorString().isEmpty());
        return property->errorString();
    }

protected:
    ObjectView *createGraphicsItem() override { return nullptr; }
    bool initializeProperties() override
    {
        static const PropertyTable table{
            row<SizeProperty>("size", "Size", QSizeF(400, 300)).allowInvalid(),
            row<ColorProperty>("color", "Color", QColor()).allowInvalid(),
            row<EnumProperty>("word", "Word",
                              EnumInfo(QMetaEnum::fromType<EnumHelper::InputOutputType>(), 99))
                .allowInvalid(),
            row<BorderProperty>("border", "Border", BorderInfo()).allowInvalid(),
            row<GradientStopsProperty>("gradient", "Gradient", GradientStopsProperty::initValue())
                .allowInvalid(),
            row<RangeProperty>("MinMax", "A", RangeInfo())
                .parameter("rangeStyle", u"MinMax"_s)
                .allowInvalid(),
            row<RangeProperty>("MinMaxEqual", "B", RangeInfo())
                .parameter("rangeStyle", u"MinMaxEqual"_s)
                .allowInvalid(),
            row<RangeProperty>("MaxMin", "C", RangeInfo())
                .parameter("rangeStyle", u"MaxMin"_s)
                .allowInvalid(),
            row<RangeProperty>("MaxMinEqual", "D", RangeInfo())
                .parameter("rangeStyle", u"MaxMinEqual"_s)
                .allowInvalid(),
            row<RangeProperty>("different", "E", RangeInfo()).allowInvalid(),
            row<ValueRangeProperty>("valueRange", "Value Range", ValueRangeInfo()).allowInvalid(),
            row<LinkProperty>("analogInput", "Analog Input", ObjectLinkInfo()),
            row<RangeProperty>("voltageRange", "Voltage Range", RangeInfo()).allowInvalid(),
        };
        return DesignerObject::initializeProperties() && addProperties(table);
    }
};

//! The given number of stops, in alternating colours.
QString stops(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i) {
        texts.append(u"%1, %2"_s.arg(QString::number(i / 100.0), i % 2 ? u"red"_s : u"blue"_s));
    }
    return texts.join(u" | "_s);
}

} // namespace

TEST(PropertyValidation, SimpleKinds)
{
    Device device;
    device.validate();
    EXPECT_EQ(device.getProperty(u"color")->errorString(),
              u"The color is invalid. Please choose a valid color."_s);
    EXPECT_EQ(device.getProperty(u"word")->errorString(), u"The enumeration value is invalid."_s);
    EXPECT_EQ(device.errorOf("color", u"red"_s), QString());
    EXPECT_EQ(device.errorOf("word", u"SEND"_s), QString());
    EXPECT_EQ(device.errorOf("size", u"height: -1; width: 5;"_s), u"The size is invalid."_s);
    EXPECT_EQ(device.errorOf("size", u"height: 0; width: 5;"_s), QString());
}

TEST(PropertyValidation, BorderFitsIntoItsOwner)
{
    const auto border = [](int width) { return u"color: red; width: %1;"_s.arg(width); };
    Device device;
    EXPECT_EQ(device.errorOf("border", border(100)), QString());
    EXPECT_EQ(device.errorOf("border", border(101)), u"The border width must be between 0 and 100."_s);
    EXPECT_EQ(device.errorOf("border", border(-1)), u"The border width must be between 0 and 100."_s);
    device.errorOf("size", u"height: 31; width: 90;"_s);
    EXPECT_EQ(device.errorOf("border", border(15)), QString());
    EXPECT_EQ(device.errorOf("border", border(16)),
              u"The border width must be less than or equal to 15 px."_s);
    device.errorOf("size", u"height: -31; width: 90;"_s);
    EXPECT_EQ(device.errorOf("border", border(1)), u"The border width must be less than or equal to 0 px."_s);
}

TEST(PropertyValidation, GradientStops)
{
    Device device;
    const QString tooFew = u"The gradient stops must have at least 2 stops."_s;
    EXPECT_EQ(device.errorOf("gradient", QString()), tooFew);
    EXPECT_EQ(device.errorOf("gradient", stops(1)), tooFew);
    EXPECT_EQ(device.errorOf("gradient", stops(2)), QString());
    EXPECT_EQ(device.errorOf("gradient", stops(101)), QString());
    EXPECT_EQ(device.errorOf("gradient", stops(102)),
              u"The gradient stops cannot have more than 101 stops."_s);
    EXPECT_EQ(device.errorOf("gradient", u"0.5, red | 0.501, blue"_s), u"Duplicate position values found."_s);
    EXPECT_EQ(device.errorOf("gradient", u"0, #00FF0000 | 1, #0000FF00"_s),
              u"Gradient colors cannot be all transparent."_s);
    EXPECT_EQ(device.errorOf("gradient", u"0, red | 0.5, #FFFF0000 | 1, red"_s),
              u"Gradient colors cannot be all the same."_s);
}

TEST(PropertyValidation, RangeStyles)
{
    const QString ascending = u"maximum: 2; minimum: 1;"_s;
    const QString equal = u"maximum: 1; minimum: 1;"_s;
    const QString descending = u"maximum: 0; minimum: 1;"_s;
    const struct
    {
        const char *style;
        QStringList refused;
        const char *error;
    } styles[] = {
        {"MinMax", {equal, descending}, "The minimum value must be less than the maximum value."},
        {"MinMaxEqual", {descending}, "The minimum value cannot be greater than the maximum value."},
        {"MaxMin", {equal, ascending}, "The maximum value must be less than the minimum value."},
        {"MaxMinEqual", {ascending}, "The maximum value cannot be greater than the minimum value."},
        {"different", {equal}, "The two values cannot be the same."},
    };
    Device device;
    for (const auto &[style, refused, error] : styles) {
        for (const QString &text : {ascending, equal, descending}) {
            SCOPED_TRACE(text.toStdString() + " as " + style);
            EXPECT_EQ(device.errorOf(style, text),
                      refused.contains(text) ? QString::fromLatin1(error) : QString());
        }
    }
}

TEST(PropertyValidation, TheInputMustResolveTheValueRange)
{
    const QString tooClose =
        u"According to the actual available voltage range from value and to value are almost same."_s;
    const QString wrongOrder = u"The minimum value cannot be greater than the maximum value."_s;
    const struct
    {
        const char *voltage;
        const char *range;
        QString error;
        const char *qml;
    } cases[] = {
        {"maximum: 0; minimum: 0;", "value1: 5, value2: 5, min: 0, max: 10", {}, "valueRange: [5, 5]"},
        {"maximum: 0; minimum: 0;", "value1: 6, value2: 5, min: 0, max: 10", wrongOrder,
         "valueRange: [6, 5]"},
        {"maximum: 10; minimum: 0;", "value1: 2, value2: 8, min: 10, max: 0", wrongOrder,
         "valueRange: [2, 8]\nvalueRangeFactor: 0.166666667\nvalueRangeOffset: -0.333333333"},
        {"maximum: 10; minimum: 0;", "value1: 2, value2: 12, min: 0, max: 11",
         u"The values must be within their limits."_s,
         "valueRange: [2, 12]\nvalueRangeFactor: 0.125\nvalueRangeOffset: -0.25"},
        {"maximum: -5; minimum: 5;",
         "value1: -5, value2: 5, min: -10, max: 10",
         {},
         "valueRange: [-5, 5]\nvalueRangeFactor: 0.1\nvalueRangeOffset: 0.5"},
        {"maximum: 10; minimum: 0;",
         "value1: 5, value2: 5.011, min: 0, max: 10",
         {},
         "valueRange: [5, 5.011]\nvalueRangeFactor: 90.909090909\nvalueRangeOffset: -454.545454545"},
        {"maximum: 10; minimum: 0;", "value1: 5, value2: 5.009, min: 0, max: 10", tooClose,
         "valueRange: [5, 5.009]\nvalueRangeFactor: 0\nvalueRangeOffset: 0"},
        {"maximum: 5; minimum: 0;", "value1: 5, value2: 10, min: 0, max: 10", tooClose,
         "valueRange: [5, 10]\nvalueRangeFactor: 0\nvalueRangeOffset: 0"},
    };
    Device device;
    for (const auto &[voltage, range, error, qml] : cases) {
        SCOPED_TRACE(range);
        device.errorOf("voltageRange", QString::fromLatin1(voltage));
        EXPECT_EQ(device.errorOf("valueRange", QString::fromLatin1(range)), error);
        EXPECT_EQ(device.getProperty(u"valueRange")->toQml(0), QLatin1StringView(qml));
    }
}
