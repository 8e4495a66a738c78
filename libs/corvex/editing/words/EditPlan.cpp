// SPDX-License-Identifier: MIT
#include "corvex/editing/words/EditPlan.h"

namespace Halvane::Corvex::Designer {

QString EditPlan::explained(const QString &reason) const
{
    const QString text = reason.isEmpty() ? defaultReason : reason;
    return explain ? explain(text) : text;
}

} // namespace Halvane::Corvex::Designer
