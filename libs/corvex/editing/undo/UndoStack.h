// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QPointer>
#include <QUndoStack>

#include <functional>
#include <memory>

namespace Halvane::Corvex::Common {
class FileStore;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Gesture;
class UndoCommand;

/*! The history of a project's edits, without a limit.

    Index 0 means saved: the owner begins a new history whenever the project is made, loaded or saved. Beside
   the history the stack knows which object to go to after the last move, and whether that move did or undid a
   deletion that panels treat apart.
*/
class CORVEX_EXPORT UndoStack : public QUndoStack
{
    Q_OBJECT
    Q_MOC_INCLUDE("corvex/core/DesignerObject.h")
    Q_MOC_INCLUDE("corvex/editing/undo/UndoCommand.h")

public:
    explicit UndoStack(QObject *parent = nullptr);
    ~UndoStack() override;

    /*! Takes over the command and does it. False when it could not be done: then it is deleted, errorString()
       may know why, and the history is as it was. A command that is not valid is not to be pushed. */
    bool push(UndoCommand *command);
    //! Why the last command could not be done, for the user; empty when nobody knows.
    const QString &errorString() const { return m_errorString; }
    //! Begins a new history: what could be undone is forgotten, and what is now counts as saved.
    void startOver();
    //! Has all commands delete the files that only an undo would need.
    void cleanJunkFiles();
    //! Has all commands keep them elsewhere instead, see UndoCommand::keepFiles().
    bool keepFiles(Common::FileStore &store, QString &error);
    //! Asked before each push and each move. When it is false nothing happens, and the text says why. The
    //! undo() and redo() of QUndoStack, which the actions that it creates call, do not ask.
    using Gate = std::function<bool(QString &reason)>;
    void setGate(Gate gate) { m_gate = std::move(gate); }
    //! Whether the history can move now, and a gesture can begin; errorString() says why not.
    bool isOpen();
    //! Forgets what could be redone.
    void dropRedo();
    //! Whether index 0 is saved: a history before the last save begins with something else.
    void setStartSaved(bool isSaved);

    /*! What is pushed from here on is done at once and becomes one step of that name with commitGesture().
       Until then the history stays as it is and cannot move. False, with an error, while another gesture goes
       on. */
    bool beginGesture(const QString &text);
    bool hasGesture() const { return m_gesture != nullptr; }
    //! Whether the gesture that goes on has changed anything.
    bool hasChangedInGesture() const;
    //! False when there is no gesture. One that changed nothing leaves no step.
    bool commitGesture();
    //! Restores model and history to the start of the gesture. False without a gesture.
    bool rollBackGesture();
    //! Deletes the objects that commands named for it, except those that are back in the model.
    void deleteCandidates();
    //! While blocked, moves are followed without a word.
    void blockActiveItemChangedSignal(bool block) { m_isActiveItemSignalBlocked = block; }

    int previousIndex() const { return m_previousIndex; }
    int currentIndex() const { return m_currentIndex; }
    bool isSaved() const { return m_currentIndex == 0 && m_isStartSaved; }
    //! Whether the last move went back, or forth.
    bool isUndoToCurrentIndex() const { return m_previousIndex > m_currentIndex; }
    bool isRedoToCurrentIndex() const { return m_previousIndex < m_currentIndex; }
    bool isDeleteScreen() const { return m_isDeleteScreen; }
    bool isDeleteImage() const { return m_isDeleteImage; }
    bool isDeleteVariable() const { return m_isDeleteVariable; }
    //! Null also when the object is gone meanwhile.
    DesignerObject *activeItem() const;

public slots:
    /*! As QUndoStack does, but when a command cannot be done again, it and all that follow are dropped: they
       were built upon it. A macro that holds the command is taken back as a whole. Nothing moves while a
       gesture goes on, and errorString() says so. */
    void undo();
    void redo();
    void setIndex(int index);

signals:
    void activeItemChanged(Halvane::Corvex::Designer::DesignerObject *item);
    void savedChanged(bool saved);
    //! A command was done or undone; of several, the last. Not emitted when a new history begins.
    void moved(const Halvane::Corvex::Designer::UndoCommand *command);
    //! A command is about to be taken over: what could be redone goes.
    void aboutToPush();

private:
    friend class UndoCommand;

    bool collect(std::unique_ptr<UndoCommand> command);
    bool append(UndoCommand *command);
    void addCandidate(DesignerObject *candidate);
    void commandFailed(const UndoCommand *command);
    bool takeBackFailedMacro();
    void commandGone(const UndoCommand *command);
    void onIndexChanged(int index);
    const UndoCommand *decidingCommand(int index) const;

    QList<QPointer<DesignerObject>> m_deletionCandidates;
    const UndoCommand *m_lastPushed = nullptr; //!< null once it is deleted
    QUndoCommand *m_failedMacro = nullptr;     //!< while the index moves
    QString m_errorString;
    QPointer<DesignerObject> m_activeItem;
    int m_previousIndex = 0;
    int m_currentIndex = 0;
    bool m_hasFailed = false;
    std::unique_ptr<Gesture> m_gesture;
    Gate m_gate;
    bool m_isStartSaved = true;
    bool m_isMoving = false;
    bool m_isDeleteScreen = false;
    bool m_isDeleteImage = false;
    bool m_isDeleteVariable = false;
    bool m_isActiveItemSignalBlocked = false;
};

} // namespace Halvane::Corvex::Designer
