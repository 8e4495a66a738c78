// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

namespace Halvane::Corvex::Designer {

//! An area of a color picker in which the mouse and the arrow keys move a mark. The place of the mark is 0 to
//! 1 in both directions, from the top left.
class ColorField : public QWidget
{
    Q_OBJECT

public:
    enum Kind {
        HueAndSaturation, //!< a plane; the others are bars
        Value,
        Alpha
    };
    ColorField(Kind kind, QWidget *parent);

    //! Shows the color. \a hue is shown for colors that have none, such as gray.
    void setColor(const QColor &color, double hue);
    QPointF place() const { return m_place; }
    bool isDragging() const { return m_isDragging; }

    QSize sizeHint() const override;

signals:
    //! The user has dragged the mark; between dragBegan() and dragEnded() or dragCancelled().
    void dragged();
    void dragBegan();
    void dragEnded();
    void dragCancelled();
    //! The user has moved the mark by a step of a key or of the wheel.
    void stepped();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QRectF area() const;
    void refresh();
    void moveTo(const QPointF &point);
    void step(double right, double down);
    QBrush fill() const;

    Kind m_kind;
    QColor m_color = Qt::black;
    double m_hue = 0;
    QPointF m_place;
    bool m_isDragging = false;
};

} // namespace Halvane::Corvex::Designer
