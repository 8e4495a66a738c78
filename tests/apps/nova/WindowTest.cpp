// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/Commands.h"
#include "corvex/editors/PropertyEditor.h"
#include "corvex/editors/PropertyPanel.h"
#include "corvex/project/Screen.h"
#include "corvex/project/files/ProjectAutosave.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/SearchLine.h"

#include "actions/CommandPalette.h"
#include "actions/WindowActions.h"
#include "apps/nova/NovaFixture.h"
#include "panels/PropertiesPanel.h"
#include "project/ProjectFiles.h"

#include <QAction>
#include <QApplication>
#include <QListView>
#include <QProcess>
#include <QTreeView>

#include <set>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova::Test {

using namespace Designer;

namespace {

using WindowTest = NovaFixture;

QPoint placeOf(const QString &value)
{
    return ValueConversion::toPoint(value).toPoint();
}

} // namespace

// What is selected in one place is selected everywhere.
TEST_F(WindowTest, sharesOneSelection)
{
    EXPECT_EQ(document().selection(), QList<DesignerObject *>{workspace().screen()});
    QTest::mouseClick(viewport(), Qt::LeftButton, {}, middleOf("pump1Picture"));
    EXPECT_EQ(document().selection(), QList<DesignerObject *>{element("pump1Picture")});
    auto *tree = window->panel(u"panel.objects"_s)->findChild<QTreeView *>();
    EXPECT_EQ(tree->currentIndex().data().toString(), u"pump1Picture"_s);
    const auto *properties = qobject_cast<PropertiesPanel *>(window->panel(u"panel.properties"_s));
    EXPECT_EQ(properties->rows().sheet().objects(), QList<DesignerObject *>{element("pump1Picture")});

    // An object of another screen brings its screen with it.
    auto *alarms = static_cast<Screen *>(workspace().project().screens()->getListItem(u"Alarms"_s));
    tree->setCurrentIndex(workspace().tree().indexOf(alarms->elements()->getListItem(u"title"_s)));
    EXPECT_EQ(workspace().screen(), alarms);
    EXPECT_EQ(window->canvas()->canvas()->screen(), alarms);
    EXPECT_EQ(window->canvas()->canvas()->selectedObjects(), document().selection());

    // A variable has no place on the canvas.
    tree->setCurrentIndex(
        workspace().tree().indexOf(workspace().project().variables()->getListItemAtIndex(0)));
    EXPECT_TRUE(window->canvas()->canvas()->selectedObjects().isEmpty());
    EXPECT_EQ(workspace().screen(), alarms);
}

TEST_F(WindowTest, dragsAreOneStepAndEscapeRestores)
{
    const QByteArray before = savedBytes();
    const QString place = value("pump1Picture", "position");
    const QPoint from = middleOf("pump1Picture");
    drag(from, from + QPoint(40, 30), {}, false);
    QTest::keyClick(viewport(), Qt::Key_Escape);
    QTest::mouseRelease(viewport(), Qt::LeftButton, {}, from + QPoint(40, 30));
    EXPECT_EQ(savedBytes(), before);
    EXPECT_EQ(document().history().count(), 0);

    drag(from, from + QPoint(40, 30));
    EXPECT_NE(value("pump1Picture", "position"), place);
    EXPECT_EQ(document().history().count(), 1);
    trigger("edit.undo");
    EXPECT_EQ(savedBytes(), before);
    EXPECT_FALSE(isEnabled("edit.undo"));
    EXPECT_TRUE(isEnabled("edit.redo"));
}

TEST_F(WindowTest, arrowKeysMoveInOneStep)
{
    QTest::mouseClick(viewport(), Qt::LeftButton, {}, middleOf("pump1Picture"));
    const QPoint start = placeOf(value("pump1Picture", "position"));
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(window->canvas(), Qt::Key_Right);
    }
    QTest::keyClick(window->canvas(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(placeOf(value("pump1Picture", "position")), start + QPoint(3, 10));
    document().history().endRun();
    EXPECT_EQ(document().history().count(), 1);
    trigger("edit.undo");
    EXPECT_EQ(placeOf(value("pump1Picture", "position")), start);
}

TEST_F(WindowTest, zoomKeepsThePointUnderTheMouse)
{
    CanvasView &view = *window->canvas();
    const QPoint mouse(200, 170);
    for (const int angle : {120, 120, 360, -240, -120, -600, 120}) {
        const QPointF point = view.mapToScene(mouse);
        const double scale = view.scale();
        QWheelEvent wheel(mouse, viewport()->mapToGlobal(mouse), {}, {0, angle}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(viewport(), &wheel);
        EXPECT_NE(view.scale(), scale);
        const QPointF shift = view.viewportTransform().map(point) - QPointF(mouse);
        EXPECT_LE(shift.manhattanLength(), 1.5) << angle;
    }
    trigger("view.original");
    EXPECT_DOUBLE_EQ(view.scale(), 1);
    trigger("view.fit");
    const QRect shown = view.viewportTransform().mapRect(view.screenArea()).toRect();
    EXPECT_TRUE(viewport()->rect().contains(shown));
}

TEST_F(WindowTest, handToolDragsTheView)
{
    CanvasView &view = *window->canvas();
    trigger("view.original");
    const QPointF before = view.mapToScene(QPoint(0, 0));
    QTest::keyPress(&view, Qt::Key_Space);
    drag(middleOf("pump1Picture"), middleOf("pump1Picture") - QPoint(30, 20));
    QTest::keyRelease(&view, Qt::Key_Space);
    EXPECT_EQ(view.mapToScene(QPoint(0, 0)) - before, QPointF(30, 20));
    EXPECT_EQ(document().history().count(), 0);
}

// A kill loses little: edits are saved automatically soon after they are made.
TEST_F(WindowTest, editsAreSavedAutomatically)
{
    workspace().push(Commands::changeOf(
        {{element("pump1Picture")->getProperty(u"position"), ValueConversion::toString(QPointF(5, 6))}}));
    UserSettings::startAutosaving();
    workspace().project().startAutoSaveTimer();
    EXPECT_NE(workspace().project().autosave().timerId(), -1);
    ASSERT_TRUE(workspace().project().autosave().run());
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(workspace().project().autosavePath()); }));

    // What a crash leaves behind is offered, and kept until the user has answered.
    const QString archive = workspace().project().autosavePath();
    const QString kept = folder.filePath(u"kept"_s);
    ASSERT_TRUE(QFile::copy(archive, kept));
    answerNext(1); // discard the edits
    ASSERT_TRUE(window->files().close());
    ASSERT_TRUE(QFile::rename(kept, archive));
    answerNext(0); // restore
    open(path);
    EXPECT_EQ(value("pump1Picture", "position"), ValueConversion::toString(QPointF(5, 6)));
    EXPECT_TRUE(document().isModified());
}

// A deleted screen leaves the canvas, and comes back with an undo.
TEST_F(WindowTest, followsDeletedScreens)
{
    const Screen *first = workspace().screen();
    document().select({workspace().screen()});
    trigger("edit.delete");
    QCoreApplication::processEvents();
    ASSERT_TRUE(workspace().screen());
    EXPECT_NE(workspace().screen(), first);
    trigger("edit.undo");
    QCoreApplication::processEvents();
    EXPECT_EQ(workspace().screen(), first);
    ASSERT_TRUE(document().reload());
    QCoreApplication::processEvents();
    ASSERT_TRUE(window->canvas()->canvas());
    EXPECT_EQ(workspace().screen()->getIdName(), u"Overview"_s);
}

TEST_F(WindowTest, savesAndAsksBeforeEditsAreLost)
{
    const QString place = ValueConversion::toString(QPointF(11, 22));
    EXPECT_FALSE(isEnabled("file.save"));
    workspace().push(Commands::changeOf({{element("pump1Picture")->getProperty(u"position"), place}}));
    EXPECT_TRUE(window->isWindowModified());
    trigger("file.save");
    EXPECT_FALSE(document().isModified());
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_TRUE(file.readAll().contains(place.toUtf8()));
    EXPECT_TRUE(isEnabled("edit.undo")) << "undo reaches past a save";

    trigger("edit.undo");
    answerNext(2); // cancel
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->workspace());
    answerNext(1); // discard
    EXPECT_TRUE(window->files().close());
    EXPECT_FALSE(window->workspace());
    answerNext(0);
    open(folder.filePath(u"missing.kdproj"_s));
    EXPECT_FALSE(window->workspace());
    open(path);
    ASSERT_TRUE(window->workspace());
    EXPECT_EQ(value("pump1Picture", "position"), place);
}

// Every action has an id of its own with the name of its menu, and no two have the same key.
TEST_F(WindowTest, actionsAreDistinct)
{
    std::set<QString> ids;
    std::set<QString> keys;
    for (const ActionMenu &menu : actionMenus()) {
        for (const Action &row : menu.actions) {
            if (!row.id) {
                continue;
            }
            const QString id = QString::fromLatin1(row.id);
            EXPECT_TRUE(id.startsWith(QLatin1StringView(menu.id) + u'.')) << row.id;
            EXPECT_TRUE(ids.insert(id).second) << row.id;
            EXPECT_TRUE(QString::fromUtf8(row.tip).endsWith(u'.')) << row.id;
            for (const QKeySequence &key : window->actions().action(id)->shortcuts()) {
                EXPECT_FALSE(key.isEmpty()) << row.id;
                EXPECT_TRUE(keys.insert(key.toString()).second) << row.id;
            }
        }
    }
    for (const char *id : toolbarActions()) {
        EXPECT_TRUE(!id || ids.contains(QString::fromLatin1(id))) << id;
    }
}

TEST_F(WindowTest, commandPaletteFindsAndRuns)
{
    CommandPalette palette(window->actions(), window.get());
    palette.show();
    auto *search = palette.findChild<SearchLine *>();
    QTest::keyClicks(search, u"original si"_s);
    EXPECT_EQ(palette.findChild<QListView *>()->model()->rowCount(), 1);
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_DOUBLE_EQ(window->canvas()->scale(), 1);
    EXPECT_FALSE(palette.isVisible());
}

TEST_F(WindowTest, programDrawsItsWindow)
{
    const QString picture = folder.filePath(u"window.png"_s);
    const auto run = [&](const QStringList &arguments) {
        QProcess program;
        program.setProgram(QStringLiteral(CORVEX_NOVA));
        program.setArguments(arguments);
        program.start();
        EXPECT_TRUE(program.waitForFinished());
        return program.exitCode();
    };
    EXPECT_EQ(run({path, u"--screen"_s, u"Trends"_s, u"--screenshot"_s, picture}), 0);
    EXPECT_GT(QImage(picture).width(), 500);
    EXPECT_EQ(run({path, u"--screen"_s, u"None"_s}), 2);
    EXPECT_EQ(run({u"a"_s, u"b"_s}), 2);
}

} // namespace Halvane::Corvex::Nova::Test
