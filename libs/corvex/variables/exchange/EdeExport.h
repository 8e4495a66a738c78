// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/exchange/Exported.h"

#include <QDate>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! The BACnet objects as a set of EDE files, layout 2.3 of the B.I.G.-EU: the objects, and the texts for
//! their types, states and units.
class CORVEX_EXPORT EdeExport
{
public:
    /*! The panel, which is the first local device, and its objects; what their properties say where it is
        constant, and the start value of a variable. \a lastChange of the project is noted in the first file.
     */
    static Exported write(const DesignerObject &project, const QDate &lastChange);
};

} // namespace Halvane::Corvex::Designer
