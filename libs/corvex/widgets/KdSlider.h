// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QSlider>

namespace Halvane::Corvex::Designer {

/*! A horizontal slider for a value that exists elsewhere. A press anywhere takes the handle there. It only
    reports what the user does; the owner shows the new value with setValue().
*/
class CORVEX_EXPORT KdSlider : public QSlider
{
    Q_OBJECT

public:
    explicit KdSlider(QWidget *parent = nullptr);

signals:
    void dragBegan();
    void dragged(int value);
    void dragEnded();
    //! The user has pressed Escape while dragging.
    void dragCancelled();
    //! The user has pressed an arrow key or turned the wheel.
    void stepRequested(double steps);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    int valueAt(int x) const;
};

} // namespace Halvane::Corvex::Designer
