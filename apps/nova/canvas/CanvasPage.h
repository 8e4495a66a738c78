// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Halvane::Corvex::Designer {
class Ruler;
}

namespace Halvane::Corvex::Nova {

class CanvasView;
class Workspace;

//! The canvas with its rulers.
class CanvasPage : public QWidget
{
    Q_OBJECT

public:
    //! The workspace must outlive the page.
    explicit CanvasPage(Workspace &workspace, QWidget *parent = nullptr);

    CanvasView &view() const { return *m_view; }
    void setRulersVisible(bool visible);

private:
    void placeRulers();
    void markSelection();

    Workspace &m_workspace;
    CanvasView *m_view;
    Designer::Ruler *m_horizontal;
    Designer::Ruler *m_vertical;
    QWidget *m_corner;
};

} // namespace Halvane::Corvex::Nova
