// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/RuntimePropertyList.h"

namespace Halvane::Corvex::Elements {

//! \a properties and the "value" of a channel: what an input measures, what an output is set to.
Designer::RuntimePropertyList withValue(Designer::RuntimePropertyList properties,
                                        Common::EnumHelper::VariableType type,
                                        Common::EnumHelper::VariableAccessMode access);

} // namespace Halvane::Corvex::Elements
