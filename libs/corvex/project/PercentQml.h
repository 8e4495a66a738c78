// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

namespace Halvane::Corvex::Designer {

class DesignerProperty;
class QmlBindings;

//! The QML of a real property that is a percentage in the model and a fraction at run time: "opacity: 0.5".
CORVEX_EXPORT QmlBindings percentToQml(const DesignerProperty *property);

} // namespace Halvane::Corvex::Designer
