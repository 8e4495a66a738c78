// SPDX-License-Identifier: MIT
#include "elements/Channel.h"

#include "corvex/project/RuntimeTable.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

RuntimePropertyList withValue(RuntimePropertyList properties, Common::EnumHelper::VariableType type,
                              Common::EnumHelper::VariableAccessMode access)
{
    const RuntimeRow rows[] = {{"value", "Value", type, access, "What the channel has at the moment"}};
    properties.append(toRuntimeProperties(rows));
    return properties;
}

} // namespace Halvane::Corvex::Elements
