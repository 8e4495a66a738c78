// SPDX-License-Identifier: MIT
#include "corvex/values/text/ReadableText.h"

#include <QFont>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

TEST(ReadableTextTest, ShortFormsStandForStoredOnes)
{
    const QString family = u"family: RGVqYVZ1IFNhbnM=; "_s;
    const auto fontText = [&family](const QString &bold, const QString &size, const QString &spacing) {
        return u"bold: %1; %2italic: false; letterSpacing: %3; overline: false; %4strikeout: false; "
               u"underline: "
               "false; wordSpacing: 0;"_s.arg(bold, family, spacing, size);
    };
    const struct
    {
        QString (*print)(const QString &);
        QString (*read)(const QString &);
        QString stored;
        QString text;      //!< null: no short form
        QStringList same;  //!< other texts for the value
        QStringList wrong; //!< texts that are no value
    } cases[] = {
        {&ReadableText::fromSize,
         &ReadableText::toSize,
         u"height: 40; width: 120.5;"_s,
         u"120.5 x 40"_s,
         {u"120.5x40"_s, u" 120.5 X 40 "_s, u"120.5 × 40"_s},
         {u""_s, u"120"_s, u"120 x"_s, u"120 x 40 x 2"_s, u"a x b"_s, u"nan x 1"_s}},
        {&ReadableText::fromPoint,
         &ReadableText::toPoint,
         u"x: -10; y: 20;"_s,
         u"-10, 20"_s,
         {u"-10,20"_s},
         {u"10"_s, u"10 20"_s, u"10, 20, 30"_s}},
        {&ReadableText::fromRange,
         &ReadableText::toRange,
         u"maximum: 100; minimum: -0.5;"_s,
         u"-0.5 to 100"_s,
         {},
         {u"1to2"_s, u"to 100"_s, u"1 - 2"_s}},
        {&ReadableText::fromBorder,
         &ReadableText::toBorder,
         u"color: #FFC62828; width: 2;"_s,
         u"2 #C62828"_s,
         {u"2  #c62828"_s},
         {u"2 colour"_s, u"#C62828"_s, u"2 red 3"_s, u""_s}},
        {&ReadableText::fromColor,
         &ReadableText::toColor,
         u"#FFFF0000"_s,
         u"#FF0000"_s,
         {u"red"_s},
         {u"rot"_s, u"#12"_s}},
        {&ReadableText::fromColor, &ReadableText::toColor, u"#80FF0000"_s, u"#80FF0000"_s, {}, {}},
        {&ReadableText::fromFont,
         &ReadableText::toFont,
         fontText(u"true"_s, u"pixelSize: 24; "_s, u"0"_s),
         u"bold 24px \"DejaVu Sans\""_s,
         {u"\"DejaVu Sans\" 24px bold"_s},
         {u"bold 24 \"DejaVu Sans\""_s, u"bold 24px"_s, u"bold \"DejaVu Sans\""_s, u"0px \"A\""_s,
          u"24px \"DejaVu"_s, u"24px 12px \"A\""_s, u"fat 24px \"A\""_s, u"24px \"A\" \"B\""_s}},
        {&ReadableText::fromFont,
         &ReadableText::toFont,
         fontText(u"false"_s, u"pointSize: 12; "_s, u"0"_s),
         u"12pt \"DejaVu Sans\""_s,
         {},
         {}},
        {&ReadableText::fromFont,
         &ReadableText::toFont,
         fontText(u"false"_s, u"pointSize: 12; "_s, u"2"_s),
         QString(),
         {},
         {}},
    };
    for (const auto &[print, read, stored, text, same, wrong] : cases) {
        EXPECT_EQ(print(stored), text);
        EXPECT_TRUE(text.isNull() || read(text) == stored) << qPrintable(read(text));
        EXPECT_EQ(print(u"no such value"_s), QString());
        for (const QString &other : same) {
            EXPECT_EQ(read(other), stored) << qPrintable(other);
        }
        for (const QString &other : wrong) {
            EXPECT_EQ(read(other), QString()) << qPrintable(other);
        }
    }
}

TEST(ReadableTextTest, QuotesKeepAnyTextOnALine)
{
    const struct
    {
        QString text;
        QString quoted; //!< null: needs no quotes
    } cases[] = {
        {u"Pump 1: C:\\dir \U0001F600"_s, {}},
        {u""_s, {}},
        {u"5\" pipe"_s, u"\"5\\\" pipe\""_s},
        {u"two\nlines\u2028"_s, u"\"two\\nlines\\u2028\""_s},
        {u" x"_s, u"\" x\""_s},
        {u"= 5"_s, u"\"= 5\""_s},
    };
    for (const auto &[text, quoted] : cases) {
        QString error;
        EXPECT_EQ(ReadableText::needsQuotes(text), !quoted.isNull()) << qPrintable(text);
        EXPECT_TRUE(quoted.isNull() || ReadableText::quoted(text) == quoted)
            << qPrintable(ReadableText::quoted(text));
        EXPECT_EQ(ReadableText::unquoted(ReadableText::quoted(text), error), text);
        EXPECT_EQ(error, QString());
    }
    QString error;
    EXPECT_EQ(ReadableText::unquoted(u"\"a\" and \"b\""_s, error), u"\"a\" and \"b\""_s);
    EXPECT_EQ(error, QString());
    ReadableText::unquoted(u"\"C:\\dir\""_s, error);
    EXPECT_FALSE(error.isEmpty());
}

} // namespace Halvane::Corvex::Designer
