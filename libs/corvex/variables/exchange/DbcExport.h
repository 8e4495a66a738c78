// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/exchange/Exported.h"

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Exports the J1939 groups as a CAN database.
class CORVEX_EXPORT DbcExport
{
public:
    /*! One message for each CAN identifier, named after the first variable with that identifier, with one
        signal for each SPN; a comment names the signal's variable. Attributes mark the frames as J1939 and
        give the SPNs. The file is in Latin-1, as usual for this format; other characters, and quotes, are
        removed from units.
    */
    static Exported write(const DesignerObject &project);
};

} // namespace Halvane::Corvex::Designer
