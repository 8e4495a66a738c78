// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QPointer>
#include <QUndoStack>

namespace Halvane::Corvex::Designer {

class DesignerObject;
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
    //! Deletes the objects that commands named for it, except those that are back in the model.
    void deleteCandidates();
    //! While blocked, moves are followed without a word.
    void blockActiveItemChangedSignal(bool block) { m_isActiveItemSignalBlocked = block; }

    int previousIndex() const { return m_previousIndex; }
    int currentIndex() const { return m_currentIndex; }
    bool isSaved() const { return m_currentIndex == 0; }
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
       were built upon it. A macro that holds the command is taken back as a whole. */
    void redo();
    void setIndex(int index);

signals:
    void activeItemChanged(Halvane::Corvex::Designer::DesignerObject *item);
    void savedChanged(bool saved);
    //! A command was done or undone; of several, the last. Not emitted when a new history begins.
    void moved(const Halvane::Corvex::Designer::UndoCommand *command);

private:
    friend class UndoCommand;

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
    bool m_isMoving = false;
    bool m_isDeleteScreen = false;
    bool m_isDeleteImage = false;
    bool m_isDeleteVariable = false;
    bool m_isActiveItemSignalBlocked = false;
};

} // namespace Halvane::Corvex::Designer
