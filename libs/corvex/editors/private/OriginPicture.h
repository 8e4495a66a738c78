// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Halvane::Corvex::Designer {

//! A picture of a rectangle with nine points: its corners, the middles of its sides, and its center. Points
//! have the numbers 0 to 8, by rows.
class OriginPicture : public QWidget
{
    Q_OBJECT

public:
    explicit OriginPicture(QWidget *parent);

    //! -1 marks no point.
    void setPoint(int point);
    QSize sizeHint() const override;
    //! The middle of a point.
    QPoint placeOf(int point) const;

signals:
    void clicked(int point);
    //! The user has gone to the point with an arrow key.
    void stepped(int point);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int m_point = -1;
};

} // namespace Halvane::Corvex::Designer
