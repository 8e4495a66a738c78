// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QWidget>

namespace Halvane::Corvex::Designer {

//! The eight data bytes of a CAN message, one row each, with the bits of its parameters in colors. Bits that
//! several parameters use are red.
class CanBitsView : public QWidget
{
    Q_OBJECT

public:
    struct Part
    {
        QString name;
        int start = 0;  //!< the lowest bit, from 0
        int length = 0; //!< in bits
    };

    using QWidget::QWidget;

    void setParts(const QList<Part> &parts);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    QRect bitRect(int bit) const;
    //! The parts that use the bit.
    QList<int> partsAt(int bit) const;

    QList<Part> m_parts;
};

} // namespace Halvane::Corvex::Designer
