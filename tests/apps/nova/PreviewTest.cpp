// SPDX-License-Identifier: MIT
#include "corvex/document/LiveValues.h"
#include "corvex/editing/commands/Commands.h"

#include "apps/nova/NovaFixture.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova::Test {

using namespace Designer;

namespace {

using PreviewTest = NovaFixture;

} // namespace

// The preview runs beside the editor: it follows edits, and the editor knows its values.
TEST_F(PreviewTest, followsEditsAndReportsValues)
{
    const LiveValues &values = LiveValues::of(workspace().project());
    EXPECT_FALSE(values.hasReader());
    trigger("project.preview");
    constexpr int patience = 60'000; // milliseconds; the program loads Qt Quick, perhaps under sanitizers
    ASSERT_TRUE(QTest::qWaitFor([&] { return values.valueOf(u"flow"_s).has_value(); }, patience));
    EXPECT_EQ(*values.valueOf(u"flow"_s), u"132.5"_s);

    const SharedProperty value =
        workspace().project().variables()->getListItem(u"flow"_s)->getProperty(u"value");
    workspace().push(Commands::changeOf({{value, u"77.5"_s}}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return values.valueOf(u"flow"_s) == u"77.5"_s; }, patience));
    trigger("edit.undo");
    EXPECT_TRUE(QTest::qWaitFor([&] { return values.valueOf(u"flow"_s) == u"132.5"_s; }, patience));

    trigger("project.preview");
    EXPECT_FALSE(values.hasReader());
    EXPECT_FALSE(workspace().isPreviewRunning());
}

} // namespace Halvane::Corvex::Nova::Test
