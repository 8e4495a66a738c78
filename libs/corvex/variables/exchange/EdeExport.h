// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/exchange/Exported.h"

#include <QDate>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Exports the BACnet objects as a set of EDE files, layout 2.3 of the B.I.G.-EU: the objects, and the texts
//! for their types, states and units.
class CORVEX_EXPORT EdeExport
{
public:
    //! Writes the panel, which is the first local device, and its objects, with their constant properties and
    //! the initial values of variables. The first file contains the date \a lastChange of the project.
    static Exported write(const DesignerObject &project, const QDate &lastChange);
};

} // namespace Halvane::Corvex::Designer
