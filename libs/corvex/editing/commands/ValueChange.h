// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <QHash>

namespace Halvane::Corvex::Designer {

//! A value that one property gets instead of another.
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

/*! What properties will hold once all commands that a composite has so far have been done. A command that is
    built behind others in the same composite builds upon it. */
using PendingValues = QHash<const DesignerProperty *, QString>;

} // namespace Halvane::Corvex::Designer
