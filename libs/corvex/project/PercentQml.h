// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! QML of a real property that is per cent in the model and a fraction at run time: "opacity: 0.5".
CORVEX_EXPORT QString percentToQml(const DesignerProperty *property, int indent);

} // namespace Halvane::Corvex::Designer
