// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QComboBox>

namespace Halvane::Corvex::Designer {

//! The scale of a view: usual scales to choose from, or any percentage that the user types.
class CORVEX_EXPORT ZoomBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ZoomBox(QWidget *parent = nullptr);

    //! 1 is the original size. Emits nothing.
    void setScale(double scale);
    double scale() const { return m_scale; }

    //! The next usual scale above or below.
    static double larger(double scale);
    static double smaller(double scale);
    static constexpr double smallest = 0.05;
    static constexpr double largest = 32;

signals:
    void scaleRequested(double scale);
    //! The user wants to see everything.
    void fitRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void enter(const QString &text);

    double m_scale = 1;
};

} // namespace Halvane::Corvex::Designer
