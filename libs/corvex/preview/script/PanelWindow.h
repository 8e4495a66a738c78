// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QQuickWindow>

namespace Halvane::Corvex::Preview {

class PreviewSession;

//! The panel in an invisible window, for touches and pictures.
class PanelWindow
{
public:
    explicit PanelWindow(PreviewSession &session);

    //! In screen pixels.
    QImage picture();
    //! Returns the element that receives the touch; null if none does.
    QQuickItem *touch(const QPointF &point);
    void letGo();

private:
    void send(QEvent::Type type);

    PreviewSession &m_session;
    QQuickWindow m_window;
    QPointF m_point;
};

} // namespace Halvane::Corvex::Preview
