// SPDX-License-Identifier: MIT
#include "canvas/CanvasGuides.h"

#include "corvex/project/Screen.h"

#include "canvas/CanvasView.h"
#include "project/Workspace.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Halvane::Corvex::Nova {

using namespace Designer;

namespace {

constexpr QColor guideColor(0, 150, 199);
constexpr QColor gridColor(128, 128, 128, 70);
constexpr double reach = 3;         // pixels
constexpr double leastGridStep = 5; // pixels; lines that are closer only make the screen gray

QList<double> &placesIn(SnapGuides &guides, Qt::Orientation orientation)
{
    return orientation == Qt::Horizontal ? guides.horizontal : guides.vertical;
}

} // namespace

CanvasGuides::CanvasGuides(CanvasView &view, Workspace &workspace)
    : QObject(&view)
    , m_view(view)
    , m_workspace(workspace)
{ }

void CanvasGuides::paint(QPainter &painter, const QRectF &area) const
{
    SnapGuides guides = m_workspace.view().guidesOf(m_workspace.screen());
    const QRectF gridArea = area.intersected(m_view.screenArea());
    if (guides.grid > 0 && guides.grid * m_view.scale() >= leastGridStep && !gridArea.isEmpty()) {
        QList<QLineF> lines;
        const auto first = [&guides](double from) { return std::ceil(from / guides.grid) * guides.grid; };
        for (double x = first(gridArea.left()); x <= gridArea.right(); x += guides.grid) {
            lines.append({x, gridArea.top(), x, gridArea.bottom()});
        }
        for (double y = first(gridArea.top()); y <= gridArea.bottom(); y += guides.grid) {
            lines.append({gridArea.left(), y, gridArea.right(), y});
        }
        painter.setPen(QPen(gridColor, 0));
        painter.drawLines(lines);
    }
    if (m_dragged) {
        QList<double> &places = placesIn(guides, m_dragged->orientation);
        if (m_dragged->origin) {
            places.removeOne(*m_dragged->origin);
        }
        places.append(m_dragged->place);
    }
    painter.setPen(QPen(guideColor, 0));
    for (const double x : std::as_const(guides.vertical)) {
        painter.drawLine(QLineF(x, area.top(), x, area.bottom()));
    }
    for (const double y : std::as_const(guides.horizontal)) {
        painter.drawLine(QLineF(area.left(), y, area.right(), y));
    }
}

double CanvasGuides::sceneAt(Qt::Orientation orientation, const QPoint &place) const
{
    const QPointF point = m_view.viewportTransform().inverted().map(QPointF(place));
    return std::round(orientation == Qt::Horizontal ? point.y() : point.x());
}

std::optional<CanvasGuides::Dragged> CanvasGuides::guideAt(const QPoint &place) const
{
    SnapGuides guides = m_workspace.view().guidesOf(m_workspace.screen());
    const QPointF point = m_view.viewportTransform().inverted().map(QPointF(place));
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        const double mouse = orientation == Qt::Horizontal ? point.y() : point.x();
        for (const double guide : std::as_const(placesIn(guides, orientation))) {
            if (std::abs(guide - mouse) * m_view.scale() <= reach) {
                return Dragged{orientation, guide, guide};
            }
        }
    }
    return std::nullopt;
}

std::optional<Qt::Orientation> CanvasGuides::orientationAt(const QPoint &place) const
{
    const std::optional<Dragged> guide = guideAt(place);
    return guide ? std::optional(guide->orientation) : std::nullopt;
}

bool CanvasGuides::start(const QPoint &place)
{
    m_dragged = guideAt(place);
    return isDragging();
}

void CanvasGuides::drag(Qt::Orientation orientation, const QPoint &place)
{
    if (!m_dragged && m_workspace.screen()) {
        m_dragged = Dragged{orientation, std::nullopt, 0};
    }
    moveTo(place);
}

void CanvasGuides::moveTo(const QPoint &place)
{
    if (m_dragged) {
        m_dragged->place = sceneAt(m_dragged->orientation, place);
        m_view.viewport()->update();
    }
}

void CanvasGuides::drop(const QPoint &place)
{
    if (!m_dragged) {
        return;
    }
    moveTo(place);
    const Dragged dragged = *std::exchange(m_dragged, std::nullopt);
    SnapGuides guides = m_workspace.view().guidesOf(m_workspace.screen());
    QList<double> &places = placesIn(guides, dragged.orientation);
    if (dragged.origin) {
        places.removeOne(*dragged.origin);
    }
    if (m_view.viewport()->rect().contains(place) && !places.contains(dragged.place)) {
        places.append(dragged.place);
    }
    m_workspace.view().setGuides(m_workspace.screen(), guides);
}

void CanvasGuides::cancel()
{
    m_dragged.reset();
    m_view.viewport()->update();
}

} // namespace Halvane::Corvex::Nova
