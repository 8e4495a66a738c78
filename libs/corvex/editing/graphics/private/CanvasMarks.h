// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/graphics/SnapLines.h"

#include <QGraphicsItem>

namespace Halvane::Corvex::Designer {

//! Lines and figures above all items: guides while something snaps, and measured distances.
class CanvasMarks : public QGraphicsItem
{
public:
    CanvasMarks();

    //! \a pixel is the size of a pixel of the view in scene coordinates. Figures have the same size at every
    //! scale.
    void show(const SnapMarks &marks, double pixel);
    const SnapMarks &marks() const { return m_marks; }

    QRectF boundingRect() const override { return {}; }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override { }

private:
    class Mark;

    SnapMarks m_marks;
    double m_pixel = 1;
    //! An item for each line: one for all would repaint everything between them.
    QList<Mark *> m_items;
};

} // namespace Halvane::Corvex::Designer
