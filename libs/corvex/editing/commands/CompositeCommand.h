// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

/*! Several edits in one step of the history. They are its children, and all of them must be possible.

    Children are planned one after the other, each for the values that those before it will have set. */
class CORVEX_EXPORT CompositeCommand : public ModelCommand
{
public:
    CompositeCommand();

    bool isValid() const override;
    //! Makes a text of those of the edits. To be called when all of them are there.
    void describe();
};

} // namespace Halvane::Corvex::Designer
