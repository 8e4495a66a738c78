// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QWidget>

#include <optional>

namespace Halvane::Corvex::Designer {

//! A ruler along the upper or the left edge of a view. Dragging from it makes a guide of the user's own.
class CORVEX_EXPORT Ruler : public QWidget
{
    Q_OBJECT

public:
    //! A horizontal ruler is above its view.
    explicit Ruler(Qt::Orientation orientation, QWidget *parent = nullptr);

    //! The position of 0 in pixels of this widget, and the number of pixels per unit.
    void setPlace(double origin, double scale);
    //! Marks the place of the mouse, in units; nothing for no mark.
    void setMark(std::optional<double> place);
    //! Highlights a range, in units, such as the place of the selection.
    void setRange(double from, double to);

    //! The distance between labelled lines, in units: 1, 2 or 5 times a power of ten.
    static double stepFor(double scale);
    static constexpr int thickness = 20; // device-independent pixels

    QSize sizeHint() const override;

signals:
    //! The user drags a guide out of the ruler; \a position is that of the mouse in global coordinates.
    void guideDragged(const QPoint &position);
    void guideDropped(const QPoint &position);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    double pixelOf(double place) const { return m_origin + place * m_scale; }

    Qt::Orientation m_orientation;
    double m_origin = 0;
    double m_scale = 1;
    std::optional<double> m_mark;
    double m_from = 0;
    double m_to = 0;
};

} // namespace Halvane::Corvex::Designer
