// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

//! Reports the errors that properties find in their own values, except for lists and objects that are only
//! invalid because of their contents.
class InvalidValueCheck : public ObjectCheck
{
public:
    bool concerns(const DesignerObject &) override { return true; }
    void look(const DesignerObject &object) override;
};

} // namespace Halvane::Corvex::Designer
