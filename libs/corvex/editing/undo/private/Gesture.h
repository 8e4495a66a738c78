// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/undo/UndoCommand.h"

#include <QHash>

#include <list>

namespace Halvane::Corvex::Designer {

/*! The commands of one gesture. They are done one by one, and later undone and redone as one step.

    A gesture may set the same value hundreds of times. Of commands that do nothing else, only the first and
    the last for each property are kept: the first knows the old value, the last the new one.
*/
class Gesture
{
public:
    using Commands = std::list<std::unique_ptr<UndoCommand>>;

    explicit Gesture(const QString &text)
        : m_text(text)
    { }

    //! Takes ownership of a command that was done.
    void add(std::unique_ptr<UndoCommand> command);
    const QString &text() const { return m_text; }
    bool isEmpty() const { return m_commands.empty(); }
    //! Whether a command is being done. The gesture must not end before it is added.
    bool isBusy() const { return m_isBusy; }
    void setBusy(bool isBusy) { m_isBusy = isBusy; }
    //! Undoes and deletes all commands. Returns false, with nothing changed, if one cannot be undone.
    bool rollBack();
    //! All commands as one, which is already done. Null if the gesture is empty.
    std::unique_ptr<UndoCommand> takeCommand();

private:
    struct Run
    {
        Commands::iterator last;
        bool hasEarlier = false; //!< there was an earlier command
    };

    QString m_text;
    Commands m_commands;
    bool m_isBusy = false;
    QHash<const DesignerProperty *, Run> m_runs; //!< since the last command that did more than set one value
};

} // namespace Halvane::Corvex::Designer
