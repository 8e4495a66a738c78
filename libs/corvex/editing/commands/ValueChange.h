// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <QHash>

namespace Halvane::Corvex::Designer {

//! A change of a property's value.
struct CORVEX_EXPORT ValueChange
{
    SharedProperty property;
    QString before;
    QString after;

    //! False if the model refused the value.
    bool redo() const { return set(property, after); }
    bool undo() const { return set(property, before); }

    static bool set(const SharedProperty &property, const QString &value);
};

//! The values of properties after all commands that a composite has so far. Later commands of the composite
//! are planned with these values.
using PendingValues = QHash<const DesignerProperty *, QString>;

} // namespace Halvane::Corvex::Designer
