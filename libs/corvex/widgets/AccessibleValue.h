// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QAccessible>

class QWidget;

namespace Halvane::Corvex::Designer {

//! The value of a widget in words for screen readers, where Qt does not know it or passes it as the name.
class CORVEX_EXPORT AccessibleValue
{
public:
    //! Call it in the constructor of the widget first, so that screen readers know of the value.
    static void set(QWidget *widget, const QString &words, QAccessible::Role role = QAccessible::Graphic);
};

} // namespace Halvane::Corvex::Designer
