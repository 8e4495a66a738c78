// SPDX-License-Identifier: MIT
#include "corvex/core/IDesignerObject.h"

namespace Halvane::Corvex::Designer {

QStringList IDesignerObject::classNames() const
{
    static const QStringList names{QStringLiteral("IDesignerObject")};
    return names;
}

} // namespace Halvane::Corvex::Designer
