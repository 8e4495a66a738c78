// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/commands/groups/GroupCommand.h"
#include "corvex/editing/commands/groups/SplitGroup.h"
#include "corvex/editing/commands/groups/UngroupCommand.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/objects/ChangeVisualElements.h"
#include "corvex/editing/commands/objects/DeleteObject.h"
#include "corvex/editing/commands/objects/DeleteObjectsAndCheckFilters.h"
#include "corvex/editing/commands/objects/MoveObject.h"
#include "corvex/editing/commands/objects/RemoveObject.h"
#include "corvex/editing/commands/objects/SwapItems.h"
#include "corvex/editing/commands/screens/DeleteScreen.h"
#include "corvex/editing/graphics/CanvasScene.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/values/text/ValueConversion.h"

#include "CanvasFixture.h"

#include <QGraphicsView>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! A canvas in a view without a display, with a simulated mouse.
class CanvasSceneTest : public Test::CanvasFixture
{
protected:
    CanvasSceneTest()
        : box(add(screen, "Rectangle", "box", {50, 50, 100, 60}))
    {
        set(box, "border", u"color: #FF000000; width: 1;"_s);
    }

    void show(double scale = 1)
    {
        scene = std::make_unique<CanvasScene>(screen);
        view = std::make_unique<QGraphicsView>(scene.get());
        view->setSceneRect(0, 0, 500, 300);
        view->resize(int(540 * scale), int(340 * scale));
        view->scale(scale, scale);
        view->show();
    }
    QPoint at(const QPointF &point) const { return view->mapFromScene(point); }
    void press(const QPointF &point, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(view->viewport(), Qt::LeftButton, modifiers, at(point));
    }
    void moveTo(const QPointF &point, Qt::KeyboardModifiers modifiers = {})
    {
        QMouseEvent event(QEvent::MouseMove, at(point), view->viewport()->mapToGlobal(at(point)),
                          Qt::NoButton, Qt::LeftButton, modifiers);
        QApplication::sendEvent(view->viewport(), &event);
    }
    void release(const QPointF &point)
    {
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, at(point));
    }
    void drag(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers = {})
    {
        press(from);
        moveTo((from + to) / 2, modifiers);
        moveTo(to, modifiers);
        release(to);
    }
    QString placeOf(const DesignerObject *object) const
    {
        return u"%1 %2 %3"_s.arg(valueOf(object, "position"), valueOf(object, "size"),
                                 valueOf(object, "rotation"));
    }

    DesignerObject *box;
    std::unique_ptr<CanvasScene> scene;
    std::unique_ptr<QGraphicsView> view;
};

} // namespace

TEST_F(CanvasSceneTest, EachGestureIsOneCommand)
{
    constexpr struct
    {
        const char *what;
        QPointF from;
        QPointF to;
        Qt::KeyboardModifier modifier;
        const char *place;
        const char *text;
    } cases[] = {
        {"move",
         {100, 80},
         {130, 60},
         Qt::NoModifier,
         "x: 80; y: 30; height: 60; width: 100; 0",
         "Move \"box\""},
        {"right",
         {150, 80},
         {190, 10},
         Qt::NoModifier,
         "x: 50; y: 50; height: 60; width: 140; 0",
         "Resize \"box\""},
        {"top left",
         {50, 50},
         {149, 109},
         Qt::NoModifier,
         "x: 148; y: 108; height: 2; width: 2; 0",
         "Resize \"box\""},
        {"in proportion",
         {150, 110},
         {250, 120},
         Qt::ShiftModifier,
         "x: 50; y: 50; height: 120; width: 200; 0",
         "Resize \"box\""},
        {"turn",
         {100, 30},
         {180, 80},
         Qt::NoModifier,
         "x: 50; y: 50; height: 60; width: 100; 90",
         "Rotate \"box\""},
        {"turn back",
         {100, 30},
         {83, 31},
         Qt::ShiftModifier,
         "x: 50; y: 50; height: 60; width: 100; 345",
         "Rotate \"box\""},
    };
    show();
    UndoStack &stack = *project->undoStack();
    const QString before = placeOf(box);
    for (const auto &[what, from, to, modifier, place, text] : cases) {
        SCOPED_TRACE(what);
        scene->selectObjects({box});
        press(from);
        moveTo((from + to) / 2, modifier);
        moveTo(to, modifier);
        EXPECT_EQ(placeOf(box), before) << "nothing is told before the release";
        EXPECT_EQ(stack.count(), 0);
        release(to);
        EXPECT_EQ(placeOf(box), QString::fromLatin1(place));
        ASSERT_EQ(stack.count(), 1);
        EXPECT_EQ(stack.undoText(), QString::fromLatin1(text));
        stack.undo();
        EXPECT_EQ(placeOf(box), before);
        EXPECT_EQ(itemOf(box)->handlePoint(QQuickItem::BottomRight), QPointF(150, 110)) << "the item follows";
        stack.startOver();
    }
}

TEST_F(CanvasSceneTest, AGestureWithoutAChangeLeavesNoCommand)
{
    show();
    const QString before = placeOf(box);
    drag({100, 80}, {102, 82}); // a click with an unsteady hand
    EXPECT_EQ(scene->selectedObjects(), QList<DesignerObject *>{box});
    drag({150, 80}, {150, 200}); // the right handle does not change the height
    press({100, 80});
    moveTo({300, 200});
    EXPECT_EQ(itemOf(box)->handlePoint(QQuickItem::TopLeft), QPointF(250, 170));
    QTest::keyClick(view->viewport(), Qt::Key_Escape);
    EXPECT_EQ(itemOf(box)->handlePoint(QQuickItem::TopLeft), QPointF(50, 50));
    EXPECT_FALSE(scene->isGestureActive());
    moveTo({400, 200});
    release({400, 200});
    EXPECT_EQ(placeOf(box), before);
    EXPECT_EQ(project->undoStack()->count(), 0);

    box->getProperty(u"position")->setAllowInvalidValue(false);
    box->getProperty(u"position")->setValueValidator([](const DesignerProperty *position, QString &) {
        return position->valueString() == "x: 50; y: 50;"_L1;
    });
    drag({100, 80}, {130, 60});
    EXPECT_EQ(itemOf(box)->handlePoint(QQuickItem::TopLeft), QPointF(50, 50)) << "the model has refused it";
    EXPECT_EQ(project->undoStack()->count(), 0);

    press({100, 80});
    moveTo({300, 200});
    delete screen->takeListPropertyItem(screen->elements(), box);
    moveTo({310, 200});
    release({310, 200});
    EXPECT_EQ(project->undoStack()->count(), 0) << "its element went during the gesture";
    EXPECT_TRUE(scene->selectedObjects().isEmpty());
}

TEST_F(CanvasSceneTest, HandlesAreFoundInAMagnifiedViewOfARotatedElement)
{
    set(box, "rotation", u"90"_s);
    show(2);
    scene->selectObjects({box});
    const FramedItem *item = itemOf(box);
    const QPointF handle = item->handlePoint(QQuickItem::Right); // below the box, because it is rotated
    EXPECT_EQ(handle, QPointF(100, 130));
    EXPECT_EQ(scene->cursorAt(handle), Qt::SizeVerCursor);
    EXPECT_EQ(scene->cursorAt(handle - QPointF(0, 2)), Qt::SizeAllCursor);
    EXPECT_EQ(scene->cursorAt({300, 200}), Qt::ArrowCursor);
    const QPointF fixed = item->handlePoint(QQuickItem::Left);
    drag(handle, handle + QPointF(0, 40));
    EXPECT_EQ(item->handlePoint(QQuickItem::Left), fixed);
    EXPECT_EQ(placeOf(box), u"x: 30; y: 70; height: 60; width: 140; 90"_s);
}

TEST_F(CanvasSceneTest, GroupsAreSelectedAndResizedAsAWholeAndEnteredByADoubleClick)
{
    DesignerObject *group = add(screen, "GroupElement", "group", {200, 100, 0, 0});
    DesignerObject *left = add(group, "Rectangle", "left", {0, 0, 40, 40});
    DesignerObject *right = add(group, "Rectangle", "right", {60, 20, 40, 40});
    show();
    UndoStack &stack = *project->undoStack();
    const QPointF inLeft(210, 110);
    press(inLeft);
    release(inLeft);
    EXPECT_EQ(scene->selectedObjects(), QList<DesignerObject *>{group});
    const QString before = placeOf(left) + placeOf(right) + valueOf(group, "position");
    drag({200, 100}, {100, 40});
    EXPECT_EQ(valueOf(group, "position"), u"x: 100; y: 40;"_s);
    EXPECT_EQ(placeOf(left), u"x: 0; y: 0; height: 80; width: 80; 0"_s);
    EXPECT_EQ(placeOf(right), u"x: 120; y: 40; height: 80; width: 80; 0"_s);
    ASSERT_EQ(stack.count(), 1);
    stack.undo();
    EXPECT_EQ(placeOf(left) + placeOf(right) + valueOf(group, "position"), before);

    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at(inLeft));
    release(inLeft);
    EXPECT_EQ(scene->selectedObjects(), QList<DesignerObject *>{left});
    drag(inLeft, inLeft + QPointF(15, 10));
    EXPECT_EQ(placeOf(left), u"x: 15; y: 10; height: 40; width: 40; 0"_s);
    scene->selectObjects({left, group});
    EXPECT_EQ(scene->selectedObjects(), QList<DesignerObject *>{group}) << "nothing is moved twice";
}

TEST_F(CanvasSceneTest, GroupingAndDeletingLeaveEverythingElseInItsPlace)
{
    DesignerObject *turned = add(screen, "Rectangle", "turned", {200, 100, 80, 20});
    set(turned, "rotation", u"30"_s);
    DesignerObject *other = add(screen, "Rectangle", "other", {10, 10, 40, 40});
    show();
    const auto look = [this] {
        QStringList drawn; // from bottom to top, each with its corners in scene coordinates
        for (const QGraphicsItem *graphic : scene->items(Qt::AscendingOrder)) {
            const GraphicsItem *item = GraphicsItem::of(graphic);
            if (item && item->isKindOfClass(u"GraphicsRectangle"_s)) {
                const QRectF frame = item->frame();
                const QPointF corner = graphic->mapToScene(frame.topLeft());
                const QPointF opposite = graphic->mapToScene(frame.bottomRight());
                drawn.append(u"%1 %2 %3 %4 %5"_s.arg(item->dataObject()->getIdName())
                                 .arg(corner.x(), 0, 'f', 1)
                                 .arg(corner.y(), 0, 'f', 1)
                                 .arg(opposite.x(), 0, 'f', 1)
                                 .arg(opposite.y(), 0, 'f', 1));
            }
        }
        return drawn;
    };
    const QStringList before = look();
    UndoStack &stack = *project->undoStack();
    stack.push(new GroupCommand(make("GroupElement", "group"), {box, turned}));
    EXPECT_EQ(look(), before);
    stack.push(new DeleteObject(turned, true));
    EXPECT_EQ(look().size(), before.size() - 1);
    stack.push(new DeleteObject(other, true));
    stack.undo();
    stack.undo();
    EXPECT_EQ(look(), before);
    stack.undo();
    EXPECT_EQ(look(), before);
    stack.redo();
    stack.push(new UngroupCommand(screen->getElement(u"group"_s)));
    EXPECT_EQ(look(), before);
}

TEST_F(CanvasSceneTest, OtherMembersOfARotatedGroupStayInPlace)
{
    // A group with other bounds rotates about another point.
    DesignerObject *outer = add(screen, "GroupElement", "outer", {150, 100, 0, 0});
    DesignerObject *other = add(outer, "Rectangle", "other", {20, 5, 40, 40});
    DesignerObject *inner = add(outer, "GroupElement", "inner", {50, 20, 0, 0});
    DesignerObject *member = add(inner, "Rectangle", "member", {40, 0, 60, 40});
    DesignerObject *second = add(inner, "Rectangle", "second", {5, 60, 20, 20});
    set(outer, "rotation", u"30"_s);
    set(outer, "scale", u"120"_s);
    set(inner, "rotation", u"200"_s);
    show();
    const auto listOf = [](const DesignerObject *object) { return object->getProperty(u"elements"); };
    const auto change = [](DesignerObject *object, const char *id, const QString &value,
                           UndoCommand *parent = nullptr) {
        return new ChangeProperty(object->getProperty(QString::fromLatin1(id)), value, true, parent);
    };
    const auto makeFar = [](const char *className, const char *name) {
        DesignerObject *made = make(className, name);
        set(made, "position", u"x: 70; y: 90;"_s);
        return made;
    };
    using Objects = QList<const DesignerObject *>;
    const struct
    {
        const char *what;
        std::function<UndoCommand *()> command;
        Objects still;
    } cases[] = {
        {"move", [&] { return change(member, "position", u"x: 90; y: 70;"_s); }, {other, second}},
        {"resize", [&] { return change(member, "size", u"height: 200; width: 9;"_s); }, {other, second}},
        {"move two",
         [&] {
             auto *both = new UndoCommand;
             change(member, "position", u"x: 200; y: 170;"_s, both);
             change(other, "position", u"x: 300; y: 10;"_s, both);
             return both;
         },
         {second}},
        {"align",
         [&] {
             return new ChangeVisualElements(second->getProperty(u"position"), u"x: 150; y: 3;"_s,
                                             {static_cast<VisualElement *>(member)});
         },
         {other, second}},
        {"add",
         [&] { return new AddObject(listOf(inner), makeFar("Text", "far"), true); },
         {other, second, member}},
        {"move in",
         [&] { return new MoveObject(listOf(screen), listOf(inner), box, true); },
         {other, second, member}},
        {"move on",
         [&] { return new MoveObject(listOf(inner), listOf(outer), member, true); },
         {other, second}},
        {"move out", [&] { return new MoveObject(listOf(outer), listOf(screen), inner, true); }, {other}},
        {"remove", [&] { return new RemoveObject(listOf(inner), member, true); }, {other, second}},
        {"delete two",
         [&] {
             return new DeleteObjectsAndCheckFilters({member, second}, screen);
         },
         {other}},
        {"group",
         [&] {
             return new GroupCommand(makeFar("GroupElement", "group"), {member, second});
         },
         {other, second, member}},
        {"split", [&] { return new SplitGroup(inner, {member}); }, {other, second, member}},
        {"ungroup", [&] { return new UngroupCommand(inner); }, {other, second, member}},
        {"ungroup the outer one", [&] { return new UngroupCommand(outer); }, {other, second, member}},
    };
    UndoStack &stack = *project->undoStack();
    const auto cornersOf = [](const DesignerObject *object) {
        return itemOf(object)->graphic()->mapToScene(itemOf(object)->frame());
    };
    const auto areEqual = [](const QPolygonF &corners, const QPolygonF &others) {
        return std::ranges::equal(corners, others, [](const QPointF &corner, const QPointF &otherCorner) {
            return (corner - otherCorner).manhattanLength() < 0.05;
        });
    };
    const QString before = screen->convertToString(false, false);
    for (const auto &[what, command, still] : cases) {
        SCOPED_TRACE(what);
        QList<QPolygonF> places;
        std::ranges::transform(still, std::back_inserter(places), cornersOf);
        stack.push(command());
        const QString after = screen->convertToString(false, false);
        EXPECT_NE(after, before);
        for (qsizetype i = 0; i < still.size(); ++i) {
            EXPECT_TRUE(areEqual(cornersOf(still.at(i)), places.at(i)))
                << qPrintable(still.at(i)->getIdName());
        }
        stack.undo();
        EXPECT_EQ(screen->convertToString(false, false), before);
        stack.redo();
        EXPECT_EQ(screen->convertToString(false, false), after);
        stack.undo();
    }

    // Only an item dragged by a handle defines its own position.
    scene->selectObjects({inner});
    const QPolygonF otherPlace = cornersOf(other);
    const QPointF fixed = itemOf(inner)->handlePoint(QQuickItem::TopLeft);
    const QPointF grip = itemOf(inner)->handlePoint(QQuickItem::BottomRight);
    drag(grip, grip + (grip - fixed) / 3);
    EXPECT_EQ(stack.count(), 1);
    EXPECT_LE((itemOf(inner)->handlePoint(QQuickItem::TopLeft) - fixed).manhattanLength(), 1);
    EXPECT_TRUE(areEqual(cornersOf(other), otherPlace));
}

TEST_F(CanvasSceneTest, TheHistorySelectsTheEditedElements)
{
    DesignerObject *other = add(screen, "Rectangle", "other", {200, 100, 80, 20});
    DesignerObject *third = add(screen, "Rectangle", "third", {10, 200, 20, 20});
    DesignerObject *group = make("GroupElement", "group");
    show();
    using Objects = QList<DesignerObject *>;
    const struct
    {
        std::function<UndoCommand *()> command;
        Objects done;
        Objects undone;
    } cases[] = {
        {[&] {
             return new GroupCommand(group, {box, other, third});
         },
         {group},
         {box, other, third}},
        {[&] { return new SplitGroup(group, Objects{third}); }, {third}, {third}},
        {[&] {
             return new DeleteObjectsAndCheckFilters({other, third}, screen);
         },
         {},
         {other, third}},
        {[&] { return new SwapItems(screen->elements(), group, third); }, {group, third}, {group, third}},
        {[&] { return new UngroupCommand(group); }, {box, other}, {group}},
        {[&] { return new DeleteObject(box, true); }, {}, {box}},
    };
    UndoStack &stack = *project->undoStack();
    const auto check = [&](const UndoCommand &command, const Objects &selected) {
        EXPECT_THAT(scene->selectedObjects(), testing::UnorderedElementsAreArray(selected));
        EXPECT_EQ(command.activeItem(), selected.value(0));
        scene->selectObjects({});
    };
    for (const auto &[command, done, undone] : cases) {
        SCOPED_TRACE(&command - &cases[0].command);
        UndoCommand *pushed = command();
        stack.push(pushed);
        check(*pushed, done);
        stack.undo();
        check(*pushed, undone);
        if (!done.isEmpty()) {
            stack.redo();
            check(*pushed, done);
        }
    }
}

TEST_F(CanvasSceneTest, FollowsAScreenThatLeavesTheProjectAndReturns)
{
    show();
    UndoStack &stack = *project->undoStack();
    const auto follows = [&] {
        DesignerObject *late = add(screen, "Rectangle", "late", {0, 0, 10, 10});
        const bool isShown = late->graphicsItem() && box->graphicsItem();
        delete screen->takeListPropertyItem(screen->elements(), late);
        return isShown;
    };
    ASSERT_TRUE(stack.push(new DeleteScreen(screen)));
    stack.undo();
    EXPECT_TRUE(follows());
    DesignerObject *second = make("Screen", "Second");
    ASSERT_TRUE(project->addListPropertyItem(project->screens(), second));
    PlannedCommand moved = Commands::moveOf({second}, project->screens(), 0);
    ASSERT_TRUE(moved && stack.push(moved.command.release()));
    moved = Commands::moveOf({screen}, project->screens(), 0);
    ASSERT_TRUE(moved && stack.push(moved.command.release()));
    EXPECT_TRUE(follows());
}

TEST_F(CanvasSceneTest, MembersOfRotatedGroupsFollowTheMouse)
{
    // A group that grows with a member rotates about another point, but nothing may appear to move.
    DesignerObject *outer = add(screen, "GroupElement", "outer", {150, 100, 0, 0});
    set(outer, "rotation", u"30"_s);
    set(outer, "scale", u"120"_s);
    DesignerObject *other = add(outer, "Rectangle", "other", {0, 0, 40, 40});
    DesignerObject *inner = add(outer, "GroupElement", "inner", {50, 20, 0, 0});
    set(inner, "rotation", u"200"_s);
    DesignerObject *member = add(inner, "Rectangle", "member", {0, 0, 60, 40});
    show();
    scene->selectObjects({member});
    const auto corner = [](const DesignerObject *object, QQuickItem::TransformOrigin handle) {
        return itemOf(object)->handlePoint(handle).toPoint();
    };
    const QPoint otherCorner = corner(other, QQuickItem::TopLeft);
    const QPoint fixed = corner(member, QQuickItem::TopLeft);
    const QString before = placeOf(member) + valueOf(inner, "position") + valueOf(outer, "position");
    const QPoint grip = corner(member, QQuickItem::BottomRight);
    const QPoint target = grip + (grip - fixed) / 2;
    drag(grip, target);
    EXPECT_LE((corner(member, QQuickItem::BottomRight) - target).manhattanLength(), 3);
    EXPECT_LE((corner(member, QQuickItem::TopLeft) - fixed).manhattanLength(), 1);
    EXPECT_LE((corner(other, QQuickItem::TopLeft) - otherCorner).manhattanLength(), 1);

    const QPoint middle = ((fixed + target) / 2);
    drag(middle, middle + QPoint(40, 30));
    EXPECT_LE((corner(member, QQuickItem::TopLeft) - fixed - QPoint(40, 30)).manhattanLength(), 2);
    EXPECT_LE((corner(other, QQuickItem::TopLeft) - otherCorner).manhattanLength(), 1);
    EXPECT_EQ(project->undoStack()->count(), 2);
    EXPECT_EQ(scene->selectedObjects(), QList<DesignerObject *>{member});
    project->undoStack()->setIndex(0);
    EXPECT_EQ(placeOf(member) + valueOf(inner, "position") + valueOf(outer, "position"), before);
}

TEST_F(CanvasSceneTest, SeveralElementsAreSelectedAndMovedTogether)
{
    DesignerObject *other = add(screen, "Text", "title", {300, 200, 50, 20});
    set(add(screen, "Rectangle", "turned", {310, 80, 80, 80}), "rotation", u"45"_s);
    show();
    const QSignalSpy selection(scene.get(), &QGraphicsScene::selectionChanged);
    drag({20, 20}, {320, 210});
    EXPECT_EQ(scene->selectedObjects().size(), 3) << "touched by the rectangle";
    EXPECT_EQ(selection.count(), 1) << "however many they are";
    drag({270, 40}, {310, 80});
    EXPECT_TRUE(scene->selectedObjects().isEmpty()) << "only the bounds of what is turned are there";
    scene->selectObjects({box, other});
    drag({100, 80}, {120, 90});
    EXPECT_EQ(valueOf(box, "position"), u"x: 70; y: 60;"_s);
    EXPECT_EQ(valueOf(other, "position"), u"x: 320; y: 210;"_s);
    EXPECT_EQ(project->undoStack()->undoText(), u"Move 2 elements"_s);
    press({330, 215}, Qt::ControlModifier);
    release({330, 215});
    EXPECT_EQ(scene->selectedObjects(), QList<DesignerObject *>{box});
    press({450, 20});
    release({450, 20});
    EXPECT_TRUE(scene->selectedObjects().isEmpty());
    scene->selectObjects({box, other});
    const QImage both = scene->picture();
    delete screen->takeListPropertyItem(screen->elements(), other);
    set(box, "position", u"x: 200; y: 100;"_s);
    EXPECT_NE(scene->picture(), both) << "the outline needs nothing that is gone";
    project.reset();
    EXPECT_TRUE(scene->selectedObjects().isEmpty());
    press({100, 80});
    moveTo({200, 80});
    release({200, 80});
}

} // namespace Halvane::Corvex::Designer
