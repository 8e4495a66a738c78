// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QWidget>

namespace Halvane::Corvex::Designer {

class PropertyEditor;

//! The title of a row in a property panel. If the editor allows it, dragging the title changes the value:
//! with Shift in small steps, with Ctrl in large ones. Escape restores the value.
class RowTitle : public QWidget
{
    Q_OBJECT

public:
    RowTitle(PropertyEditor *editor, QWidget *parent);

    void setTitle(const QString &title, bool isChanged, bool isDimmed);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void endDrag(bool keep);

    PropertyEditor *m_editor;
    QString m_title;
    QPoint m_pressed;
    double m_rest = 0; //!< the part of a step that was not used yet
    int m_lastX = 0;
    bool m_isChanged = false;
    bool m_isDimmed = false;
    bool m_isPressed = false;
    bool m_isDragging = false;
};

} // namespace Halvane::Corvex::Designer
