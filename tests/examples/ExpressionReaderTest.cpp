// SPDX-License-Identifier: MIT
#include "ExpressionReader.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

TEST(ExpressionReaderTest, ReadsWhatPeopleWrite)
{
    const QString get = u"qmlViewer.getVariableValue(\"%1\")"_s;
    const struct
    {
        GeneralDataList::InfoType kind;
        QStringView text;
        QString code;
    } cases[] = {
        {GeneralDataList::MathExpression, u"-5 - level-2", u"-5 - %1 - 2"_s.arg(get.arg(u"level"_s))},
        {GeneralDataList::MathExpression, u"max(0,level)*PI",
         u"Math.max( 0 , %1 ) * Math.PI"_s.arg(get.arg(u"level"_s))},
        {GeneralDataList::MathExpression, u"random() * box.x", u"Math.random() * qml_box.x"_s},
        {GeneralDataList::MathExpression, u"getLogMax(log)<<1", u"qmlViewer.getLogMax( \"log\" ) << 1"_s},
        {GeneralDataList::BoolExpression, u"box.visible&&level>=10",
         u"qml_box.visible && %1 >= 10"_s.arg(get.arg(u"level"_s))},
        {GeneralDataList::BoolExpression, u"isOn == false", u"%1 == false"_s.arg(get.arg(u"isOn"_s))},
        {GeneralDataList::StringExpression, u"isOn ? 'a, b' : ''",
         u"%1 ? \"a, b\" : \"\""_s.arg(get.arg(u"isOn"_s))},
        {GeneralDataList::AssignExpression, u"level = -1; log = level",
         u"qmlViewer.setVariableValue(\"level\", -1, 11);\nqmlViewer.setVariableValue(\"log\", %1, 11);"_s
             .arg(get.arg(u"level"_s))},
        {GeneralDataList::AssignExpression, u"box.color = #80FF0000", u"qml_box.color = \"#80FF0000\";"_s},
    };
    ExpressionReader reader;
    reader.declare(u"level"_s, GeneralDataInfo::NumberData);
    reader.declare(u"isOn"_s, GeneralDataInfo::BooleanData);
    reader.declare(u"log"_s, GeneralDataInfo::LogData);
    for (const auto &[kind, text, code] : cases) {
        EXPECT_EQ(reader.read(text).toQmlString(GeneralDataInfo::RawOutput, kind), code)
            << qPrintable(text.toString());
    }
    EXPECT_EQ(reader.problems(), QStringList());
}

TEST(ExpressionReaderTest, TellsWhatItCannotRead)
{
    ExpressionReader reader;
    reader.read(u"nobody + 1 @ 2");
    EXPECT_EQ(reader.problems(),
              (QStringList{u"There is no variable \"nobody\"."_s, u"\"@\" is no operator."_s}));
    // Cut off anywhere, nothing is read beyond the end.
    for (const QStringView text : {u"'open", u"#FF", u"max(", u"-", u"12."}) {
        reader.read(text);
    }
}

} // namespace Halvane::Corvex::Examples
