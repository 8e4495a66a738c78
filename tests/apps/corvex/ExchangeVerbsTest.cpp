// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gmock/gmock.h>

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;

namespace {

const QString pump = u"Pump/Pump.kdproj"_s;
const QString config = u"out/project/config.kdrc"_s;

QByteArray variable(const QByteArray &className, const QByteArray &name, const QByteArray &text,
                    const QByteArray &property = "value")
{
    return Sandbox::object(className, name, Sandbox::value(property, text), "Project");
}

class ExchangeVerbs : public testing::Test
{
protected:
    ExchangeVerbs()
    {
        sandbox.makeProject(
            Sandbox::object("Text", "title", Sandbox::value("text", "Pump")),
            variable("NumberVariable", "level", "62.0") + variable("NumberVariable", "speed", "x")
                + variable("StringVariable", "who", "a \"b\"\nc")
                + variable("MappingVariable", "map", "<02049c41><0406level>", "holdingRegMap"));
    }

    Sandbox sandbox;
};

} // namespace

TEST_F(ExchangeVerbs, ConfigDumpShowsTheContentsOfABuild)
{
    ASSERT_EQ(sandbox.run({u"build"_s, pump, u"-o"_s, u"out"_s, u"--force"_s}).code, 0);
    const ProgramRun text = sandbox.run({u"config-dump"_s, config});
    EXPECT_EQ(text.code, 0);
    EXPECT_THAT(text.out.toStdString(),
                testing::StartsWith("comControlPassword: \"\"\ndefaultScreen: \"qml_Main\"\n"));
    EXPECT_THAT(text.out.toStdString(), testing::HasSubstr("\nvariables:\n"
                                                           "  level:\n"
                                                           "    persistent: false\n"
                                                           "    type: 3\n"
                                                           "    value: 62.0\n"
                                                           "  speed:\n"
                                                           "    persistent: false\n"
                                                           "    type: 2\n"
                                                           "    value: (none)\n"
                                                           "  who:\n"
                                                           "    persistent: false\n"
                                                           "    type: 4\n"
                                                           "    value: \"a \\\"b\\\"\\nc\"\n"));
    EXPECT_EQ(sandbox.run({u"config-dump"_s, u"out/project/canConfig.kdrc"_s}).out,
              u"canIdInfo: (empty)\npgnInfo: (empty)\n"_s);
    const QJsonValue variables = sandbox.run({u"config-dump"_s, config, u"--json"_s}).json()[u"variables"_s];
    EXPECT_EQ(variables[u"level"_s][u"value"_s], QJsonValue(62.0));
    EXPECT_TRUE(variables[u"speed"_s][u"value"_s].isNull());
    EXPECT_EQ(variables[u"who"_s][u"value"_s], QJsonValue(u"a \"b\"\nc"_s));
}

TEST_F(ExchangeVerbs, ConfigDumpReportsUnreadableFiles)
{
    ASSERT_EQ(sandbox.run({u"build"_s, pump, u"-o"_s, u"out"_s, u"--force"_s}).code, 0);
    const QByteArray bytes = sandbox.read(config);
    sandbox.write(u"cut.kdrc"_s, bytes.chopped(1));
    sandbox.write(u"longer.kdrc"_s, bytes + '\0');
    for (const QString &bad : {u"cut.kdrc"_s, u"longer.kdrc"_s, pump}) {
        const ProgramRun run = sandbox.run({u"config-dump"_s, bad});
        EXPECT_EQ(run.code, 3);
        EXPECT_EQ(run.out, QString());
        EXPECT_TRUE(run.error.contains(u"damaged or incomplete"_s)) << qPrintable(run.error);
    }
    EXPECT_EQ(sandbox.run({u"config-dump"_s, u"out"_s}).code, 3);
}

TEST_F(ExchangeVerbs, ExportPrintsOrWritesFiles)
{
    const QString table = u"map,register,address,wire address,access,width,type,scale,source,source type\r\n"
                          "map,holding register,40001,0,read/write,16,int16,1,level,number\r\n"_s;
    const ProgramRun printed = sandbox.run({u"export"_s, u"modbus"_s, pump});
    EXPECT_EQ(printed.code, 0);
    EXPECT_EQ(printed.out, table);
    const ProgramRun written = sandbox.run({u"export"_s, u"modbus"_s, pump, u"-o"_s, u"new/dir"_s});
    EXPECT_EQ(written.out, u"new/dir/Pump_Modbus.csv\n"_s);
    EXPECT_EQ(sandbox.read(u"new/dir/Pump_Modbus.csv"_s), table.toUtf8());

    const ProgramRun set = sandbox.run({u"export"_s, u"bacnet"_s, pump, u"-o"_s, u"ede"_s, u"--json"_s});
    EXPECT_EQ(set.code, 1);
    EXPECT_EQ(set.json()[u"files"_s].toArray().size(), 4);
    EXPECT_EQ(set.json()[u"errors"_s].toArray().size(), 1);
    EXPECT_TRUE(set.error.startsWith(u"The list needs the number of the local BACnet device"_s))
        << qPrintable(set.error);
    EXPECT_EQ(sandbox.files(u"ede"_s).size(), 4);

    EXPECT_EQ(sandbox.run({u"export"_s, u"can"_s, pump, u"-o"_s, pump}).code, 3);
    // The name of a foreign project may be a path outside of DIR.
    sandbox.write(pump, sandbox.read(pump).replace("name: Pump;", "name: ../Pump;"));
    EXPECT_EQ(sandbox.run({u"export"_s, u"modbus"_s, pump, u"-o"_s, u"new/dir"_s}).code, 3);
    EXPECT_FALSE(sandbox.files(u"new"_s).contains(u"Pump_Modbus.csv"_s));
}

TEST_F(ExchangeVerbs, ImportAppliesAllOfATableOrNothing)
{
    const auto import = [this](const QByteArray &table, const QStringList &options = {}) {
        sandbox.write(u"t.csv"_s, table);
        return sandbox.run(QStringList{u"import"_s, u"variables"_s, pump, u"t.csv"_s} + options);
    };
    const QByteArray exported = sandbox.run({u"export"_s, u"variables"_s, pump}).out.toUtf8();
    const QByteArray before = sandbox.read(pump);
    EXPECT_EQ(import(exported).out, u"0 values changed, 0 variables added, 4 unchanged\n"_s);
    const QByteArray table = "name,class,value\nlevel,,5\nnew1,NumberVariable,1\nspeed,,x\n";
    const QString report = u"level.value: \"62.0\" -> \"5\"\n"
                           "new1: new, a NumberVariable\n"
                           "1 values changed, 1 variables added, 1 unchanged\n"_s;
    EXPECT_EQ(import(table, {u"--dry-run"_s}).out, report);
    sandbox.write(u"wrong"_s, "name,class,value\nlevel,,x\nMain,NumberVariable,1\nwell,,5\n");
    const ProgramRun all = sandbox.run({u"import"_s, u"variables"_s, pump, u"wrong"_s});
    EXPECT_THAT(
        all.error.toStdString(),
        testing::MatchesRegex("wrong: line 2: level.value: [^\n]*\nwrong: line 3: Main: [^\n]*\n"
                              "wrong: line 4: \"well\" is not in the project[^\n]*\ncorvex: [^\n]*\n"));
    EXPECT_EQ(sandbox.run({u"import"_s, u"variables"_s, pump, u"/dev/zero"_s}).code, 3);
    for (const auto &[bad, message] :
         {std::pair("name,value\nlevel,5\nwell,5\n", u"t.csv: line 3: \"well\" is not in the project"_s),
          std::pair("name,value\nlevel,16777216.0\n", u"t.csv: line 2: level.value: The floating"_s),
          std::pair("name,class\nMain,NumberVariable\n", u"Main: "_s)}) {
        const ProgramRun run = import(bad);
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.out, QString());
        EXPECT_TRUE(run.error.contains(message)) << qPrintable(run.error);
    }
    EXPECT_EQ(sandbox.read(pump), before);

    EXPECT_EQ(import(table).out, report);
    EXPECT_THAT(sandbox.run({u"export"_s, u"variables"_s, pump}).out.toStdString(),
                testing::HasSubstr("\r\nlevel,NumberVariable,5,false"));
    const QByteArray readable = "name,class,holdingRegMap,value\n"
                                "map,,\"40001, level, 40002, speed\",\nwho,,,\"\"\"Ann\"\"\"\n"
                                "new2,MappingVariable,\"40001, level\",\n";
    EXPECT_EQ(import(readable, {u"--dry-run"_s}).out,
              u"map.holdingRegMap: \"40001, level\" -> \"40001, level, 40002, speed\"\n"
              "who.value: \"a \\\"b\\\"\\nc\" -> \"\\\"Ann\\\"\"\n"
              "new2: new, a MappingVariable\n"
              "2 values changed, 1 variables added, 0 unchanged\n"_s);
    EXPECT_EQ(import(readable).code, 0);
    EXPECT_EQ(sandbox.run({u"tree"_s, pump, u"new2.holdingRegMap"_s, u"--raw"_s}).out,
              u"<02049C41><0406level>\n"_s);
    EXPECT_THAT(import("name,holdingRegMap\nmap,\"40001, levl\"\n").error.toStdString(),
                testing::HasSubstr("t.csv: line 2: map.holdingRegMap: At \"levl\": The project has no such "
                                   "variable or property. Did you mean \"level\"?"));
    const QJsonValue forced = import("name,value\nlevel,16777216.0\n", {u"--force"_s, u"--json"_s}).json();
    EXPECT_EQ(forced[u"changed"_s][0][u"after"_s], QJsonValue(u"16777216.0"_s));
    EXPECT_TRUE(forced[u"written"_s].toBool());
}
