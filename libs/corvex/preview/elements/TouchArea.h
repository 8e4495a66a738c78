// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QQuickItem>

namespace Halvane::Corvex::Preview {

//! Lies over an element that can be pressed, and follows its size, place and visibility.
class TouchArea : public QQuickItem
{
    Q_OBJECT

public:
    explicit TouchArea(QQuickItem *target);

signals:
    void pressed();
    //! The finger has left the glass, or something else has taken it over.
    void released();
    //! As released, with the finger still on the element.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;

private:
    void release();
    void follow();

    QQuickItem *m_target;
    bool m_isPressed = false;
};

/*! The area over the element that a function element works with. It goes where the element goes, and away
   with either of the two. */
class TouchTarget
{
public:
    TouchTarget() = default;
    ~TouchTarget() { delete m_area; }
    Q_DISABLE_COPY_MOVE(TouchTarget)

    QQuickItem *item() const { return m_item; }
    void setItem(QQuickItem *item) { m_item = item; }
    //! Null without an item.
    TouchArea *makeArea();

private:
    QPointer<QQuickItem> m_item;
    QPointer<TouchArea> m_area;
};

} // namespace Halvane::Corvex::Preview
