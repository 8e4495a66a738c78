// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/runtime/RuntimeLists.h"

namespace Halvane::Corvex::Designer {

//! One row in a class's table of runtime properties. Texts are English and are translated when the list is
//! built.
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

//! Adds the properties of a class to those of its base.
template<size_t count>
RuntimePropertyList extended(RuntimePropertyList base, const RuntimeRow (&rows)[count])
{
    base.append(toRuntimeProperties(rows));
    return base;
}

} // namespace Halvane::Corvex::Designer
