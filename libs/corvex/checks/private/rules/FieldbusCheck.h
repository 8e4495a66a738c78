// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/private/SharedCheck.h"

namespace Halvane::Corvex::Designer {

//! BACnet objects with the same identifier.
class IdentifierCheck : public SharedCheck
{
public:
    bool concerns(const DesignerObject &object) const override;
    QList<Claim> claims(const DesignerObject &object) const override;
    void compare(const Group &group) override;
};

//! Variables that use the same bits of a CAN message.
class MessageBitsCheck : public SharedCheck
{
public:
    bool concerns(const DesignerObject &object) const override;
    QList<Claim> claims(const DesignerObject &object) const override;
    void compare(const Group &group) override;
};

} // namespace Halvane::Corvex::Designer
