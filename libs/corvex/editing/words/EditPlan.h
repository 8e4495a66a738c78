// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"
#include "corvex/editing/words/EditRefusal.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace Halvane::Corvex::Designer {

//! The plan for an edit in words. Nothing changes until the command is pushed.
struct CORVEX_EXPORT EditPlan
{
    std::unique_ptr<ModelCommand> command; //!< null if nothing changes
    std::optional<int> historySteps;       //!< for undo (negative) or redo, instead of a command
    QString historyText;                   //!< for the user: "Undo 2"
    QStringList output;                    //!< messages for the user, printed in any case
    //! Why the edit is refused. An empty message means that it is not.
    EditRefusal refusal;

    //! The object that the command adds. Undo the command if its name turns out to be invalid.
    const DesignerObject *added = nullptr;
    //! The property that the command sets; null for other edits.
    SharedProperty changed;
    //! For the user, if the model gives no reason for a refusal.
    QString defaultReason;
    //! Adds advice to a reason of the model; may be null.
    std::function<QString(const QString &reason)> explain;

    bool isRefused() const { return !refusal.message.isEmpty(); }
    //! The reason, or the default if it is empty, with advice.
    QString explained(const QString &reason) const;
};

} // namespace Halvane::Corvex::Designer
