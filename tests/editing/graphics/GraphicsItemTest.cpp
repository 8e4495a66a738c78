// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/FramePoint.h"
#include "corvex/editing/graphics/GraphicsItem.h"

#include "CanvasFixture.h"

#include <QGraphicsScene>
#include <QGraphicsView>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Test::CanvasFixture;

namespace {

//! An item that adds nothing to the base class.
class PlainItem : public GraphicsItem
{
public:
    PlainItem(DesignerObject *object, QGraphicsItem *graphic)
        : GraphicsItem(object, graphic)
    { }
};

constexpr QRectF before(10, 20, 100, 50);
constexpr double minimum = 4;

class GraphicsItemTest : public CanvasFixture
{
protected:
    //! The names of the elements in stacking order, bottom first.
    QStringList stacking() const
    {
        QStringList names;
        const QGraphicsScene *scene = GraphicsItem::of(screen)->graphic()->scene();
        for (const QGraphicsItem *graphic : scene->items(Qt::AscendingOrder)) {
            if (!graphic->parentItem()) {
                names.append(GraphicsItem::of(graphic)->dataObject()->getIdName());
            }
        }
        return names;
    }
    QPointF corner(const DesignerObject *object, QQuickItem::TransformOrigin where) const
    {
        return itemOf(object)->handlePoint(where);
    }
};

} // namespace

TEST(ResizeRules, TheEdgesOppositeTheHandleStay)
{
    using Rule = void (*)(const QRectF &, const QPointF &, QSizeF &, QPointF &, double);
    constexpr struct
    {
        Rule rule;
        QPointF point;
        QRectF after;
    } cases[] = {
        {&GraphicsItem::resizeTopLeft, {0, 0}, {0, 0, 110, 70}},
        {&GraphicsItem::resizeTopLeft, {200, 200}, {106, 66, 4, 4}},
        {&GraphicsItem::resizeTop, {-50, 30}, {10, 30, 100, 40}},
        {&GraphicsItem::resizeTop, {0, 100}, {10, 66, 100, 4}},
        {&GraphicsItem::resizeTopRight, {60, 10}, {10, 10, 50, 60}},
        {&GraphicsItem::resizeTopRight, {0, 90}, {10, 66, 4, 4}},
        {&GraphicsItem::resizeRight, {210, 500}, {10, 20, 200, 50}},
        {&GraphicsItem::resizeRight, {12, 30}, {10, 20, 4, 50}},
        {&GraphicsItem::resizeBottomRight, {60, 120}, {10, 20, 50, 100}},
        {&GraphicsItem::resizeBottomRight, {10, 20}, {10, 20, 4, 4}},
        {&GraphicsItem::resizeBottom, {500, 30}, {10, 20, 100, 10}},
        {&GraphicsItem::resizeBottomLeft, {60, 40}, {60, 20, 50, 20}},
        {&GraphicsItem::resizeBottomLeft, {111, 0}, {106, 20, 4, 4}},
        {&GraphicsItem::resizeLeft, {-10, 0}, {-10, 20, 120, 50}},
        {&GraphicsItem::resizeLeft, {150, 0}, {106, 20, 4, 50}},
    };
    for (const auto &[rule, point, after] : cases) {
        QSizeF size;
        QPointF position;
        rule(before, point, size, position, minimum);
        EXPECT_EQ(QRectF(position, size), after) << "entry " << &rule - &cases[0].rule;
    }
}

TEST(ResizeRules, CursorsShowTheDirectionOfAHandleOnTheScreen)
{
    constexpr struct
    {
        QQuickItem::TransformOrigin handle;
        double rotation;
        Qt::CursorShape cursor;
    } cases[] = {
        {QQuickItem::Left, 0, Qt::SizeHorCursor},      {QQuickItem::Bottom, 0, Qt::SizeVerCursor},
        {QQuickItem::TopLeft, 0, Qt::SizeFDiagCursor}, {QQuickItem::TopRight, 0, Qt::SizeBDiagCursor},
        {QQuickItem::Right, 90, Qt::SizeVerCursor},    {QQuickItem::Top, 45, Qt::SizeBDiagCursor},
        {QQuickItem::TopLeft, 315, Qt::SizeHorCursor}, {QQuickItem::BottomLeft, 10, Qt::SizeBDiagCursor},
    };
    for (const auto &[handle, rotation, cursor] : cases) {
        EXPECT_EQ(FramePoint::of(handle).cursor(rotation), cursor) << handle << " at " << rotation;
    }
}

TEST_F(GraphicsItemTest, ItemsOfTheBaseClassHaveNoHandlesAndIgnoreTheMouse)
{
    QGraphicsRectItem graphic(0, 0, 10, 10);
    DesignerObject *element = add(screen, "Rectangle", "box", {0, 0, 10, 10});
    PlainItem item(element, &graphic);
    bool found = true;
    EXPECT_EQ(item.getResizeHandle({0, 0}, &found), QQuickItem::Center);
    EXPECT_FALSE(found);
    EXPECT_EQ(item.getResizePointHandle({0, 0}), 0);
    item.rotateByMouse(30);
    item.resizeByMouse(1, {5, 5});
    EXPECT_EQ(graphic.rotation(), 0);
    EXPECT_EQ(item.minSize(), 1.0);
    PlainItem copy(item);
    EXPECT_EQ(copy.dataObject(), element);
    EXPECT_EQ(copy.graphic(), &graphic);
}

TEST_F(GraphicsItemTest, HandlesAreCaughtWithinFivePixelsOfAMagnifyingView)
{
    DesignerObject *element = add(screen, "Rectangle", "box", {10, 10, 100, 50});
    QGraphicsScene scene;
    screen->setGraphicsItem();
    const FramedItem *item = itemOf(element);
    EXPECT_EQ(item->detectionWidth(), 5.0) << "without a scene";
    scene.addItem(GraphicsItem::of(screen)->graphic());
    {
        QGraphicsView view(&scene);
        for (const auto &[scale, width] : {std::pair(1.0, 5.0), {0.5, 5.0}, {2.0, 2.5}, {4.0, 1.25}}) {
            view.setTransform(QTransform::fromScale(scale, scale));
            EXPECT_EQ(item->detectionWidth(), width) << scale;
        }
        EXPECT_EQ(item->getResizeHandle({110.5, 59.5}), QQuickItem::BottomRight);
        EXPECT_EQ(item->getResizeHandle({112, 58}), QQuickItem::Center);
        const QGraphicsView second(&scene);
        EXPECT_EQ(item->detectionWidth(), 5.0) << "two views";
    }
    EXPECT_EQ(item->getResizeHandle({60, 8}), QQuickItem::Top);
    EXPECT_TRUE(item->isRotationGrip({60, -10}));
    set(element, "size", u"height: 10; width: 10;"_s);
    EXPECT_EQ(item->getResizeHandle({15, 9}), QQuickItem::Center) << "no room beside the corners";
}

TEST_F(GraphicsItemTest, ItemsFollowTheirElements)
{
    DesignerObject *element = add(screen, "Rectangle", "box", {10, 20, 100, 50});
    screen->setGraphicsItem();
    const FramedItem *item = itemOf(element);
    ASSERT_TRUE(item);
    EXPECT_EQ(GraphicsItem::of(screen)->frame(), QRectF(0, 0, 500, 300));

    set(element, "position", u"x: 30; y: 40;"_s);
    set(element, "size", u"height: 60; width: 80;"_s);
    set(element, "transformOrigin", u"BottomRight"_s);
    set(element, "rotation", u"90"_s);
    set(element, "scale", u"50"_s);
    set(element, "opacity", u"20"_s);
    set(element, "z", u"7"_s);
    set(element, "visible", u"false"_s);
    set(element, "border", u"color: #FF000000; width: 6;"_s);
    EXPECT_EQ(corner(element, QQuickItem::BottomRight), QPointF(110, 100)) << "the point that it turns about";
    EXPECT_EQ(corner(element, QQuickItem::TopLeft), QPointF(140, 60));
    EXPECT_EQ(item->graphic()->opacity(), 0.2);
    EXPECT_EQ(item->graphic()->zValue(), 7);
    EXPECT_FALSE(item->graphic()->isVisible());
    EXPECT_EQ(item->minSize(), 12) << "room for the border on both sides";
}

TEST_F(GraphicsItemTest, ItemsAreRemovedWithTheirElementsAndComeBackInPlace)
{
    DesignerObject *low = add(screen, "Rectangle", "low", {0, 0, 10, 10});
    DesignerObject *middle = add(screen, "GroupElement", "middle", {});
    DesignerObject *member = add(middle, "Rectangle", "member", {0, 0, 10, 10});
    add(screen, "Rectangle", "high", {0, 0, 10, 10});
    QGraphicsScene scene;
    screen->setGraphicsItem();
    scene.addItem(GraphicsItem::of(screen)->graphic());
    ASSERT_EQ(stacking(), (QStringList{u"Main"_s, u"low"_s, u"middle"_s, u"high"_s}));

    const qsizetype index = screen->elements()->getListItemIndex(middle);
    ASSERT_TRUE(screen->takeListPropertyItem(screen->elements(), middle));
    EXPECT_EQ(GraphicsItem::of(middle), nullptr);
    EXPECT_EQ(GraphicsItem::of(member), nullptr);
    EXPECT_EQ(scene.items().size(), 3);
    ASSERT_TRUE(screen->insertListPropertyItemAt(screen->elements(), middle, index));
    EXPECT_EQ(stacking(), (QStringList{u"Main"_s, u"low"_s, u"middle"_s, u"high"_s}));
    EXPECT_EQ(itemOf(member)->graphic()->parentItem(), itemOf(middle)->graphic());

    screen->swapListPropertyItems(screen->elements(), low, middle);
    EXPECT_EQ(stacking(), (QStringList{u"Main"_s, u"middle"_s, u"low"_s, u"high"_s}));
    DesignerObject *far = add(middle, "Rectangle", "far", {70, 0, 10, 90});
    add(middle, "Rectangle", "near", {-5, 3, 10, 10});
    for (const auto &[place, frame] :
         {std::pair("x: 20; y: 20;", QRectF(-5, 0, 35, 110)), {"x: -8; y: 5;", QRectF(-8, 0, 18, 95)}}) {
        far->changePropertyValue(far->getProperty(u"position"), QString::fromLatin1(place));
        EXPECT_EQ(itemOf(middle)->frame(), frame) << place;
    }
    delete far;
    delete member;
    EXPECT_EQ(itemOf(middle)->frame(), QRectF(-5, 3, 10, 10)) << "the group has learnt what it holds";
    delete low;
    EXPECT_EQ(stacking(), (QStringList{u"Main"_s, u"middle"_s, u"high"_s}));
    project.reset();
    EXPECT_TRUE(scene.items().isEmpty());
}

TEST_F(GraphicsItemTest, AScreenOutlivesItsSceneAndIsShownAgain)
{
    const DesignerObject *element = add(screen, "Rectangle", "box", {0, 0, 10, 10});
    for (int shown = 0; shown < 2; ++shown) {
        QGraphicsScene scene;
        screen->setGraphicsItem();
        scene.addItem(GraphicsItem::of(screen)->graphic());
        EXPECT_EQ(itemOf(element)->graphic()->scene(), &scene);
    }
    EXPECT_EQ(screen->graphicsItem(), nullptr);
    EXPECT_EQ(element->graphicsItem(), nullptr);

    QGraphicsScene left;
    screen->setGraphicsItem();
    left.addItem(GraphicsItem::of(screen)->graphic());
    screen->resetGraphicsItem(); // as when a screen is deleted
    QGraphicsScene next;
    screen->setGraphicsItem();
    next.addItem(GraphicsItem::of(screen)->graphic());
    EXPECT_EQ(itemOf(element)->graphic()->scene(), &next);
    EXPECT_EQ(stacking(), (QStringList{u"Main"_s, u"box"_s}));
}

TEST_F(GraphicsItemTest, ResizingARotatedItemKeepsTheOppositeCornerInPlace)
{
    constexpr struct
    {
        QQuickItem::TransformOrigin handle;
        QQuickItem::TransformOrigin opposite;
    } cases[] = {
        {QQuickItem::TopLeft, QQuickItem::BottomRight}, {QQuickItem::Top, QQuickItem::Bottom},
        {QQuickItem::TopRight, QQuickItem::BottomLeft}, {QQuickItem::Right, QQuickItem::Left},
        {QQuickItem::BottomRight, QQuickItem::TopLeft}, {QQuickItem::Bottom, QQuickItem::Top},
        {QQuickItem::BottomLeft, QQuickItem::TopRight}, {QQuickItem::Left, QQuickItem::Right},
    };
    DesignerObject *picture = add(screen, "Image", "picture", {50, 60, 100, 40});
    set(picture, "rotation", u"33"_s);
    set(picture, "scale", u"-150"_s);
    set(picture, "transformOrigin", u"TopRight"_s);
    screen->setGraphicsItem();
    FramedItem *item = itemOf(picture);
    for (const QString &keepRatio : {u"false"_s, u"true"_s}) {
        set(picture, "keepRatio", keepRatio);
        for (const auto &[handle, opposite] : cases) {
            item->readDataObject();
            const QPointF fixed = item->handlePoint(opposite);
            const FramePoint &point = FramePoint::of(handle);
            const QSizeF size = point.sizeAt(item->frame(), {-30, 55}, item->minSize());
            item->resizeByMouse(handle, size, point.topLeftAt(item->frame(), size));
            EXPECT_LT((item->handlePoint(opposite) - fixed).manhattanLength(), 1e-9)
                << handle << qPrintable(keepRatio);
            const QSizeF shown = item->frame().size();
            EXPECT_TRUE(shown != QSizeF(100, 40)) << handle;
            if (keepRatio == "true"_L1) {
                EXPECT_DOUBLE_EQ(shown.width() / shown.height(), 2.5) << handle;
                EXPECT_GE(std::min(shown.width(), shown.height()), item->minSize());
            } else {
                EXPECT_EQ(shown, size);
            }
        }
    }
}

TEST_F(GraphicsItemTest, AGroupResizesItsMembers)
{
    DesignerObject *group = add(screen, "GroupElement", "group", {100, 100, 0, 0});
    DesignerObject *left = add(group, "Rectangle", "left", {0, 0, 40, 20});
    DesignerObject *inner = add(group, "GroupElement", "inner", {60, 0, 0, 0});
    DesignerObject *right = add(inner, "Rectangle", "right", {0, 10, 40, 30});
    screen->setGraphicsItem();
    FramedItem *item = itemOf(group);
    EXPECT_EQ(item->frame(), QRectF(0, 0, 100, 40));

    const auto drag = [&](const QPointF &point) {
        const FramePoint &handle = FramePoint::of(QQuickItem::TopLeft);
        const QSizeF size = handle.sizeAt(item->frame(), item->graphic()->mapFromScene(point), 1);
        item->resizeByMouse(QQuickItem::TopLeft, size, handle.topLeftAt(item->frame(), size));
    };
    drag({190, 139});
    drag({0, 120}); // the way of the mouse
    EXPECT_EQ(corner(group, QQuickItem::BottomRight), QPointF(200, 140));
    EXPECT_EQ(corner(left, QQuickItem::TopLeft), QPointF(0, 120));
    EXPECT_EQ(itemOf(left)->frame().size(), QSizeF(80, 10));
    EXPECT_EQ(corner(right, QQuickItem::TopLeft), QPointF(120, 125));
    EXPECT_EQ(itemOf(right)->frame().size(), QSizeF(80, 15));

    item->readDataObject();
    EXPECT_EQ(itemOf(right)->frame().size(), QSizeF(40, 30));
    set(right, "rotation", u"45"_s);
    const double proportions = item->frame().width() / item->frame().height();
    drag({-300, 110});
    EXPECT_DOUBLE_EQ(item->frame().width() / item->frame().height(), proportions)
        << "what is turned cannot be stretched";
}

} // namespace Halvane::Corvex::Designer
