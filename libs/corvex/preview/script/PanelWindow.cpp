// SPDX-License-Identifier: MIT
#include "corvex/preview/script/PanelWindow.h"

#include "corvex/preview/PreviewSession.h"
#include "corvex/preview/elements/TouchArea.h"

#include <QCoreApplication>
#include <QMouseEvent>

namespace Halvane::Corvex::Preview {

PanelWindow::PanelWindow(PreviewSession &session)
    : m_session(session)
{
    m_session.frame()->setParentItem(m_window.contentItem());
    const auto follow = [this] {
        m_window.resize(m_session.frame()->size().toSize().expandedTo(QSize(1, 1)));
    };
    QObject::connect(m_session.frame(), &QQuickItem::widthChanged, &m_window, follow);
    QObject::connect(m_session.frame(), &QQuickItem::heightChanged, &m_window, follow);
    follow();
}

QImage PanelWindow::picture()
{
    m_session.settle();
    return m_window.grabWindow();
}

void PanelWindow::send(QEvent::Type type)
{
    const bool isDown = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, m_point, m_point, Qt::LeftButton, isDown ? Qt::LeftButton : Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&m_window, &event);
}

QQuickItem *PanelWindow::touch(const QPointF &point)
{
    m_point = point;
    send(QEvent::MouseButtonPress);
    auto *area = qobject_cast<TouchArea *>(m_window.mouseGrabberItem());
    return area ? area->parentItem() : nullptr;
}

void PanelWindow::letGo()
{
    send(QEvent::MouseButtonRelease);
}

} // namespace Halvane::Corvex::Preview
