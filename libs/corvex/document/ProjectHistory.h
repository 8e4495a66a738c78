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

/*! All that was done to a project since it was opened, across its saves.

    A save begins a new UndoStack, whose index 0 is saved. This class keeps the stacks of before and puts them
    back when somebody undoes further, so that a user who saves loses nothing: undo goes on before the save,
   which makes the project modified, and redo comes back, to what was saved and on to what came after it.

    Every step has a place in one row; position() tells how many of them are done. The project's own
   undoStack() is the part of the row around the position. Commands are pushed onto that one. */
class CORVEX_EXPORT ProjectHistory
    : public QObject
    , private HistoryKeeper
{
    Q_OBJECT

public:
    /*! Steps beyond the one history before the last save are forgotten, oldest history first, when there are
       more than this. */
    static constexpr int mostEarlierSteps = 10'000;

    explicit ProjectHistory(Project &project, QObject *parent = nullptr);
    ~ProjectHistory() override;

    int count() const;
    int position() const;
    //! The position that is in the project's file; -1 when no undo and no redo leads there.
    int savedPosition() const;

    bool canUndo() const;
    bool canRedo() const;
    //! What would be undone or redone, for the user; empty when there is nothing.
    QString undoText() const;
    QString redoText() const;

    // False, with nothing changed, when there is nothing to do or it cannot be done; errorString() tells why.
    bool undo();
    bool redo();
    //! Undoes or redoes until it gets there. After a failure the position is where it got to.
    bool goTo(int position);
    const QString &errorString() const { return m_error; }

    //! In place of mostEarlierSteps, for those who have less memory.
    void setMostEarlierSteps(int steps) { m_mostEarlierSteps = steps; }
    //! No position is what the file of the project holds: the project comes from somewhere else.
    void setUnsaved();
    // What goes into one step, see UndoStack. Nothing can be undone or redone meanwhile.
    bool beginGesture(const QString &text);
    bool commitGesture();
    bool rollBackGesture();
    //! Asked before each change, see UndoStack; whichever stack it is made through.
    void setGate(UndoStack::Gate gate);

signals:
    //! The position, a text, or what can be undone or redone.
    void changed();
    //! A command was done, undone or redone.
    void moved(const Halvane::Corvex::Designer::UndoCommand *command);
    //! A save could not keep the files that an undo would need, and so forgot what came before it.
    void forgotten(const QString &reason);

private:
    using Stack = std::shared_ptr<UndoStack>;
    /*! The steps of \a stack from one index to another. A save in the middle of a stack cuts it into two
       parts; the history that begins there comes between them. */
    struct Part
    {
        Stack stack;
        int from = 0;
        int to = -1; //!< -1 is the end of the stack

        int end() const;
        int size() const { return end() - from; }
    };

    void aboutToSave() override;
    Stack historyAfterSave() override;
    void historyForgotten() override;

    Part &current() { return m_parts[m_current]; }
    const Part &current() const { return m_parts[m_current]; }
    const UndoStack &stack() const { return *current().stack; }
    //! What would be undone, or redone; null without one.
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
    Stack m_saved; //!< whose start is saved; null when it was dropped
    Common::FileStore m_files;
    QString m_error;
    int m_mostEarlierSteps = mostEarlierSteps;
    UndoStack::Gate m_gate;
    bool m_isMoving = false;
    bool m_keepsFiles = true; //!< the last try to keep files went well
};

} // namespace Halvane::Corvex::Designer
