// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QObject>

class QWidget;

namespace Halvane::Corvex::Designer {

//! Gives the wheel to the scroll area around a field while the field does not have the focus, so that
//! scrolling over a panel changes no values.
class CORVEX_EXPORT WheelGuard : public QObject
{
public:
    //! Guards the field for its lifetime. The field then gets the focus by keys and clicks, not by the wheel.
    static void protect(QWidget *field);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;
};

} // namespace Halvane::Corvex::Designer
