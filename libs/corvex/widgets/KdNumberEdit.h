// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/widgets/KdLineEdit.h"

namespace Halvane::Corvex::Designer {

/*! A line for a number, with its unit in the field. The arrow keys and the wheel ask for steps: with Shift
   for small ones, with Ctrl for large ones. The owner evaluates what the user has typed, for example with
    Arithmetic, and changes the number.
*/
class CORVEX_EXPORT KdNumberEdit : public KdLineEdit
{
    Q_OBJECT

public:
    explicit KdNumberEdit(QWidget *parent = nullptr);

    //! Shown at the end of the field, in muted color.
    void setUnit(const QString &unit);
    const QString &unit() const { return m_unit; }
    //! A letter or a sign in front of the number, in muted color, such as "X".
    void setSign(const QString &sign);
    //! Without steps, the arrow keys and the wheel do nothing.
    void setHasSteps(bool hasSteps) { m_hasSteps = hasSteps; }

    //! By how much the pressed keys multiply a step.
    static double stepFactor(Qt::KeyboardModifiers modifiers);
    //! The steps of a turn of the wheel.
    static double stepsOf(const QWheelEvent &event);

signals:
    //! The user wants to change the number by that many steps.
    void stepRequested(double steps);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateMargins();

    QString m_unit;
    QString m_sign;
    bool m_hasSteps = true;
};

} // namespace Halvane::Corvex::Designer
