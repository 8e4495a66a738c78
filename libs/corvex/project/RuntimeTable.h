// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/runtime/RuntimeLists.h"

namespace Halvane::Corvex::Designer {

//! One row of a class's table of runtime properties; texts are English and translated when the list is made.
struct CORVEX_EXPORT RuntimeRow
{
    const char *property;
    const char *displayName;
    Common::EnumHelper::VariableType type;
    Common::EnumHelper::VariableAccessMode access;
    const char *description = "";
};

CORVEX_EXPORT RuntimePropertyList toRuntimeProperties(const RuntimeRow *begin, const RuntimeRow *end);

template<size_t count>
RuntimePropertyList toRuntimeProperties(const RuntimeRow (&rows)[count])
{
    return toRuntimeProperties(rows, rows + count);
}

//! What a class offers beside what its base does.
template<size_t count>
RuntimePropertyList extended(RuntimePropertyList base, const RuntimeRow (&rows)[count])
{
    base.append(toRuntimeProperties(rows));
    return base;
}

} // namespace Halvane::Corvex::Designer
