// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

/*! Several edits in one step of the history. They are the children of the command, and all of them must be
    possible.

    Children are planned one by one, each for the values that the previous ones will have set.
*/
class CORVEX_EXPORT CompositeCommand : public ModelCommand
{
public:
    CompositeCommand();

    bool isValid() const override;
    //! Combines the texts of the edits. Call it when the last one was added.
    void describe();
};

} // namespace Halvane::Corvex::Designer
