// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"
#include "corvex/common/Export.h"
#include "corvex/editing/undo/UndoCommand.h"

#include <QStringList>

#include <functional>
#include <memory>

namespace Halvane::Corvex::Designer {

//! A way to solve a problem in one step of the history.
struct CORVEX_EXPORT ProblemFix
{
    QString text; //!< "Rename to "pump2"", translated
    //! Creates a command to push. Null if the project has changed so that the text is no longer correct.
    std::function<std::unique_ptr<UndoCommand>()> makeCommand;

    //! The fixes for the current state of the problem, the best one first. The search for similar names is
    //! slow, so call it on request of the user. The project must outlive the fixes. The search tries values
    //! on properties; if the gate of the history refuses edits, there are no fixes.
    static QList<ProblemFix> of(const Problem &problem);
    //! The texts of all fixes for that kind of problem, with placeholders: "Rename to "%1"". English.
    static QStringList texts(ProblemCode code);
};

} // namespace Halvane::Corvex::Designer
