// SPDX-License-Identifier: MIT
// The canvas with 2,000 rectangles: one frame of dragging one of them, in which the mouse moves and the view
// repaints what changed; and selecting and moving all of them.
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/graphics/CanvasScene.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include "support/Projects.h"

#include <QApplication>
#include <QGraphicsRectItem>
#include <QGraphicsView>
#include <QMouseEvent>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Benchmarks;
using namespace Halvane::Corvex::Designer;

namespace {

constexpr int itemCount = 2000;
constexpr QSize viewSize(1000, 800);
constexpr int dragged = itemCount / 2;

//! Distributed over the view, each overlapping some others.
QRectF place(int item)
{
    const int column = item % 50;
    const int row = item / 50;
    return {column * 19.0, row * 19.0, 20.0 + item % 7 * 4, 20.0 + item % 5 * 4};
}

void send(QGraphicsView &view, QEvent::Type type, const QPoint &point)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, point, view.viewport()->mapToGlobal(point), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &event);
}

void measureDragging(benchmark::State &state, QGraphicsScene &scene)
{
    QGraphicsView view(&scene);
    view.setFrameShape(QFrame::NoFrame);
    view.setSceneRect(QRectF(QPointF(), viewSize));
    view.resize(viewSize);
    view.show();
    QPoint point = view.mapFromScene(place(dragged).center());
    send(view, QEvent::MouseButtonPress, point);
    QApplication::processEvents();
    int step = 0;
    for (auto _ : state) {
        // Back and forth over the neighbouring items.
        point.rx() += ++step / 50 % 2 == 0 ? 2 : -2;
        send(view, QEvent::MouseMove, point);
        QApplication::processEvents();
    }
    send(view, QEvent::MouseButtonRelease, point);
}

Screen *fillScreen(Project &project)
{
    DesignerObject *screen = DesignerFactory::instance()->createObject(u"Screen"_s, &project);
    screen->setParent(nullptr);
    project.addListPropertyItem(project.screens(), screen);
    const SharedProperty elements = screen->getProperty(u"elements");
    for (int i = 0; i < itemCount; ++i) {
        DesignerObject *element = DesignerFactory::instance()->createObject(u"Rectangle"_s, screen);
        element->setParent(nullptr);
        element->setIdName(u"rectangle%1"_s.arg(i));
        const QRectF rect = place(i);
        const auto set = [&](const char *id, const QString &value) {
            element->changePropertyValue(element->getProperty(QString::fromLatin1(id)), value);
        };
        set("position", u"x: %1; y: %2;"_s.arg(rect.x()).arg(rect.y()));
        set("size", u"height: %1; width: %2;"_s.arg(rect.height()).arg(rect.width()));
        screen->addListPropertyItem(elements, element);
    }
    return static_cast<Screen *>(screen);
}

void dragOnCanvas(benchmark::State &state)
{
    const std::unique_ptr<Project> project = makeProject();
    CanvasScene scene(fillScreen(*project));
    scene.setSnapping(SnapGuides());
    measureDragging(state, scene);
}
BENCHMARK(dragOnCanvas)->Name("drag/canvas");

void dragOnBareScene(benchmark::State &state)
{
    QGraphicsScene scene;
    for (int i = 0; i < itemCount; ++i) {
        QGraphicsRectItem *item =
            scene.addRect(QRectF(QPointF(), place(i).size()), QPen(Qt::black, 1), Qt::white);
        item->setPos(place(i).topLeft());
        item->setFlag(QGraphicsItem::ItemIsMovable);
    }
    measureDragging(state, scene);
}
BENCHMARK(dragOnBareScene)->Name("drag/QGraphicsScene");

//! With the mouse, like a user: a selection rectangle around everything, a drag, an undo.
void moveAllOnCanvas(benchmark::State &state)
{
    const std::unique_ptr<Project> project = makeProject();
    Screen *screen = fillScreen(*project);
    CanvasScene scene(screen);
    QGraphicsView view(&scene);
    view.setSceneRect(QRectF(QPointF(), viewSize));
    view.resize(viewSize);
    const auto drag = [&](const QPointF &from, const QPointF &to) {
        const auto at = [&view](const QPointF &point) { return view.mapFromScene(point); };
        send(view, QEvent::MouseButtonPress, at(from));
        send(view, QEvent::MouseMove, at(to));
        send(view, QEvent::MouseButtonRelease, at(to));
    };
    for (auto _ : state) {
        drag({990, 790}, {0, 0});
        drag(place(dragged).center(), place(dragged).center() + QPointF(40, 20));
        project->undoStack()->undo();
        QApplication::processEvents();
        state.PauseTiming();
        if (scene.selectedObjects().size() != itemCount || project->undoStack()->count() != 1) {
            state.SkipWithError("not all elements were selected and moved");
        }
        project->createUndoStack();
        scene.clearSelection();
        state.ResumeTiming();
    }
}
BENCHMARK(moveAllOnCanvas)->Name("move/canvas")->Unit(benchmark::kMillisecond);

void moveAllInModel(benchmark::State &state)
{
    const std::unique_ptr<Project> project = makeProject();
    Screen *screen = fillScreen(*project);
    const CanvasScene scene(screen);
    const QList<DesignerObject *> elements = screen->elements()->listItems();
    double way = 0;
    for (auto _ : state) {
        way = way > 0 ? 0 : 20;
        for (int i = 0; i < itemCount; ++i) {
            DesignerObject *element = elements.at(i);
            element->changePropertyValue(element->getProperty(u"position"),
                                         u"x: %1; y: %2;"_s.arg(place(i).x() + way).arg(place(i).y() + way));
        }
    }
}
BENCHMARK(moveAllInModel)->Name("move/changePropertyValue")->Unit(benchmark::kMillisecond);

} // namespace
