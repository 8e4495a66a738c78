// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QAbstractButton>
#include <QColor>

namespace Halvane::Corvex::Designer {

//! A button that shows a color, on a chessboard if the color is transparent.
class CORVEX_EXPORT ColorSwatch : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ColorSwatch(QWidget *parent = nullptr);

    //! An invalid color stands for colors that differ.
    void setColor(const QColor &color);
    const QColor &color() const { return m_color; }

    QSize sizeHint() const override;
    //! Draws the color into the rectangle, with a frame.
    static void draw(QPainter &painter, const QRectF &rect, const QColor &color, const QPalette &palette);
    //! The chessboard beneath transparent colors.
    static QBrush chessboard();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color;
};

} // namespace Halvane::Corvex::Designer
