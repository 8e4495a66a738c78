// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

//! What the properties say of their values themselves. Says nothing of lists and objects that are invalid
//! only because of what they hold.
class InvalidValueCheck : public ObjectCheck
{
public:
    bool concerns(const DesignerObject &) override { return true; }
    void look(const DesignerObject &object) override;
};

} // namespace Halvane::Corvex::Designer
