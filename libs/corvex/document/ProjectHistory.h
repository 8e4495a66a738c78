// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/files/FileStore.h"
#include "corvex/editing/undo/HistoryKeeper.h"
#include "corvex/editing/undo/UndoStack.h"

#include <QObject>

#include <deque>

namespace Halvane::Corvex::Designer {

class Project;
class UndoCommand;

/*! The history of all edits since a project was opened, across saves.

    A save begins a new UndoStack, in which index 0 means saved. This class keeps the earlier stacks and
    restores them when the user undoes further, so that a save loses nothing: undo continues before the save,
    which makes the project modified, and redo returns to the saved state and the edits after it.

    All steps form one sequence, and position() is the number of steps done. The project's own undoStack() is
    the part of the sequence around the position. Push commands onto that one.
*/
class CORVEX_EXPORT ProjectHistory
    : public QObject
    , private HistoryKeeper
{
    Q_OBJECT

public:
    //! If there are more steps before the last save, the oldest ones are discarded.
    static constexpr int mostEarlierSteps = 10'000;

    explicit ProjectHistory(Project &project, QObject *parent = nullptr);
    ~ProjectHistory() override;

    int count() const;
    int position() const;
    //! The position of the project's file; -1 if undo and redo cannot reach it.
    int savedPosition() const;

    bool canUndo() const;
    bool canRedo() const;
    //! The text of the next step to undo or redo, for the user; empty if there is nothing to undo or redo.
    QString undoText() const;
    QString redoText() const;
    //! The text of the step from position \a step to the next one.
    QString stepText(int step) const;

    // These return false and change nothing if there is nothing to do or a command fails; errorString() gives
    // the reason.
    bool undo();
    bool redo();
    //! Undoes or redoes up to the position. After a failure the position is somewhere on the way.
    bool goTo(int position);
    const QString &errorString() const { return m_error; }

    //! Replaces mostEarlierSteps, for programs with less memory.
    void setMostEarlierSteps(int steps) { m_mostEarlierSteps = steps; }
    //! No position corresponds to the project's file, because the project has another origin.
    void setUnsaved();
    // Combines edits into one step, see UndoStack. Meanwhile undo and redo are refused.
    bool beginGesture(const QString &text);
    bool commitGesture();
    bool rollBackGesture();
    // The same for a run, see UndoStack. It ends by itself, so an undo may follow immediately.
    bool pushInRun(const QString &text, UndoCommand *command, int pause = UndoStack::runPause);
    void endRun();
    //! Called before each change on any of the stacks, see UndoStack.
    void setGate(EditGate *gate);

signals:
    //! The position, a text, or the availability of undo or redo has changed.
    void changed();
    //! A command was done, undone or redone.
    void moved(const Halvane::Corvex::Designer::UndoCommand *command);
    //! A save could not keep the files that an undo needs, so the earlier history was discarded.
    void forgotten(const QString &reason);

private:
    using Stack = std::shared_ptr<UndoStack>;
    //! The steps of \a stack between two indexes. A save in the middle of a stack divides it into two parts;
    //! the history that begins with the save comes between them.
    struct Part
    {
        Stack stack;
        int from = 0;
        int to = -1; //!< -1 means the end of the stack

        int end() const;
        int size() const { return end() - from; }
    };

    void aboutToSave() override;
    Stack historyAfterSave() override;
    void historyForgotten() override;

    Part &current() { return m_parts[m_current]; }
    const Part &current() const { return m_parts[m_current]; }
    const UndoStack &stack() const { return *current().stack; }
    //! The command to undo, or to redo; null if there is nothing to undo or redo.
    const QUndoCommand *commandBefore() const;
    const QUndoCommand *commandAfter() const;
    bool refuse(const QString &reason);
    bool prepare(const QUndoCommand *command);
    void activate(size_t part);
    void followStack();
    void settle();
    void onIndexChanged();
    void dropLaterParts();
    void dropOldParts();
    int sizeBefore(size_t part) const;

    Project &m_project;
    std::deque<Part> m_parts; //!< at least one
    size_t m_current = 0;
    Stack m_saved; //!< its start is the saved state; null if it was dropped
    Common::FileStore m_files;
    QString m_error;
    int m_mostEarlierSteps = mostEarlierSteps;
    EditGate *m_gate = nullptr;
    bool m_isMoving = false;
    bool m_keepsFiles = true; //!< the last attempt to keep files succeeded
};

} // namespace Halvane::Corvex::Designer
