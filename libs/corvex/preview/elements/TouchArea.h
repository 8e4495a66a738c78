// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QQuickItem>

namespace Halvane::Corvex::Preview {

//! Covers a touchable element and follows its size, position and visibility.
class TouchArea : public QQuickItem
{
    Q_OBJECT

public:
    explicit TouchArea(QQuickItem *target);

signals:
    void pressed();
    //! The touch ended, or another item took it over.
    void released();
    //! Like released(), while still on the element.
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

//! The touch area over the element that a function element works with. It moves with that element and is
//! deleted with either of the two.
class TouchTarget
{
public:
    TouchTarget() = default;
    ~TouchTarget() { delete m_area; }
    Q_DISABLE_COPY_MOVE(TouchTarget)

    QQuickItem *item() const { return m_item; }
    void setItem(QQuickItem *item) { m_item = item; }
    //! Null if there is no item.
    TouchArea *makeArea();

private:
    QPointer<QQuickItem> m_item;
    QPointer<TouchArea> m_area;
};

} // namespace Halvane::Corvex::Preview
