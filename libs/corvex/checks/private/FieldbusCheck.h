// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

//! What the fieldbus variables of a project must not share: BACnet identifiers, and bits of CAN messages.
//! Looks at the list of variables.
class FieldbusCheck : public PropertyCheck
{
public:
    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &variables) override;

private:
    void lookForSharedIdentifiers(const DesignerProperty &variables);
    void lookForSharedBits(const DesignerProperty &variables);
};

} // namespace Halvane::Corvex::Designer
