// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/exchange/Exported.h"

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! The J1939 groups as a CAN database.
class CORVEX_EXPORT DbcExport
{
public:
    /*! A message for each CAN identifier, named by the first variable that has it, with a signal for each
        SPN, which a comment gives its variable. Attributes mark the frames as J1939 and tell the SPNs. The
        file is in Latin-1, as these files are; units lose characters that it has not, and quotes. */
    static Exported write(const DesignerObject &project);
};

} // namespace Halvane::Corvex::Designer
