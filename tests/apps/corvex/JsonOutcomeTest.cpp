// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;

// With --json, every verb prints exactly one object, whatever the outcome.
TEST(JsonOutcome, IsOneObjectForEveryVerbAndEveryOutcome)
{
    const Sandbox sandbox;
    const QString pump = u"Pump/Pump.kdproj"_s;
    sandbox.makeProject(Sandbox::object("Text", "title", Sandbox::value("text", "Pump")),
                        Sandbox::object("NumberVariable", "level", {}, "Project"));
    sandbox.run({u"fmt"_s, pump});
    sandbox.write(u"bad.kdproj"_s, sandbox.read(pump).replace("\"text\"", "\"txt\""));
    sandbox.write(u"empty.kdproj"_s, sandbox.read(pump).replace("name: title;", "name: 1;"));
    sandbox.write(u"good"_s, "set Main.title.text new\nprint Main.title.text\n");
    sandbox.write(u"wrong"_s, "set Main.title.txt new\nexplode\n");
    sandbox.write(u"table"_s, "name,value\nlevel,5\n");
    sandbox.write(u"tangle"_s, "name,value\nlevel,x\n");
    sandbox.write(u"fails"_s, "expect Main.title.text none\n");
    const struct
    {
        QString call;
        int code;
        QString member; //!< a required member of the object
    } cases[] = {
        {u"help"_s, 0, u"verbs"_s},
        {u"help check"_s, 0, u"usage"_s},
        {u"help chekc"_s, 2, u"errors"_s},
        {u"chekc"_s, 2, u"errors"_s},
        {u"--version"_s, 0, u"output"_s},
        {u""_s, 2, u"errors"_s},
        {u"info --help"_s, 0, u"usage"_s},
        {u"new --list-models"_s, 0, u"models"_s},
        {u"new Tank --model X"_s, 2, u"errors"_s},
        {u"new Pump --model VTR_50-K"_s, 2, u"errors"_s},
        {u"info %1"_s, 0, u"name"_s},
        {u"info %1 --colour"_s, 2, u"errors"_s},
        {u"info none"_s, 3, u"errors"_s},
        {u"tree %1"_s, 0, u"children"_s},
        {u"tree %1 screens"_s, 0, u"children"_s},
        {u"tree %1 Main.title.text"_s, 0, u"value"_s},
        {u"tree %1 Mian"_s, 2, u"errors"_s},
        {u"tree none"_s, 3, u"errors"_s},
        {u"uses %1"_s, 0, u"unused"_s},
        {u"uses %1 level"_s, 0, u"uses"_s},
        {u"uses %1 levle"_s, 2, u"errors"_s},
        {u"uses none"_s, 3, u"errors"_s},
        {u"diff %1 %1"_s, 0, u"differences"_s},
        {u"diff %1 empty.kdproj"_s, 1, u"differences"_s},
        {u"diff %1"_s, 2, u"errors"_s},
        {u"diff %1 none"_s, 3, u"errors"_s},
        {u"check %1"_s, 0, u"problems"_s},
        {u"check %1 --screens"_s, 0, u"problems"_s},
        {u"check empty.kdproj none"_s, 3, u"problems"_s},
        {u"check"_s, 2, u"errors"_s},
        {u"fmt --check %1"_s, 0, u"canonical"_s},
        {u"fmt bad.kdproj"_s, 1, u"errors"_s},
        {u"fmt none"_s, 3, u"errors"_s},
        {u"edit %1 good --dry-run"_s, 0, u"output"_s},
        {u"edit %1 wrong"_s, 1, u"errors"_s},
        {u"edit"_s, 2, u"errors"_s},
        {u"edit %1 none"_s, 3, u"errors"_s},
        {u"rename %1 Main.title note --dry-run"_s, 0, u"edits"_s},
        {u"rename %1 Main.title 1"_s, 1, u"errors"_s},
        {u"rename %1 Main.titel note"_s, 2, u"errors"_s},
        {u"rename none a b"_s, 3, u"errors"_s},
        {u"build %1 -o out"_s, 0, u"files"_s},
        {u"build empty.kdproj -o ../elsewhere"_s, 1, u"problems"_s},
        {u"build %1"_s, 2, u"errors"_s},
        {u"build %1 -o good"_s, 3, u"errors"_s},
        {u"preview %1 --shot pictures"_s, 0, u"output"_s},
        {u"preview %1 --script fails"_s, 1, u"output"_s},
        {u"preview"_s, 2, u"errors"_s},
        {u"preview none --shot pictures"_s, 3, u"errors"_s},
        {u"render %1 -o picture.png"_s, 0, u"width"_s},
        {u"render %1 -o picture.png --handles level"_s, 2, u"errors"_s},
        {u"render none -o picture.png"_s, 3, u"errors"_s},
        {u"export modbus %1 -o lists"_s, 0, u"files"_s},
        {u"export bacnet %1 -o lists"_s, 1, u"errors"_s},
        {u"export modbus %1"_s, 2, u"errors"_s},
        {u"export modbus none -o lists"_s, 3, u"errors"_s},
        {u"import variables %1 table --dry-run"_s, 0, u"changed"_s},
        {u"import variables %1 tangle"_s, 1, u"errors"_s},
        {u"import screens %1 table"_s, 2, u"errors"_s},
        {u"import variables %1 none"_s, 3, u"errors"_s},
        {u"config-dump out/project/config.kdrc"_s, 0, u"variables"_s},
        {u"config-dump"_s, 2, u"errors"_s},
        {u"config-dump %1"_s, 3, u"errors"_s},
        {u"value color red"_s, 0, u"text"_s},
        {u"value color rde"_s, 1, u"errors"_s},
        {u"value colour red"_s, 2, u"errors"_s},
        {u"expr math 02041"_s, 0, u"code"_s},
        {u"expr math 02041+"_s, 1, u"errors"_s},
        {u"expr meth 02041"_s, 2, u"errors"_s},
        {u"classes"_s, 0, u"classes"_s},
        {u"classes Rectangle"_s, 0, u"classes"_s},
        {u"classes Rectangle.sise"_s, 2, u"errors"_s},
        {u"functions"_s, 0, u"functions"_s},
        {u"functions sqr"_s, 2, u"errors"_s},
    };
    for (const auto &[call, code, member] : cases) {
        const QString line = call.contains(u"%1"_s) ? call.arg(pump) : call;
        const ProgramRun run = sandbox.run(line.split(u' ', Qt::SkipEmptyParts) + QStringList{u"--json"_s});
        EXPECT_EQ(run.code, code) << qPrintable(line) << '\n' << qPrintable(run.error);
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(run.out.toUtf8(), &error);
        EXPECT_TRUE(document.isObject())
            << qPrintable(line + u": "_s + error.errorString() + u'\n' + run.out);
        EXPECT_TRUE(!document[member].isUndefined()) << qPrintable(line + u'\n' + run.out);
        EXPECT_EQ(document[u"errors"_s].isUndefined(), run.error.isEmpty()) << qPrintable(line);
    }
}
