// SPDX-License-Identifier: MIT
#pragma once

#include <QGradient>
#include <QWidget>

namespace Halvane::Corvex::Designer {

/*! A gradient with its stops beneath it. Stops are dragged, added by a double click, and removed by dragging
    them away. By keys: Up and Down select, Left and Right move, Insert adds, Delete removes.

    Positions are whole hundredths, and no two stops have the same one.
*/
class GradientBar : public QWidget
{
    Q_OBJECT

public:
    explicit GradientBar(QWidget *parent);

    void setStops(const QGradientStops &stops);
    //! Ordered by position.
    const QGradientStops &stops() const { return m_stops; }
    //! -1 without stops.
    int selected() const { return m_selected; }
    void setText(const QString &text);
    //! To the next free place at least that far, with the signal of a step.
    void moveSelectedBy(double hundredths);

    QSize sizeHint() const override;

signals:
    void selectionChanged();
    //! A stop was added or removed.
    void changed();
    //! The selected stop was moved by a key.
    void stepped();
    void dragBegan();
    void dragged();
    void dragEnded();
    void dragCancelled();
    //! The user has pressed Escape.
    void restored();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QRectF bar() const;
    double xOf(double position) const;
    double positionAt(double x) const;
    bool isFree(double position) const;
    int stopAt(const QPointF &point) const;
    QColor colorAt(double position) const;
    void select(int index);
    void refresh();
    void insert(const QGradientStop &stop);
    void add(double position);
    void removeSelected();
    bool moveSelected(double position);

    QGradientStops m_stops;
    QString m_text;
    QGradientStop m_away; //!< the stop that is dragged out of the bar
    int m_selected = -1;
    bool m_isPressed = false;
    bool m_isDragging = false;
    bool m_isAway = false;
};

} // namespace Halvane::Corvex::Designer
