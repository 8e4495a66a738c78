// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/exchange/Exported.h"

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! The register list that an integrator asks for.
class CORVEX_EXPORT ModbusExport
{
public:
    /*! A table of all registers of \a project, a row each: the mapping variable, the kind of register, its
        address in the usual five digits and as it goes over the wire (from 0), whether a master may write it,
        its width in bits, type and scale on the wire, what it carries, and the type of that. */
    static Exported write(const DesignerObject &project);
};

} // namespace Halvane::Corvex::Designer
