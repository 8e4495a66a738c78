// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QQuickWindow>

namespace Halvane::Corvex::Preview {

class PreviewSession;

//! The panel in a window that is never shown: to be touched, and to take pictures of.
class PanelWindow
{
public:
    explicit PanelWindow(PreviewSession &session);

    //! In the pixels of the screen.
    QImage picture();
    //! Gives the element that takes it; null when nothing there does.
    QQuickItem *touch(const QPointF &point);
    void letGo();

private:
    void send(QEvent::Type type);

    PreviewSession &m_session;
    QQuickWindow m_window;
    QPointF m_point;
};

} // namespace Halvane::Corvex::Preview
