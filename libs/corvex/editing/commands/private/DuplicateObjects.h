// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/CompositeCommand.h"

namespace Halvane::Corvex::Designer {

//! Adds copies of objects to the lists of the originals.
class DuplicateObjects : public CompositeCommand
{
public:
    //! All objects must be of kinds that can be added, and in one project.
    explicit DuplicateObjects(const QList<DesignerObject *> &objects);
};

} // namespace Halvane::Corvex::Designer
