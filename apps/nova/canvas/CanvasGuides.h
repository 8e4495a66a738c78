// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>

#include <optional>

class QPainter;

namespace Halvane::Corvex::Nova {

class CanvasView;
class Workspace;

//! The user's own guides on the canvas. They are dragged out of a ruler, and deleted by dragging them back.
//! Also draws the grid.
class CanvasGuides : public QObject
{
    Q_OBJECT

public:
    //! Both must outlive this object.
    CanvasGuides(CanvasView &view, Workspace &workspace);

    //! In scene coordinates.
    void paint(QPainter &painter, const QRectF &area) const;

    // Places are in coordinates of the viewport. A horizontal guide has a y.
    //! Whether a guide is at that place.
    std::optional<Qt::Orientation> orientationAt(const QPoint &place) const;
    //! Starts dragging the guide at that place; false if there is none.
    bool start(const QPoint &place);
    //! Starts with a new guide unless one is being dragged.
    void drag(Qt::Orientation orientation, const QPoint &place);
    bool isDragging() const { return m_dragged.has_value(); }
    void moveTo(const QPoint &place);
    //! Outside of the view the guide is deleted.
    void drop(const QPoint &place);
    void cancel();

private:
    struct Dragged
    {
        Qt::Orientation orientation;
        std::optional<double> origin; //!< nothing for a new guide
        double place;
    };
    std::optional<Dragged> guideAt(const QPoint &place) const;
    double sceneAt(Qt::Orientation orientation, const QPoint &place) const;

    CanvasView &m_view;
    Workspace &m_workspace;
    std::optional<Dragged> m_dragged;
};

} // namespace Halvane::Corvex::Nova
