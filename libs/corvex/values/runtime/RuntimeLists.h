// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/runtime/RuntimeAutoSettingProperty.h"
#include "corvex/values/runtime/RuntimeProperty.h"
#include "corvex/values/runtime/RuntimeRecordList.h"

namespace Halvane::Corvex::Designer {

//! The properties of an element that the device can access at run time.
using RuntimePropertyList = RuntimeRecordList<RuntimeProperty>;

extern template class CORVEX_EXPORT RuntimeRecordList<RuntimeProperty>;

//! The properties of an element whose values an auto-setting variable saves and restores.
using RuntimeAutoSettingList = RuntimeRecordList<RuntimeAutoSettingProperty>;

extern template class CORVEX_EXPORT RuntimeRecordList<RuntimeAutoSettingProperty>;

} // namespace Halvane::Corvex::Designer
