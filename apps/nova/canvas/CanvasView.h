// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerObject.h"
#include "corvex/editing/graphics/CanvasScene.h"

#include <QGraphicsView>

#include <memory>
#include <optional>

namespace Halvane::Corvex::Nova {

class CanvasGuides;
class PasteboardShade;
class Workspace;

/*! The canvas of the current screen, with a pasteboard around it.

    The wheel scrolls, with Ctrl it zooms; the middle button, or the left one with the space key, drags the
    view. Arrow keys move the selection by 1, with Shift by 10. Elements beside the screen are dimmed.
*/
class CanvasView : public QGraphicsView
{
    Q_OBJECT

public:
    //! The workspace must outlive the view.
    explicit CanvasView(Workspace &workspace, QWidget *parent = nullptr);
    ~CanvasView() override;

    //! Null without a screen.
    Designer::CanvasScene *canvas() const { return m_scene.get(); }
    //! The area of the screen in scene coordinates; empty without a screen.
    QRectF screenArea() const;
    CanvasGuides &guides() const { return *m_guides; }
    //! The elements of the screen that are neither hidden nor locked, groups as a whole.
    QList<Designer::DesignerObject *> selectableObjects() const;

    //! 1 is the size on the device.
    double scale() const;
    //! Keeps the point of the scene at \a anchor, in viewport coordinates; without it, in the middle.
    void setScale(double scale, std::optional<QPoint> anchor = std::nullopt);
    //! Shows all of the area, with a margin, at most at twice its size.
    void fit(const QRectF &area);
    //! Also after each change of the window's size, until the user chooses another scale.
    void fitScreen();
    void fitSelection();

signals:
    //! The user wants the menu for what is selected. \a objects are those under the mouse, the uppermost
    //! first.
    void menuRequested(const QPoint &globalPosition, const QList<Designer::DesignerObject *> &objects);
    void scaleChanged(double scale);
    //! Another part of the scene is visible.
    void placeChanged();
    //! The mouse is at this point of the scene; nothing if it has left the view.
    void mouseMoved(const std::optional<QPointF> &point);

protected:
    bool event(QEvent *event) override;
    void drawBackground(QPainter *painter, const QRectF &area) override;
    void drawForeground(QPainter *painter, const QRectF &area) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent *event) override;

private:
    void showScreen();
    void updatePasteboard();
    void growPasteboard();
    void takeGuides();
    void takeSelection();
    void giveSelection();
    bool moveSelection(const QKeyEvent &event);
    bool isFreePlace(const QPoint &place) const;
    void setHand(bool on);

    Workspace &m_workspace;
    std::unique_ptr<Designer::CanvasScene> m_scene;
    CanvasGuides *m_guides;
    PasteboardShade *m_shade = nullptr; //!< owned by the scene
    QRectF m_used;                      //!< contains all elements
    std::optional<QPoint> m_dragged;    //!< the last place of the mouse that drags the view
    bool m_hasHand = false;             //!< the space key is down
    bool m_isSelecting = false;
    bool m_fits = true; //!< the screen fits the view, also after a change of its size
};

} // namespace Halvane::Corvex::Nova
