// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

class QQuickWidget;

namespace Halvane::Corvex::Preview {

class PreviewSession;

//! The panel, in its real size in pixels or scaled.
class PanelView : public QScrollArea
{
    Q_OBJECT

public:
    explicit PanelView(QWidget *parent = nullptr);

    //! The session must outlive the view, or be replaced before it is deleted.
    void setSession(PreviewSession *session);
    void setZoom(double factor);

signals:
    void drawn();

private:
    void follow();

    PreviewSession *m_session = nullptr;
    QQuickWidget *m_panel;
    double m_zoom = 1;
};

} // namespace Halvane::Corvex::Preview
