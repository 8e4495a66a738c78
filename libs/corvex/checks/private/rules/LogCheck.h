// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/private/SharedCheck.h"

namespace Halvane::Corvex::Designer {

//! Finds log variables that no element on any screen fills.
class LogCheck : public SharedCheck
{
public:
    bool concerns(const DesignerObject &object) const override;
    //! Logs and links to logs claim the name of the log.
    QList<Claim> claims(const DesignerObject &object) const override;
    void compare(const Group &group) override;
};

} // namespace Halvane::Corvex::Designer
