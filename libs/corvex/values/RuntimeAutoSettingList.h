// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/RuntimeAutoSettingProperty.h"
#include "corvex/values/RuntimeRecordList.h"

namespace Halvane::Corvex::Designer {

//! The properties of an element whose values an auto-setting variable saves and restores.
using RuntimeAutoSettingList = RuntimeRecordList<RuntimeAutoSettingProperty>;

extern template class RuntimeRecordList<RuntimeAutoSettingProperty>;

} // namespace Halvane::Corvex::Designer
