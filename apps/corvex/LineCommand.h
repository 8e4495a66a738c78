// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Tool {

//! Several edits that one line of a script asks for, in one step of the history.
class LineCommand : public Designer::ModelCommand
{
public:
    LineCommand();

    bool isValid() const override;
    //! Takes over the texts of the edits, once all are there.
    void describe();

    //! The command that deletes an object of that kind; null for one that always stays.
    static Designer::ModelCommand *deletionOf(Designer::DesignerObject *item, Designer::UndoCommand *parent);
    //! The texts of all commands below one that are no composites themselves.
    static QStringList partsOf(const QUndoCommand &command);
};

} // namespace Halvane::Corvex::Tool
