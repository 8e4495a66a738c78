// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/BasicAction.h"

namespace Halvane::Corvex::Elements {

//! Changes of properties that triggers execute.
class Action : public Designer::BasicAction
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Action, Designer::BasicAction)

protected:
    using BasicAction::BasicAction;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
