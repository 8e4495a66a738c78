// SPDX-License-Identifier: MIT
#include "canvas/CanvasPage.h"

#include "corvex/editing/graphics/FramedItem.h"
#include "corvex/widgets/Ruler.h"

#include "canvas/CanvasGuides.h"
#include "canvas/CanvasView.h"
#include "project/Workspace.h"

#include <QGridLayout>

namespace Halvane::Corvex::Nova {

using namespace Designer;

CanvasPage::CanvasPage(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_view(new CanvasView(workspace))
    , m_horizontal(new Ruler(Qt::Horizontal))
    , m_vertical(new Ruler(Qt::Vertical))
    , m_corner(new QWidget)
{
    m_corner->setFixedSize(Ruler::thickness, Ruler::thickness);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(m_corner, 0, 0);
    grid->addWidget(m_horizontal, 0, 1);
    grid->addWidget(m_vertical, 1, 0);
    grid->addWidget(m_view, 1, 1);
    setFocusProxy(m_view);
    connect(m_view, &CanvasView::placeChanged, this, &CanvasPage::placeRulers);
    connect(m_view, &CanvasView::mouseMoved, this, [this](const std::optional<QPointF> &point) {
        m_horizontal->setMark(point ? std::optional(point->x()) : std::nullopt);
        m_vertical->setMark(point ? std::optional(point->y()) : std::nullopt);
    });
    for (const auto &[ruler, orientation] :
         {std::pair(m_horizontal, Qt::Horizontal), std::pair(m_vertical, Qt::Vertical)}) {
        const auto placeOf = [this](const QPoint &global) {
            return m_view->viewport()->mapFromGlobal(global);
        };
        connect(ruler, &Ruler::guideDragged, this, [this, placeOf, orientation](const QPoint &global) {
            m_view->guides().drag(orientation, placeOf(global));
        });
        connect(ruler, &Ruler::guideDropped, this,
                [this, placeOf](const QPoint &global) { m_view->guides().drop(placeOf(global)); });
    }
    connect(&workspace.document(), &ProjectDocument::selectionChanged, this, &CanvasPage::markSelection);
    connect(&workspace.document().history(), &ProjectHistory::changed, this, &CanvasPage::markSelection);
    placeRulers();
    markSelection();
}

void CanvasPage::setRulersVisible(bool visible)
{
    for (QWidget *widget :
         {static_cast<QWidget *>(m_horizontal), static_cast<QWidget *>(m_vertical), m_corner}) {
        widget->setVisible(visible);
    }
}

void CanvasPage::placeRulers()
{
    const QPointF origin = m_view->viewportTransform().map(m_view->screenArea().topLeft());
    m_horizontal->setPlace(origin.x(), m_view->scale());
    m_vertical->setPlace(origin.y(), m_view->scale());
}

void CanvasPage::markSelection()
{
    QRectF area;
    for (const DesignerObject *object : m_workspace.selectedElements()) {
        if (const FramedItem *item = FramedItem::of(object)) {
            area |= item->sceneArea();
        }
    }
    m_horizontal->setRange(area.left(), area.right());
    m_vertical->setRange(area.top(), area.bottom());
}

} // namespace Halvane::Corvex::Nova
