// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/CompositeCommand.h"

namespace Halvane::Corvex::Designer {

struct RequestedValue;

//! Sets values of one or several objects.
class ChangeValues : public CompositeCommand
{
public:
    //! All values must be valid, and none may be a name.
    explicit ChangeValues(const QList<RequestedValue> &values);
};

} // namespace Halvane::Corvex::Designer
