// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/graphics/GraphicsItem.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/project/Screen.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/Ruler.h"

#include "apps/nova/NovaFixture.h"
#include "panels/StateDelegate.h"
#include "project/NewElement.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGraphicsItem>
#include <QMenu>
#include <QMimeData>
#include <QRandomGenerator>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova::Test {

using namespace Designer;

namespace {

//! A new screen with rectangles "a", "b" and "c" in a row, and "d" below.
class CanvasTest : public NovaFixture
{
protected:
    void SetUp() override
    {
        NovaFixture::SetUp();
        auto *screen = make<Screen>(u"Screen"_s, u"Drawing"_s);
        workspace().project().addListPropertyItem(workspace().project().screens(), screen);
        add(screen, u"a"_s, {100, 100, 60, 40});
        add(screen, u"b"_s, {180, 100, 60, 40});
        add(screen, u"c"_s, {400, 110, 60, 40});
        add(screen, u"d"_s, {120, 300, 50, 30});
        QCoreApplication::processEvents();
        ASSERT_EQ(workspace().screen(), screen);
        window->canvas()->setScale(2);
        window->canvas()->centerOn(250, 200);
        before = savedBytes();
    }

    template<class Object>
    static Object *make(const QString &className, const QString &name)
    {
        DesignerObject *object = DesignerFactory::instance()->createObject(className);
        object->setParent(nullptr);
        object->setIdName(name);
        return static_cast<Object *>(object);
    }
    static void add(Screen *screen, const QString &name, const QRectF &area)
    {
        auto *object = make<DesignerObject>(u"Rectangle"_s, name);
        object->changePropertyValue(object->getProperty(u"position"),
                                    ValueConversion::toString(area.topLeft()));
        object->changePropertyValue(object->getProperty(u"size"), ValueConversion::toString(area.size()));
        screen->addListPropertyItem(screen->elements(), object);
    }

    CanvasScene &scene() const { return *window->canvas()->canvas(); }
    QPoint at(double x, double y) const { return window->canvas()->mapFromScene(QPointF(x, y)); }
    QPoint placeOf(const char *name) const
    {
        return ValueConversion::toPoint(value(name, "position")).toPoint();
    }
    //! Presses in the middle of an element and moves by \a way, in pixels of the view.
    void pull(const char *name, const QPoint &way, Qt::KeyboardModifiers modifiers = {},
              bool releases = true) const
    {
        drag(middleOf(name), middleOf(name) + way, modifiers, releases);
    }
    void hover(const QPoint &place, Qt::KeyboardModifiers modifiers = {}) const
    {
        QMouseEvent move(QEvent::MouseMove, place, viewport()->mapToGlobal(place), Qt::NoButton, {},
                         modifiers);
        QCoreApplication::sendEvent(viewport(), &move);
    }

    QByteArray before;
};

} // namespace

TEST_F(CanvasTest, edgesSnapWithinSixPixelsAtEveryScale)
{
    // The bottom of "d" and that of the screen, from 5 and from 8 pixels away.
    for (const double scale : {0.5, 1.0, 2.0, 4.0}) {
        window->canvas()->setScale(scale);
        pull("d", {0, qRound(150 * scale) - 5}, Qt::ShiftModifier, false);
        EXPECT_FALSE(scene().marks().lines.isEmpty()) << scale;
        QTest::mouseRelease(viewport(), Qt::LeftButton);
        EXPECT_EQ(placeOf("d"), QPoint(120, 450)) << scale;
        EXPECT_TRUE(scene().marks().isEmpty()) << "guides vanish on release";
        trigger("edit.undo");
    }
    pull("d", {0, 4 * 150 - 8}, Qt::ShiftModifier);
    EXPECT_EQ(placeOf("d"), QPoint(120, 448));
}

TEST_F(CanvasTest, equalGapsSnapAndShowBothFigures)
{
    pull("c", {-275, 3}, {}, false); // 20 after "b", with its top in line
    ASSERT_EQ(scene().marks().distances.size(), 2);
    for (const QLineF &distance : scene().marks().distances) {
        EXPECT_EQ(distance.length(), 20);
    }
    QTest::keyPress(viewport(), Qt::Key_Alt);
    EXPECT_TRUE(scene().marks().isEmpty()) << "Alt suspends snapping";
    QTest::keyRelease(viewport(), Qt::Key_Alt);
    EXPECT_FALSE(scene().marks().isEmpty());
    QTest::keyClick(viewport(), Qt::Key_Escape);
    EXPECT_TRUE(scene().marks().isEmpty());
    QTest::mouseRelease(viewport(), Qt::LeftButton);
    EXPECT_EQ(savedBytes(), before);
    pull("c", {-275, 3});
    EXPECT_EQ(placeOf("c").x(), 260);
}

TEST_F(CanvasTest, altShowsDistances)
{
    QTest::mouseClick(viewport(), Qt::LeftButton, {}, middleOf("a"));
    hover(middleOf("c"), Qt::AltModifier);
    ASSERT_EQ(scene().marks().distances.size(), 1);
    EXPECT_EQ(scene().marks().distances.constFirst().length(), 240);
    hover(at(500, 20), Qt::AltModifier);
    EXPECT_EQ(scene().marks().distances.size(), 4) << "to the edges of the screen";
    hover(middleOf("c"));
    EXPECT_TRUE(scene().marks().isEmpty());
    QTest::keyPress(viewport(), Qt::Key_Alt);
    EXPECT_FALSE(scene().marks().isEmpty());
    QTest::keyRelease(viewport(), Qt::Key_Alt);
    EXPECT_TRUE(scene().marks().isEmpty());
    EXPECT_EQ(savedBytes(), before);
    EXPECT_EQ(document().selection(), QList<DesignerObject *>{element("a")});
}

TEST_F(CanvasTest, keysChangeADrag)
{
    pull("d", {-36, 14}, Qt::AltModifier);
    EXPECT_EQ(placeOf("d"), QPoint(102, 307)) << "no snapping";
    trigger("edit.undo");
    pull("d", {-36, 14}, Qt::ShiftModifier);
    EXPECT_EQ(placeOf("d"), QPoint(100, 300)) << "along one axis, with snapping";
    trigger("edit.undo");

    QTest::mouseClick(viewport(), Qt::LeftButton, {}, middleOf("a"));
    pull("d", {140, -60}, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(placeOf("d"), QPoint(120, 300)) << "the original stays";
    EXPECT_EQ(workspace().screen()->elements()->listItemCount(), 5);
    const QList<DesignerObject *> copies = document().selection();
    ASSERT_EQ(copies.size(), 1);
    EXPECT_EQ(ValueConversion::toPoint(copies.constFirst()->getProperty(u"position")->valueString()),
              QPointF(190, 270));
    EXPECT_EQ(document().history().count(), 1);
    trigger("edit.undo");
    EXPECT_EQ(savedBytes(), before);

    // Without a drag, Control changes the selection.
    QTest::mouseClick(viewport(), Qt::LeftButton, {}, middleOf("a"));
    QTest::mouseClick(viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf("b"));
    EXPECT_EQ(document().selection().size(), 2);
    QTest::mouseClick(viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf("a"));
    EXPECT_EQ(document().selection(), QList<DesignerObject *>{element("b")});
}

TEST_F(CanvasTest, altClicksWalkDownTheStack)
{
    add(workspace().screen(), u"above"_s, {90, 90, 100, 60});
    const QPoint place = at(130, 120);
    QStringList walked;
    for (int click = 0; click < 4; ++click) {
        QTest::mouseClick(viewport(), Qt::LeftButton, Qt::AltModifier, place);
        walked.append(document().selection().constFirst()->getIdName());
    }
    EXPECT_EQ(walked, (QStringList{u"above"_s, u"a"_s, u"above"_s, u"a"_s}));

    QContextMenuEvent click(QContextMenuEvent::Mouse, place, viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(viewport(), &click);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    const QList<QAction *> stack = menu->actions().constFirst()->menu()->actions();
    ASSERT_EQ(stack.size(), 2);
    EXPECT_TRUE(stack.at(1)->isChecked());
    stack.at(0)->trigger();
    EXPECT_EQ(document().selection(), QList<DesignerObject *>{element("above")});
    menu->close();
}

TEST_F(CanvasTest, lockedAndHiddenElementsAreLeftAlone)
{
    auto *tree = window->panel(u"panel.objects"_s)->findChild<QTreeView *>();
    for (const auto &[name, flag] : {std::pair("a", CanvasState::Locked), {"b", CanvasState::Hidden}}) {
        const QModelIndex index = workspace().tree().indexOf(element(name));
        tree->scrollTo(index);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                          StateDelegate::placeOf(flag, tree->visualRect(index)).center());
        EXPECT_EQ(CanvasState::of(element(name)), CanvasState::Flags(flag));
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                          tree->visualRect(index).topLeft() + QPoint(20, 4));
        EXPECT_EQ(document().selection(), QList<DesignerObject *>{element(name)});
    }
    QTest::keyClick(window->canvas(), Qt::Key_Right);
    QTest::mouseClick(viewport(), Qt::LeftButton, {}, middleOf("a"));
    EXPECT_EQ(document().selection(), QList<DesignerObject *>{workspace().screen()});
    trigger("edit.selectAll");
    EXPECT_EQ(document().selection().size(), 2);
    EXPECT_EQ(savedBytes(), before);
    EXPECT_FALSE(document().isModified());

    // The state is back with the project, also after a deletion and its undo.
    document().select({element("a")});
    trigger("edit.delete");
    trigger("edit.undo");
    EXPECT_TRUE(CanvasState::has(element("a"), CanvasState::Locked));
    pull("d", {40, 40});
    trigger("file.save");
    open(path);
    workspace().showScreen(static_cast<Screen *>(workspace().project().screens()->getListItem(u"Drawing"_s)));
    EXPECT_TRUE(CanvasState::has(element("b"), CanvasState::Hidden));
    EXPECT_FALSE(GraphicsItem::of(element("b"))->graphic()->isVisible());
    trigger("view.showAll");
    EXPECT_TRUE(GraphicsItem::of(element("b"))->graphic()->isVisible());
    EXPECT_TRUE(CanvasState::isFree(element("a")));
}

TEST_F(CanvasTest, elementsBesideTheScreenAreDimmedAndComeBack)
{
    const auto colorOf = [this](const char *name) {
        QCoreApplication::processEvents();
        return viewport()->grab().toImage().pixelColor(middleOf(name) + QPoint(12, 8));
    };
    element("a")->changePropertyValue(element("a")->getProperty(u"color"), u"#FFFF0000"_s);
    EXPECT_EQ(colorOf("a"), QColor(Qt::red));
    window->canvas()->setScale(1);
    window->canvas()->centerOn(0, 100);
    pull("a", {-300, 0}, Qt::AltModifier);
    EXPECT_EQ(placeOf("a").x(), -200);
    EXPECT_NE(colorOf("a"), QColor(Qt::red));
    EXPECT_GT(colorOf("a").red(), colorOf("a").blue()) << "still visible";
    pull("a", {300, 0}, Qt::AltModifier);
    element("a")->changePropertyValue(element("a")->getProperty(u"position"), u"x: 5000; y: 0;"_s);
    document().select({element("a")});
    QTest::keyClick(window->canvas(), Qt::Key_Right);
    document().history().endRun();
    EXPECT_TRUE(window->canvas()->sceneRect().contains(5000, 0)) << "the pasteboard grows";
}

TEST_F(CanvasTest, guidesComeFromTheRulersAndGoBack)
{
    const auto guides = [this] { return workspace().view().guidesOf(workspace().screen()); };
    const QList<Ruler *> rulers = window->findChildren<Ruler *>();
    for (Ruler *ruler : rulers) {
        const QPoint target = ruler->mapFrom(window.get(), viewport()->mapTo(window.get(), at(333, 222)));
        QTest::mousePress(ruler, Qt::LeftButton, {}, {5, 5});
        QMouseEvent move(QEvent::MouseMove, target, ruler->mapToGlobal(target), Qt::NoButton, Qt::LeftButton,
                         {});
        QCoreApplication::sendEvent(ruler, &move);
        QTest::mouseRelease(ruler, Qt::LeftButton, {}, target);
    }
    EXPECT_EQ(guides(), (SnapGuides{{333}, {222}, 0}));
    pull("d", {(333 - 120) * 2 + 4, 0});
    EXPECT_EQ(placeOf("d").x(), 333);

    drag(at(333, 200), at(300, 200));
    EXPECT_EQ(guides().vertical, QList<double>{300});
    drag(at(300, 200), {-40, 50});
    EXPECT_TRUE(guides().vertical.isEmpty());
    trigger("edit.undo");
    EXPECT_EQ(savedBytes(), before) << "guides are not in the project";
    trigger("view.grid");
    EXPECT_EQ(guides().grid, ViewState::gridStep);
    trigger("view.grid");
}

TEST_F(CanvasTest, dropsMakeTheFittingElement)
{
    Project &project = workspace().project();
    const auto drop = [this](std::unique_ptr<QMimeData> data, const QPoint &place) {
        QDragEnterEvent enter(place, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent dropped(place, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport(), &dropped);
        QCoreApplication::processEvents();
        return document().selection().constFirst();
    };
    const auto dragged = [this](DesignerObject *object) {
        return std::unique_ptr<QMimeData>(workspace().tree().mimeData({workspace().tree().indexOf(object)}));
    };
    const auto text = [](const DesignerObject *object, const char *id) {
        return ReadableValue::print(*object->getProperty(QString::fromLatin1(id)));
    };
    DesignerObject *label = drop(std::unique_ptr<QMimeData>(NewElement::dragged(u"Text"_s)), at(300, 200));
    EXPECT_EQ(label->className(), u"Text"_s);
    DesignerObject *flow = project.variables()->getListItem(u"flow"_s);
    EXPECT_EQ(drop(dragged(flow), at(300, 200)), label) << "binds it";
    EXPECT_EQ(text(label, "textBinding"), u"flow"_s);
    const DesignerObject *other = drop(dragged(flow), at(300, 300));
    EXPECT_NE(other, label);
    EXPECT_EQ(text(other, "textBinding"), u"flow"_s);
    const DesignerObject *picture =
        drop(dragged(project.imageResources()->getListItemAtIndex(0)), at(200, 200));
    EXPECT_EQ(picture->className(), u"Image"_s);
    EXPECT_EQ(text(picture, "source"), project.imageResources()->getListItemAtIndex(0)->getIdName());
    drop(dragged(project.screens()->getListItem(u"Alarms"_s)), middleOf("c"));
    const QList<Element *> loaders = workspace().screen()->getElementsOfType(u"ScreenLoader"_s);
    ASSERT_EQ(loaders.size(), 1);
    EXPECT_EQ(text(loaders.constFirst(), "visualElement"), u"c"_s);
    EXPECT_EQ(text(loaders.constFirst(), "screen"), u"Alarms"_s);
    auto files = std::make_unique<QMimeData>();
    files->setUrls({QUrl::fromLocalFile(QStringLiteral(CORVEX_EXAMPLE "/Images/pump.png"))});
    EXPECT_EQ(drop(std::move(files), at(300, 100))->className(), u"Image"_s);
    EXPECT_EQ(document().history().count(), 6);
    while (document().history().canUndo()) {
        trigger("edit.undo");
    }
    EXPECT_EQ(savedBytes(), before);
}

TEST_F(CanvasTest, boundElementsDrawSampleValues)
{
    auto *label = make<DesignerObject>(u"Text"_s, u"label"_s);
    workspace().screen()->addListPropertyItem(workspace().screen()->elements(), label);
    DesignerObject *flow = workspace().project().variables()->getListItem(u"flow"_s);
    const auto set = [](DesignerObject *object, const char *id, const QString &text) {
        const SharedProperty property = object->getProperty(QString::fromLatin1(id));
        ASSERT_TRUE(object->changePropertyValue(property, ReadableValue::read(*property, text).stored)) << id;
    };
    const auto drawn = [&](const QString &text) {
        const QImage bound = scene().picture(CanvasScene::Plain);
        const QString binding = label->getProperty(u"textBinding")->valueString();
        set(label, "textBinding", {});
        set(label, "text", text);
        const bool isSame = scene().picture(CanvasScene::Plain) == bound;
        label->changePropertyValue(label->getProperty(u"textBinding"), binding);
        return isSame;
    };
    set(label, "textBinding", u"flow"_s);
    EXPECT_TRUE(drawn(u"132.5"_s));
    EXPECT_FALSE(drawn(u"132"_s));
    set(flow, "value", u"7.25"_s);
    EXPECT_TRUE(drawn(u"7.25"_s));
    set(label, "decimals", u"1"_s);
    set(label, "suffix", u"bar"_s);
    EXPECT_TRUE(drawn(u"7.3bar"_s));
    set(label, "textBinding", u"pump1Running ? \"on\" : concat(\"off \", flow)"_s);
    EXPECT_TRUE(drawn(u"off 7.25"_s) || drawn(u"on"_s));
    DesignerObject *color = workspace().project().variables()->getListItem(u"pump1Color"_s);
    const QImage black = scene().picture(CanvasScene::Plain);
    set(label, "colorBinding", u"pump1Color"_s);
    EXPECT_NE(scene().picture(CanvasScene::Plain), black);
    set(element("a"), "colorBinding", u"pump1Color"_s);
    for (const QString &value : {u"#00FF00"_s, u"#0000FF"_s}) {
        set(color, "value", value);
        EXPECT_EQ(scene().picture(CanvasScene::Plain).pixelColor(130, 120), QColor(value));
    }
}

// Whatever a user does with mouse and keys, undo leads back. CORVEX_GESTURES sets the number.
TEST_F(CanvasTest, randomGesturesCanBeUndone)
{
    const int count = qEnvironmentVariableIntValue("CORVEX_GESTURES");
    QRandomGenerator random(11);
    constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                                  Qt::ControlModifier, Qt::AltModifier};
    constexpr int keys[] = {Qt::Key_Left, Qt::Key_Down, Qt::Key_Escape, Qt::Key_Alt, Qt::Key_Delete};
    constexpr const char *actions[] = {"edit.undo",       "edit.redo",       "edit.copies",
                                       "edit.selectAll",  "edit.selectNone", "arrange.group",
                                       "arrange.ungroup", "arrange.left",    "arrange.raise",
                                       "view.lock",       "view.hide",       "view.showAll"};
    const auto anywhere = [&] {
        return QPoint(random.bounded(viewport()->width()), random.bounded(viewport()->height()));
    };
    for (int gesture = 0; gesture < (count > 0 ? count : 500); ++gesture) {
        const Qt::KeyboardModifier modifier = modifiers[random.bounded(int(std::size(modifiers)))];
        const QList<DesignerObject *> elements = workspace().screen()->elements()->listItems();
        const bool aims = random.bounded(4) > 0 && !elements.isEmpty();
        const GraphicsItem *aimed =
            aims ? GraphicsItem::of(elements.at(random.bounded(elements.size()))) : nullptr;
        const QPoint from =
            aimed ? window->canvas()->mapFromScene(aimed->graphic()->mapToScene(aimed->frame().center()))
                  : anywhere();
        switch (random.bounded(6)) {
        case 0:
            QTest::mouseClick(viewport(), Qt::LeftButton, modifier, from);
            break;
        case 1:
            drag(from, anywhere(), modifier);
            break;
        case 2:
            drag(from, anywhere(), modifier, false);
            QTest::keyClick(window->canvas(), Qt::Key(keys[random.bounded(4)]));
            QTest::mouseRelease(viewport(), Qt::LeftButton, modifier, anywhere());
            break;
        case 3:
            QTest::keyClick(window->canvas(), Qt::Key(keys[random.bounded(4)]), modifier);
            break;
        case 4:
            QTest::mouseDClick(viewport(), Qt::LeftButton, {}, from);
            break;
        default:
            const char *id = actions[random.bounded(int(std::size(actions)))];
            if (isEnabled(id) && workspace().screen()->elements()->listItemCount() < 200) {
                trigger(id);
            }
        }
    }
    QTest::keyClick(window->canvas(), Qt::Key_Escape);
    while (document().history().canUndo()) {
        ASSERT_TRUE(document().undo());
    }
    EXPECT_EQ(savedBytes(), before);
}

} // namespace Halvane::Corvex::Nova::Test
