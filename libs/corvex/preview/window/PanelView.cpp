// SPDX-License-Identifier: MIT
#include "corvex/preview/window/PanelView.h"

#include "corvex/preview/PreviewSession.h"

#include <QQuickWidget>
#include <QQuickWindow>

namespace Halvane::Corvex::Preview {

PanelView::PanelView(QWidget *parent)
    : QScrollArea(parent)
    , m_panel(new QQuickWidget)
{
    setWidget(m_panel);
    setAlignment(Qt::AlignCenter);
    setBackgroundRole(QPalette::Dark);
    connect(m_panel->quickWindow(), &QQuickWindow::afterRendering, this, &PanelView::drawn);
}

void PanelView::setSession(PreviewSession *session)
{
    m_session = session;
    if (!session) {
        return;
    }
    QQuickItem *frame = session->frame();
    frame->setParentItem(m_panel->quickWindow()->contentItem());
    frame->setTransformOrigin(QQuickItem::TopLeft);
    connect(frame, &QQuickItem::widthChanged, this, &PanelView::follow);
    connect(frame, &QQuickItem::heightChanged, this, &PanelView::follow);
    follow();
}

void PanelView::setZoom(double factor)
{
    m_zoom = factor;
    follow();
}

void PanelView::follow()
{
    m_session->frame()->setScale(m_zoom);
    m_panel->setFixedSize((m_session->frame()->size() * m_zoom).toSize().expandedTo(QSize(1, 1)));
}

} // namespace Halvane::Corvex::Preview
