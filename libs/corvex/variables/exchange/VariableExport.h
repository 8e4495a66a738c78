// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/exchange/Exported.h"

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Exports all variables as one table.
class CORVEX_EXPORT VariableExport
{
public:
    //! One row for each variable, in project order: "name", "class", then a column for each property that any
    //! variable has, with its text. A field is empty if the class lacks the property.
    static Exported write(const DesignerObject &project);
};

} // namespace Halvane::Corvex::Designer
