// SPDX-License-Identifier: MIT
#include "actions/Action.h"

namespace Halvane::Corvex::Nova {

std::span<const Action> arrangeActions()
{
    return {};
}

} // namespace Halvane::Corvex::Nova
