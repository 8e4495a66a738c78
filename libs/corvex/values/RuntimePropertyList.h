// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/RuntimeProperty.h"
#include "corvex/values/RuntimeRecordList.h"

namespace Halvane::Corvex::Designer {

//! The properties of an element that the device can reach while it runs.
using RuntimePropertyList = RuntimeRecordList<RuntimeProperty>;

extern template class RuntimeRecordList<RuntimeProperty>;

} // namespace Halvane::Corvex::Designer
