// SPDX-License-Identifier: MIT
#include "corvex/common/ConfigurationInfo.h"

namespace Halvane::Corvex::Common {

bool ConfigurationInfo::isValid() const
{
    return !m_displaySize.isEmpty() && m_displayBrightness >= 0 && m_displayBrightness <= 100;
}

} // namespace Halvane::Corvex::Common
