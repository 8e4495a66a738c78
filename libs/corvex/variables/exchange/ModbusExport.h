// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/exchange/Exported.h"

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Exports the register list for the integrator of the plant.
class CORVEX_EXPORT ModbusExport
{
public:
    //! A table of all registers of \a project, one row each: the mapping variable, the kind of register, its
    //! address in the usual five digits and as sent over the wire (from 0), whether a master may write it,
    //! its width in bits, type and scale on the wire, its source, and the type of the source.
    static Exported write(const DesignerObject &project);
};

} // namespace Halvane::Corvex::Designer
