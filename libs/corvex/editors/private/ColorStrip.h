// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

namespace Halvane::Corvex::Designer {

//! A row of colors. One of them is selected; the arrow keys select another one and, with Alt, move it, and so
//! does the mouse.
class ColorStrip : public QWidget
{
    Q_OBJECT

public:
    explicit ColorStrip(QWidget *parent);

    //! Replaces the colors; the selected one is still in its place if there is such a place.
    void setColors(const QList<QColor> &colors);
    const QList<QColor> &colors() const { return m_colors; }
    //! -1 without colors.
    int selected() const { return m_selected; }
    void select(int index);
    //! Shown instead of colors.
    void setText(const QString &text);

    QSize sizeHint() const override;

signals:
    void selectionChanged();
    //! The user has moved a color, or removed the selected one.
    void changed();
    //! The user has pressed Escape.
    void restored();

public slots:
    void removeSelected();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QRectF cell(int index) const;
    int indexAt(double x) const;
    void moveSelected(int to);
    void refresh();

    QList<QColor> m_colors;
    QString m_text;
    int m_selected = -1;
    bool m_isMoved = false; //!< by the mouse, which has not been released yet
};

} // namespace Halvane::Corvex::Designer
