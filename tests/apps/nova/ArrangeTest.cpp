// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/Arrangement.h"

#include "apps/nova/NovaFixture.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova::Test {

using namespace Designer;

using ArrangeTest = NovaFixture;

// Each arrangement is one step of the history, on keys, and enabled only if it can do something.
TEST_F(ArrangeTest, arrangesWithKeysInOneStep)
{
    document().select({element("pump1Picture")});
    EXPECT_TRUE(isEnabled("arrange.left"));
    for (const char *id :
         {"arrange.across", "arrange.width", "arrange.group", "arrange.ungroup", "arrange.flip"}) {
        EXPECT_FALSE(isEnabled(id)) << id;
    }
    document().select({element("pump1Picture"), element("pump2Picture"), element("title")});
    const QByteArray before = savedBytes();
    int steps = 0;
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QCoreApplication::processEvents();
        const QByteArray last = savedBytes();
        QTest::keyClick(window->canvas(), key, modifiers);
        EXPECT_TRUE(savedBytes() != last) << key;
        EXPECT_EQ(document().history().count(), ++steps) << key;
    };
    press(Qt::Key_H, Qt::ControlModifier | Qt::AltModifier);
    press(Qt::Key_V, Qt::ControlModifier | Qt::AltModifier);
    for (const Qt::Key key : {Qt::Key_W, Qt::Key_H, Qt::Key_L, Qt::Key_B, Qt::Key_I}) {
        press(key, Qt::ControlModifier | Qt::ShiftModifier);
    }
    press(Qt::Key_PageUp, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(isEnabled("arrange.raise"));
    press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(isEnabled("arrange.ungroup"));
    press(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(workspace().selectedElements().size(), 3);
    while (document().history().canUndo()) {
        ASSERT_TRUE(document().undo());
    }
    EXPECT_EQ(savedBytes(), before);
}

} // namespace Halvane::Corvex::Nova::Test
