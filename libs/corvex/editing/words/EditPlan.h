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

//! What an edit in words asks for. Nothing is changed before the command is pushed.
struct CORVEX_EXPORT EditPlan
{
    std::unique_ptr<ModelCommand> command; //!< null when nothing is to change
    std::optional<int> historySteps;       //!< of an undo (negative) or redo, instead of a command
    QString historyText;                   //!< for the user: "Undo 2"
    QStringList output;                    //!< what the user is told in any case
    //! Why the edit cannot be made. It can when the message is empty.
    EditRefusal refusal;

    //! Comes into the project by the command, which is to be taken back when the name is not valid there.
    const DesignerObject *added = nullptr;
    //! For the user when the model refuses the command without a reason.
    QString defaultReason;
    //! Adds what the user can do about a reason of the model; null for none.
    std::function<QString(const QString &reason)> explain;

    bool isRefused() const { return !refusal.message.isEmpty(); }
    //! The reason, or the default for an empty one, explained.
    QString explained(const QString &reason) const;
};

} // namespace Halvane::Corvex::Designer
