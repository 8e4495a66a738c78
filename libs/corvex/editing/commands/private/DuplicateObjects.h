// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/CompositeCommand.h"

namespace Halvane::Corvex::Designer {

//! Adds copies of objects to the lists of the originals.
class DuplicateObjects : public CompositeCommand
{
public:
    //! All objects must be of kinds that can be added, and in one project. \a name is that of the first copy;
    //! if it is empty, a free name is found.
    explicit DuplicateObjects(const QList<DesignerObject *> &objects, const QString &name = {});
};

} // namespace Halvane::Corvex::Designer
