// SPDX-License-Identifier: MIT
// One frame while the mouse drags one of 2,000 rectangles: the mouse moves, and the view paints what changed.
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/graphics/CanvasScene.h"
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

//! Spread over the view, each overlapping some others.
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
        // To and fro, over the items around.
        point.rx() += ++step / 50 % 2 == 0 ? 2 : -2;
        send(view, QEvent::MouseMove, point);
        QApplication::processEvents();
    }
    send(view, QEvent::MouseButtonRelease, point);
}

void dragOnCanvas(benchmark::State &state)
{
    const std::unique_ptr<Project> project = makeProject();
    DesignerObject *screen = DesignerFactory::instance()->createObject(u"Screen"_s, project.get());
    screen->setParent(nullptr);
    project->addListPropertyItem(project->screens(), screen);
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
    CanvasScene scene(static_cast<Screen *>(screen));
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

} // namespace
