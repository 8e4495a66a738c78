// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/exchange/Exported.h"

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! All variables as one table.
class CORVEX_EXPORT VariableExport
{
public:
    /*! A row for each variable, in the order of the project: "name", "class", then a column for each property
        that any of them has, with its text. A field is empty where the class has no such property. */
    static Exported write(const DesignerObject &project);
};

} // namespace Halvane::Corvex::Designer
