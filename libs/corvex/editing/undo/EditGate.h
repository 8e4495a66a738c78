// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! Decides when the model of an UndoStack may be written to, for programs whose other threads read it.
class CORVEX_EXPORT EditGate
{
public:
    virtual ~EditGate() = default;

    //! Called before each edit, and before a value is tried on a property. May stop the readers. If it
    //! returns false, nothing happens, and \a reason tells the user why.
    virtual bool mayEdit(QString &reason) = 0;
    //! Whether objects may be validated now, which stores the outcome in them. Never stops a reader.
    virtual bool mayValidate() const = 0;
};

} // namespace Halvane::Corvex::Designer
