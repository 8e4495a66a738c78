// SPDX-License-Identifier: MIT
#include "corvex/project/Screen.h"
#include "corvex/widgets/KdTableView.h"

#include "apps/nova/NovaFixture.h"
#include "project/Clipboard.h"

#include <QClipboard>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova::Test {

using namespace Designer;

using ClipboardTest = NovaFixture;

// Copy and paste with keys: on the screen, to another one, as a mailed text, as a picture.
TEST_F(ClipboardTest, carriesObjectsAndPictures)
{
    const SharedProperty elements = workspace().screen()->elements();
    const qsizetype count = elements->listItemCount();
    const QByteArray before = savedBytes();
    document().select({element("pump1Picture"), element("pump2Picture")});
    QCoreApplication::processEvents();
    QTest::keyClick(window->canvas(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(savedBytes(), before);
    QTest::keyClick(window->canvas(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(elements->listItemCount(), count + 2);
    EXPECT_EQ(workspace().selectedElements().size(), 2);
    EXPECT_EQ(document().history().count(), 1);
    QTest::keyClick(window->canvas(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(elements->listItemCount(), count);
    trigger("edit.undo");
    trigger("edit.undo");
    EXPECT_EQ(savedBytes(), before);

    const QString mail = QGuiApplication::clipboard()->text();
    auto *alarms = static_cast<Screen *>(workspace().project().screens()->getListItem(u"Alarms"_s));
    workspace().showScreen(alarms);
    QMimeData text;
    text.setText(mail);
    Clipboard::paste(workspace(), text, QPointF(100, 100));
    EXPECT_EQ(workspace().selectedElements().size(), 2);
    EXPECT_EQ(workspace().selectedElements().first()->screen(), alarms);
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(Qt::cyan);
    QMimeData image;
    image.setImageData(picture);
    Clipboard::paste(workspace(), image, QPointF(100, 100));
    EXPECT_EQ(workspace().selectedElements().first()->getProperty(u"position")->valueString(),
              u"x: 90; y: 95;"_s);
    text.setText(u"some words"_s);
    answerNext(0);
    Clipboard::paste(workspace(), text, std::nullopt);
}

// In a table, the same keys are for cells.
TEST_F(ClipboardTest, tablesKeepTheirKeys)
{
    window->showPanel(u"panel.variables"_s);
    auto *table = window->panel(u"panel.variables"_s)->findChild<KdTableView *>();
    table->setFocus();
    table->setCurrentIndex(table->model()->index(0, 0));
    QCoreApplication::processEvents();
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().trimmed(), table->model()->index(0, 0).data().toString());
}

} // namespace Halvane::Corvex::Nova::Test
