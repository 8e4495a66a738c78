// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/DbcFile.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

const QByteArray head = "VERSION \"\"\r\n\r\nNS_ :\r\n\tCM_\r\n\tBA_\r\n\r\nBS_:\r\n\r\nBU_: Engine\r\n\r\n";

//! A message with 29 bits: PGN 61444, priority 3, no source address.
const QByteArray engine = "BO_ 2364540158 EEC1: 8 Engine\n";

} // namespace

TEST(DbcFile, ReadsGroupsWithTheirParameters)
{
    const DbcFile file(head + engine
                       + " SG_ EngineSpeed : 24|16@1+ (0.125,0) [0|8031.875] \"rpm\"  Display,Gauge\n"
                         " SG_ Torque : 16|8@1+ (1,-125) [0|0] \"%\" Vector__XXX\n"
                         " SG_ SPN899 : 3|4@0+ (1,0) [0|15] \"\" Vector__XXX\n"
                         "CM_ BO_ 2364540158 \"Electronic Engine\n Controller\";\n"
                         "CM_ SG_ 2364540158 EngineSpeed \"as \\\"measured\\\"\";\n"
                         "BA_ \"SPN\" SG_ 2364540158 EngineSpeed 190;\n");
    ASSERT_EQ(file.messages().size(), 1);
    EXPECT_TRUE(file.problems().isEmpty()) << qPrintable(file.problems().value(0).text);
    const DbcMessage &message = file.messages().constFirst();
    EXPECT_EQ(message.comment, u"Electronic Engine Controller"_s);
    EXPECT_EQ(message.content.at(0).comment, u"as \\\"measured\\\""_s);
    const CanParameterMap map = message.toMap(17);
    EXPECT_EQ(map.pgn(), 61444);
    EXPECT_EQ(map.priority(), 3);
    EXPECT_EQ(map.sourceAddress(), 17);
    const QList<CanParameter> expected{{190, u"rpm"_s, 4, 1, 16, 0, 0, 8031.875, 0.125},
                                       {516096, u"%"_s, 3, 1, 8, -125, -125, 130, 1},
                                       {899, u""_s, 1, 1, 4, 0, 0, 15, 1}};
    EXPECT_EQ(map.parameters(), expected);
    CanParameterMap valid;
    QString error;
    EXPECT_TRUE(valid.read(map.toTerms(), error)) << qPrintable(error);
}

TEST(DbcFile, SaysWhyASignalIsLeftOut)
{
    struct Case
    {
        const char *signal; //!< after one in bit 0 to 7 with SPN 1
        QString obstacle;
    };
    const Case cases[] = {
        {"a : 8|16@0+ (1,0) [0|1]", u"Its highest byte is sent first."_s},
        {"a : 8|8@1- (1,0) [0|1]", u"Its raw value has a sign."_s},
        {"a m3 : 8|8@1+ (1,0) [0|1]", u"It is not in every message."_s},
        {"a : 60|8@1+ (1,0) [0|1]", u"Its bits reach beyond the eight bytes of the message."_s},
        {"a : 4294967304|8@1+ (1,0) [0|1]", u"Its bits reach beyond the eight bytes of the message."_s},
        {"a : 8|8@1+ (0,0) [0|1]", u"Its factor is 0."_s},
        {"SPN1 : 8|8@1+ (1,0) [0|1]", u"\"SPN_1\" has the same SPN."_s},
        {"a : 4|8@1+ (1,0) [0|1]", u"\"SPN_1\" uses the same bits."_s},
        {"a M : 8|8@1+ (1,0) [0|1]", {}},
    };
    for (const Case &row : cases) {
        const DbcFile file(head + engine + " SG_ SPN_1 : 0|8@1+ (1,0) [0|1] \"\" X\n SG_ " + row.signal
                           + " \"\" X\n");
        const QList<DbcSignal> content = file.messages().value(0).content;
        EXPECT_EQ(content.value(1).obstacle, row.obstacle) << row.signal;
        EXPECT_EQ(file.messages().value(0).toMap(0).parameters().size(), row.obstacle.isEmpty() ? 2 : 1);
    }
    EXPECT_FALSE(DbcFile(head + "BO_ 100 Short: 8 X\n").messages().value(0).obstacle.isEmpty());
}

TEST(DbcFile, ReportsLinesThatCannotBeReadAndKeepsTheRest)
{
    const QByteArray good = " SG_ Speed : 0|8@1+ (1,0) [0|1] \"\xb0\" X\n";
    const DbcFile file(engine + " SG_ Wrong : 0|8@1+ (x,0) [0|1] \"\" X\n" + good + good + "BO_ x Y: 8 Z\n"
                       + good + engine + good + "BO_ 2364540159 EEC1: 8 Z\nCM_ \"open\n");
    QList<int> lines;
    for (const CsvText::Problem &problem : file.problems()) {
        lines.append(problem.line);
    }
    EXPECT_EQ(lines, (QList<int>{2, 4, 5, 7, 9, 10}));
    ASSERT_EQ(file.messages().size(), 2);
    EXPECT_EQ(file.messages().constFirst().content.size(), 1);
    EXPECT_EQ(file.messages().constFirst().content.constFirst().parameter.units, u"\u00b0"_s);
    EXPECT_TRUE(DbcFile("<html>").messages().isEmpty());
}

} // namespace Halvane::Corvex::Designer::Test
