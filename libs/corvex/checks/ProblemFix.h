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
    //! Makes a command to push. Null when the project has changed so that the text is no longer true.
    std::function<std::unique_ptr<UndoCommand>()> makeCommand;

    /*! The fixes that the project offers for the problem as it is now, the best one first. Looking for the
        nearest name takes time, so ask when the user does. The project must outlive the fixes. */
    static QList<ProblemFix> of(const Problem &problem);
    //! What fixes of that kind are called, with placeholders: "Rename to "%1"". English.
    static QStringList texts(ProblemCode code);
};

} // namespace Halvane::Corvex::Designer
