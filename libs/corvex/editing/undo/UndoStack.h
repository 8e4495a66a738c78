// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/undo/EditGate.h"

#include <QBasicTimer>
#include <QList>
#include <QPointer>
#include <QUndoStack>

#include <memory>

namespace Halvane::Corvex::Common {
class FileStore;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Gesture;
class UndoCommand;

/*! The history of a project's edits, without a size limit.

    Index 0 means saved: the owner starts a new history whenever the project is created, loaded or saved. The
    stack also knows which object to show after the last move, and whether that move did or undid a deletion
    that panels treat differently.
*/
class CORVEX_EXPORT UndoStack : public QUndoStack
{
    Q_OBJECT
    Q_MOC_INCLUDE("corvex/core/DesignerObject.h")
    Q_MOC_INCLUDE("corvex/editing/undo/UndoCommand.h")

public:
    explicit UndoStack(QObject *parent = nullptr);
    ~UndoStack() override;

    //! Takes ownership of the command and executes it. Returns false on failure: the command is deleted,
    //! errorString() may give the reason, and the history is unchanged. Do not push an invalid command.
    bool push(UndoCommand *command);
    //! Why the last command failed, for the user; empty if unknown.
    const QString &errorString() const { return m_errorString; }
    //! Starts a new history: all steps are discarded and the current state counts as saved.
    void startOver();
    //! Makes all commands delete the files that only an undo would need.
    void cleanJunkFiles();
    //! Makes all commands keep these files elsewhere, see UndoCommand::keepFiles().
    bool keepFiles(Common::FileStore &store, QString &error);
    //! Asked before each push and each move; may be null. Not owned. QUndoStack's own undo() and redo(),
    //! which its actions use, do not ask the gate.
    void setGate(EditGate *gate) { m_gate = gate; }
    //! What the gate answers; true without a gate. If an edit is refused, errorString() gives the reason.
    bool mayEdit();
    bool mayValidate() const { return !m_gate || m_gate->mayValidate(); }
    //! Whether the history can move now and a gesture can begin; otherwise errorString() gives the reason.
    bool isOpen();
    //! Discards all steps after the current index.
    void dropRedo();
    //! Whether index 0 is the saved state; false for a history from before the last save.
    void setStartSaved(bool isSaved);

    //! Commands pushed from here on are done at once, and commitGesture() combines them into one step with
    //! that name. Until then the history is unchanged and cannot move. Returns false, with an error, during
    //! another gesture.
    bool beginGesture(const QString &text);
    //! Whether a gesture has begun and not ended. A run does not count: see pushInRun().
    bool hasGesture() const { return m_gesture && !isInRun(); }
    //! Whether the current gesture or run has changed anything.
    bool hasChangedInGesture() const;
    //! Returns false if there is no gesture. A gesture without changes adds no step.
    bool commitGesture();
    //! Restores model and history to the start of the gesture. Returns false, with an error, if there is no
    //! gesture, or if a command cannot be undone; the gesture is then committed.
    bool rollBackGesture();

    //! A run ends when nothing is added to it for this time.
    static constexpr int runPause = 700; // milliseconds
    /*! Does a command that is part of a run, such as the steps of an arrow key or of the wheel. All commands
        with the same text form one step of the history. A run ends after a pause, and before any other
        command, an undo or a redo; it needs no explicit end. Within a gesture the command belongs to the
        gesture.
    */
    bool pushInRun(const QString &text, UndoCommand *command, int pause = runPause);
    //! Ends the run now, if there is one.
    void endRun();
    bool isInRun() const { return m_runTimer.isActive(); }
    //! The text of the current gesture or run; empty outside of both.
    QString gestureText() const;

    //! Deletes the objects that commands have named for deletion, except those that are back in the model.
    void deleteCandidates();
    //! While blocked, moves are tracked without signals.
    void blockActiveItemChangedSignal(bool block) { m_isActiveItemSignalBlocked = block; }

    int previousIndex() const { return m_previousIndex; }
    int currentIndex() const { return m_currentIndex; }
    bool isSaved() const { return m_currentIndex == 0 && m_isStartSaved; }
    //! Whether the last move was an undo, or a redo.
    bool isUndoToCurrentIndex() const { return m_previousIndex > m_currentIndex; }
    bool isRedoToCurrentIndex() const { return m_previousIndex < m_currentIndex; }
    bool isDeleteScreen() const { return m_isDeleteScreen; }
    bool isDeleteImage() const { return m_isDeleteImage; }
    bool isDeleteVariable() const { return m_isDeleteVariable; }
    //! Also null if the object has been deleted.
    DesignerObject *activeItem() const;

public slots:
    //! Like those of QUndoStack, except that the index stays after a command that cannot be undone and before
    //! one that cannot be redone, and all steps remain for another attempt; a macro with such a command does
    //! not move as a whole. A command that fails in its own redo() is dropped with all later ones, which
    //! depend on it. During a gesture nothing moves. errorString() gives the reason.
    void undo();
    void redo();
    void setIndex(int index);

    //! The command of the last moved(). While receivers of that signal push, that of the newest one.
    const UndoCommand *lastMoved() const { return m_lastMoved; }

signals:
    void activeItemChanged(Halvane::Corvex::Designer::DesignerObject *item);
    void savedChanged(bool saved);
    //! A command was done or undone; of several commands, the last one. Not emitted when a new history
    //! begins. If an earlier receiver pushes, the command may be deleted already; see lastMoved().
    void moved(const Halvane::Corvex::Designer::UndoCommand *command);
    //! A command is about to be pushed, which discards the redo steps.
    void aboutToPush();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    friend class UndoCommand;

    bool collect(std::unique_ptr<UndoCommand> command);
    bool append(UndoCommand *command);
    void addCandidate(DesignerObject *candidate);
    void commandFailed(const UndoCommand *command);
    bool undoFailedMacro();
    void undoTo(int index);
    void redoTo(int index);
    void moveForward(int index);
    void commandDeleted(const UndoCommand *command);
    void onIndexChanged(int index);
    const UndoCommand *decidingCommand(int index) const;

    QList<QPointer<DesignerObject>> m_deletionCandidates;
    const UndoCommand *m_lastPushed = nullptr; //!< null once it is deleted
    const UndoCommand *m_lastMoved = nullptr;
    QUndoCommand *m_failedMacro = nullptr; //!< while the index moves
    QString m_errorString;
    QPointer<DesignerObject> m_activeItem;
    int m_previousIndex = 0;
    int m_currentIndex = 0;
    bool m_hasFailed = false;
    std::unique_ptr<Gesture> m_gesture; //!< the current gesture or run
    QBasicTimer m_runTimer;             //!< active during a run
    EditGate *m_gate = nullptr;
    bool m_isStartSaved = true;
    bool m_isMoving = false;
    bool m_isDeleteScreen = false;
    bool m_isDeleteImage = false;
    bool m_isDeleteVariable = false;
    bool m_isActiveItemSignalBlocked = false;
};

} // namespace Halvane::Corvex::Designer
