// SPDX-License-Identifier: MIT
#include "corvex/project/Project.h"
#include "corvex/variables/BACnetPropertyList.h"
#include "corvex/variables/CanParameterMap.h"
#include "corvex/variables/exchange/CsvText.h"
#include "corvex/variables/exchange/DbcExport.h"
#include "corvex/variables/exchange/DbcFile.h"
#include "corvex/variables/exchange/EdeExport.h"
#include "corvex/variables/exchange/ModbusExport.h"
#include "corvex/variables/exchange/VariableExport.h"

#include "variables/VariableSupport.h"
#include "variables/exchange/DbcGrammar.h"

#include <gmock/gmock.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;

namespace {

class ExportTest : public testing::Test
{
protected:
    ExportTest()
    {
        const auto nothing = makeVariable(u"NumberVariable"_s); // creates the factory
        project.reset(static_cast<Project *>(DesignerFactory::instance()->createObject(u"Project"_s)));
        project->setParent(nullptr);
        project->setIdName(u"Plant"_s);
    }

    void add(const QString &className, const QString &name, const QList<std::pair<QString, QString>> &texts)
    {
        ProjectVariable *variable = makeVariable(className).release();
        variable->setIdName(name);
        ASSERT_TRUE(project->addListPropertyItem(project->variables(), variable));
        for (const auto &[id, text] : texts) {
            ASSERT_TRUE(change(*variable, id, text)) << qPrintable(text);
        }
    }

    std::unique_ptr<Project> project;
};

Info variable(const QString &name)
{
    return {Info::VariableValue, Info::NumberData, name};
}

Info text(const QString &value)
{
    return {Info::ConstantValue, Info::StringData, value};
}

QString canMap(int pgn, const QList<CanParameter> &parameters)
{
    CanParameterMap map;
    map.setPgn(pgn);
    map.setPriority(3);
    for (const CanParameter &parameter : parameters) {
        map.append(parameter);
    }
    return map.toTerms().toString();
}

QStringList lines(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes).split(u"\r\n"_s, Qt::SkipEmptyParts);
}

} // namespace

TEST(CsvText, ReadsItsOwnAndForeignTables)
{
    const QStringList nasty{u"a,b"_s,  u"say \"hi\""_s, u"two\r\nlines\nand one"_s, {}, u" x "_s, u"\""_s,
                            u"a\"b"_s, u"'til"_s};
    QList<CsvText::Problem> problems;
    const QList<CsvText::Row> rows = CsvText::read(CsvText::row(nasty) + u"\n\r\nlast,\"\""_s, problems);
    ASSERT_TRUE(problems.isEmpty());
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows.at(0).fields, nasty);
    EXPECT_EQ(rows.at(1).fields, QStringList({u"last"_s, {}}));
    EXPECT_EQ(rows.at(1).line, 6);
    EXPECT_EQ(CsvText::row({u"a"_s, u"b;c"_s, u"d,e"_s}, u';'), u"a;\"b;c\";d,e\r\n"_s);
    for (const QString &bad : {u"a\n\"open"_s, u"a\n\"closed\"x,y\nb"_s, u"a\n\"x\" ,b"_s, u"a\nb\rc\r"_s}) {
        problems.clear();
        CsvText::read(bad, problems);
        ASSERT_EQ(problems.size(), 1) << qPrintable(bad);
        EXPECT_EQ(problems.first().line, 2) << qPrintable(bad);
    }
    for (const auto &[line, separator] :
         {std::pair(u"a,b;c,d"_s, u','), std::pair(u"a;\",,,\";b\n,,,"_s, u';'), std::pair(u"a\tb"_s, u'\t'),
          std::pair(u"a"_s, u',')}) {
        EXPECT_EQ(CsvText::separatorOf(line), QChar(separator)) << qPrintable(line);
    }
}

TEST(CsvText, MarksFormulas)
{
    const struct
    {
        QString field;
        QString written;
    } cases[] = {
        {u"=1+1"_s, u"'=1+1"_s}, {u"+cmd|' /C calc'!A0"_s, u"'+cmd|' /C calc'!A0"_s},
        {u"-2+3"_s, u"'-2+3"_s}, {u"@SUM(A1)"_s, u"'@SUM(A1)"_s},
        {u"\t=1"_s, u"'\t=1"_s}, {u"\r=1"_s, u"\"'\r=1\""_s},
        {u"'=1"_s, u"''=1"_s},   {u"-Infinity"_s, u"'-Infinity"_s},
        {u"-5"_s, u"-5"_s},      {u"+1.5e-3"_s, u"+1.5e-3"_s},
        {u"'"_s, u"'"_s},        {u"a=1"_s, u"a=1"_s},
    };
    for (const auto &[field, written] : cases) {
        const QString row = CsvText::row({field, u"x"_s});
        EXPECT_EQ(row, written + u",x\r\n"_s);
        QList<CsvText::Problem> problems;
        EXPECT_EQ(CsvText::read(row, problems).value(0).fields.value(0), field);
    }
}

TEST_F(ExportTest, ModbusRegisters)
{
    const auto entry = [](int address, const Info &source) {
        GeneralDataList terms;
        terms.append(Info::ConstantValue, Info::IntegerData, QString::number(address));
        terms.append(source);
        return terms.toString();
    };
    add(u"MappingVariable"_s, u"map"_s,
        {{u"coilMap"_s, entry(7, {Info::VariableValue, Info::BooleanData, u"run"_s})},
         {u"inputRegMap"_s, entry(30010, {Info::ObjectValue, Info::FloatData, u"Main.gauge.level"_s})},
         {u"virtualStringMap"_s, entry(5000, {Info::VariableValue, Info::StringData, u"event"_s})},
         {u"discreteInputMap"_s, entry(10002, variable(u"twice"_s)) + entry(10002, variable(u"twice"_s))},
         {u"holdingRegMap"_s, entry(30001, variable(u"wrong"_s)) + entry(30001, variable(u"wrong"_s))}});
    const Exported exported = ModbusExport::write(*project);
    EXPECT_EQ(exported.files.first().name, u"Plant_Modbus.csv"_s);
    EXPECT_EQ(lines(exported.files.first().bytes),
              QStringList({u"map,register,address,wire address,access,width,type,scale,source,source type"_s,
                           u"map,coil,00007,6,read/write,1,bit,1,run,boolean"_s,
                           u"map,input register,30010,9,read,16,int16,1,Main.gauge.level,float"_s,
                           u"map,virtual string,05000,5000,read/write,,string,,event,string"_s}));
    EXPECT_EQ(exported.problems,
              QStringList({u"map.discreteInputMap: Duplicate Value is Not Allowed: 10002"_s,
                           u"map.holdingRegMap: Data value at 30001 is undefined"_s}));
}

TEST_F(ExportTest, CanGroupsAsADatabase)
{
    add(u"CANVariable"_s, u"engine"_s,
        {{u"parameterMap"_s, canMap(61444, {{190, u"rpm"_s, 4, 1, 16, 0, 0, 8031.875, 0.125},
                                            {899, {}, 1, 1, 4, 0, 0, 15, 1}})}});
    add(u"CANVariable"_s, u"again"_s,
        {{u"parameterMap"_s, canMap(61444, {{190, u"1/\"min\"\n"_s, 4, 1, 16, 0, 0, 8031.875, 0.125}})}});
    add(u"CANVariable"_s, u"tank"_s,
        {{u"parameterMap"_s, canMap(65276, {{96, u"\u00b0C \u03a9"_s, 8, 8, 1, -0.5, -4e-7, 1e20, 1e-7}})}});
    add(u"CANVariable"_s, u"BO_"_s,
        {{u"parameterMap"_s, canMap(65270, {{98, {}, 1, 1, 8, 0, 0, 100, 0.4}})}});
    add(u"CANVariable"_s, u"empty"_s, {});
    const Exported exported = DbcExport::write(*project);
    const QByteArray bytes = exported.files.first().bytes;
    EXPECT_EQ(DbcGrammar::problemOf(bytes), QString()) << bytes.constData();
    using testing::HasSubstr;
    const std::string dbc = bytes.toStdString();
    // 217056256 and the bit for extended frames.
    EXPECT_THAT(dbc, HasSubstr("BO_ 2364539904 again: 8 Vector__XXX\n"
                               " SG_ SPN190 : 24|16@1+ (0.125,0) [0|8031.875] \"1/'min'\" Vector__XXX\n"
                               " SG_ SPN190_engine : 24|16@1+ (0.125,0) [0|8031.875] \"rpm\" Vector__XXX\n"
                               " SG_ SPN899 : 0|4@1+ (1,0) [0|15] \"\" Vector__XXX\n"));
    EXPECT_THAT(dbc, HasSubstr("\nCM_ SG_ 2364539904 SPN899 \"engine\";\n"));
    EXPECT_THAT(dbc, HasSubstr("\nBA_ \"SPN\" SG_ 2364539904 SPN190_engine 190;\n"));
    EXPECT_THAT(dbc,
                HasSubstr(" SG_ SPN96 : 63|1@1+ (0.0000001,-0.5) [-0.0000004|100000000000000000000] \"\xb0"
                          "C ?\" "));
    EXPECT_EQ(
        exported.problems,
        QStringList(
            {u"empty.parameterMap: At least one SPN required"_s,
             u"tank: The unit \"\u00b0C \u03a9\" of SPN 96 has characters that the file format does not support."_s}));
    // What is exported can be imported.
    const DbcFile file(bytes);
    EXPECT_TRUE(file.problems().isEmpty());
    ASSERT_EQ(file.messages().size(), 3);
    EXPECT_EQ(file.messages().at(2).toMap(0).parameters(),
              (QList<CanParameter>{{96, u"\u00b0C ?"_s, 8, 8, 1, -0.5, -4e-7, 1e20, 1e-7}}));
    EXPECT_EQ(file.messages().at(0).content.at(1).obstacle, u"\"SPN190\" has the same SPN."_s);

    // The grammar distinguishes good from bad files.
    for (const auto &[good, bad] :
         {std::pair("8 Vector__XXX\n SG_ SPN96", "7 Vector__XXX\n SG_ SPN96"),
          std::pair("SG_ SPN899 :", "SG_ SPN190 :"), std::pair("(0.0000001,", "(1e-7,"),
          std::pair("\"SPN\" INT", "\"SPM\" INT"), std::pair("\"rpm\"", "\"r\"pm\"")}) {
        EXPECT_NE(DbcGrammar::problemOf(QByteArray(bytes).replace(good, bad)), QString()) << bad;
    }
}

TEST_F(ExportTest, BACnetObjectsAsEde)
{
    add(u"BACnetDevice"_s, u"boiler"_s, {{u"isLocal"_s, u"false"_s}, {u"objIdentifier"_s, u"9"_s}});
    add(u"BACnetDevice"_s, u"panel"_s, {{u"objIdentifier"_s, u"1234"_s}});
    add(u"NumberVariable"_s, u"level"_s, {{u"value"_s, u"62.5"_s}});
    const auto object = [this](const QString &name, const QString &id,
                               const QList<std::pair<int, Info>> &known) {
        BACnetPropertyList list;
        for (const auto &[property, source] : known) {
            list.append({property, u"real"_s, source});
        }
        add(u"BACnetObject"_s, name,
            {{u"objectID"_s, id},
             {u"bacnetObjName"_s, u"P;"_s + name},
             {u"properties"_s, list.toTerms().toString()}});
    };
    object(u"aLevel"_s, u"2,7"_s,
           {{85, variable(u"level"_s)},
            {117, text(u"percent"_s)},
            {69, text(u"0"_s)},
            {65, text(u"100"_s)},
            {28, text(u"Level"_s)}});
    add(u"BooleanVariable"_s, u"running"_s, {{u"value"_s, u"true"_s}});
    object(u"bPump"_s, u"3,1"_s, {{85, variable(u"running"_s)}, {46, text(u"Off"_s)}, {4, text(u"On"_s)}});
    object(u"cPump"_s, u"3,2"_s, {{46, text(u"Off"_s)}, {4, text(u"On"_s)}});
    object(u"dMode"_s, u"19,1"_s, {{110, text(u"Hand|Off|Auto"_s)}, {117, text(u"95"_s)}});
    object(u"eWrong"_s, u"two"_s, {{85, variable(u"level"_s)}});
    const Exported exported = EdeExport::write(*project, QDate(2026, 3, 1));
    ASSERT_EQ(exported.files.size(), 4);
    const QStringList list = lines(exported.files.at(0).bytes);
    EXPECT_EQ(exported.files.at(0).name, u"Plant_EDE.csv"_s);
    EXPECT_EQ(list.first(6),
              QStringList({u"# Engineering-Data-Exchange - B.I.G.-EU"_s, u"PROJECT_NAME;Plant"_s,
                           u"VERSION_OF_REFERENCEFILE;1"_s, u"TIMESTAMP_OF_LAST_CHANGE;2026-03-01"_s,
                           u"AUTHOR_OF_LAST_CHANGE;corvex"_s, u"VERSION_OF_LAYOUT;2.3"_s}));
    EXPECT_EQ(list.sliced(8), QStringList({u"panel;1234;panel;8;1234;;;;;;;;;;;;"_s,
                                           u"aLevel;1234;\"P;aLevel\";2;7;Level;62.5;0;100;Y;;;;;98;;"_s,
                                           u"bPump;1234;\"P;bPump\";3;1;;1;;;N;;;;1;;;"_s,
                                           u"cPump;1234;\"P;cPump\";3;2;;;;;N;;;;1;;;"_s,
                                           u"dMode;1234;\"P;dMode\";19;1;;;;;Y;;;;2;95;;"_s}));
    for (const QString &line : list.sliced(6, 2)) {
        EXPECT_EQ(line.count(u';'), 16) << qPrintable(line);
    }
    EXPECT_EQ(
        lines(exported.files.at(1).bytes).sliced(2),
        QStringList({u"2;Analog Value"_s, u"3;Binary Input"_s, u"8;Device"_s, u"19;Multi State Value"_s}));
    EXPECT_EQ(lines(exported.files.at(2).bytes).sliced(1),
              QStringList({u"# Reference Number;Text 1 or Inactive-Text;Text 2 or Active-Text;Text 3"_s,
                           u"1;Off;On"_s, u"2;Hand;Off;Auto"_s}));
    EXPECT_EQ(lines(exported.files.at(3).bytes).sliced(2), QStringList({u"95;No Units"_s, u"98;Percent"_s}));
    EXPECT_EQ(exported.problems,
              QStringList(u"eWrong.objectID: \"two\" is not a type and instance, as in \"2,1\"."_s));
}

TEST_F(ExportTest, VariablesWithAllTheirProperties)
{
    add(u"NumberVariable"_s, u"speed"_s, {{u"value"_s, u"1450"_s}, {u"persistent"_s, u"true"_s}});
    add(u"StringVariable"_s, u"title"_s, {{u"value"_s, u"a, \"b\"\n"_s}});
    add(u"LogVariable"_s, u"log"_s, {});
    EXPECT_EQ(VariableExport::write(*project).files.first().bytes.toStdString(),
              "name,class,value,persistent,maxDataPoints,behavior,interval,startDelay,autoStart\r\n"
              "log,LogVariable,0,false,10000,OverwriteOldest,5000,0,true\r\n"
              "speed,NumberVariable,1450,true,,,,,\r\n"
              "title,StringVariable,\"a, \"\"b\"\"\n\",false,,,,,\r\n");
}
