// SPDX-License-Identifier: MIT
// Edits in words as seen by programs other than the command line. The tests of the command line check each
// edit and the texts of all refusals.
#include "corvex/editing/words/EditScript.h"

#include "editing/commands/CommandFixture.h"

namespace Halvane::Corvex::Designer::Test {

using namespace Qt::StringLiterals;

class EditScriptTest : public CommandFixture
{ };

TEST_F(EditScriptTest, APlanChangesNothingUntilItsCommandIsPushed)
{
    int asked = 0;
    EditScript script(*project, [&asked] {
        ++asked;
        return false;
    });
    const QString before = text();
    EditPlan plan = script.plan(u"rename Main.rectangle1 tank"_s);
    ASSERT_TRUE(plan.command);
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(stack().push(plan.command.release()));
    EXPECT_TRUE(element("tank"));

    const EditPlan back = script.plan(u"undo"_s);
    EXPECT_FALSE(back.command);
    EXPECT_EQ(back.historySteps, -1);
    EXPECT_EQ(script.plan(u"print Main.tank"_s).output, QStringList{u"Rectangle tank"_s});
    const EditPlan nothing = script.plan(u"  # a remark"_s);
    EXPECT_FALSE(nothing.isRefused() || nothing.command || nothing.historySteps);
    EXPECT_EQ(asked, 0);

    const struct
    {
        QString line;
        EditRefusal::List list;
        QString path;
    } rows[] = {
        {u"explode"_s, EditRefusal::Edits, {}},
        {u"add Nothing Main"_s, EditRefusal::Classes, {}},
        {u"set Main.nowhere.text x"_s, EditRefusal::Contents, u"Main"_s},
        {u"set Main.tank x"_s, EditRefusal::Properties, u"Main.tank"_s},
        {u"delete Main.tnak"_s, EditRefusal::NoList, {}},
        {u"model VTR 50-S"_s, EditRefusal::NoList, {}},
    };
    for (const auto &[line, list, path] : rows) {
        const EditPlan refused = script.plan(line);
        EXPECT_TRUE(refused.isRefused() && !refused.command) << qPrintable(line);
        EXPECT_EQ(refused.refusal.list, list) << qPrintable(line);
        EXPECT_EQ(refused.refusal.path, path) << qPrintable(line);
    }
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(stack().count(), 1);
}

} // namespace Halvane::Corvex::Designer::Test
