// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"
#include "corvex/common/Job.h"
#include "corvex/document/ProjectHistory.h"

#include <QDateTime>
#include <QPointer>

namespace Halvane::Corvex::Designer {

class ConfigurationContainer;
class DesignerObject;
class FileWatch;
class Project;

/*! A project that a user works on, with all that belongs to the work and not to the project: the history
   across saves, the selection, a watch on the file, and what a crash has left.

    Operations that can fail are false then, with nothing changed, and errorString() tells the user why. */
class CORVEX_EXPORT ProjectDocument : public QObject
{
    Q_OBJECT

public:
    enum class Access {
        Shared, //!< other programs may write the project; changedByOthers() tells
        Alone   //!< other programs can neither read nor write it while it is open
    };
    using LoadJob = Common::ResultJob<std::unique_ptr<Project>>;
    //! Starts to load a project in a thread of its own, for the constructor. It waits while others write.
    static std::unique_ptr<LoadJob> load(const QString &path, Access access = Access::Shared);

    //! For a project that has a file.
    explicit ProjectDocument(std::unique_ptr<Project> project, QObject *parent = nullptr);
    //! Discards edits that were not saved, and the autosave file that this document has written or recovered.
    ~ProjectDocument() override;

    Project &project() const { return *m_project; }
    ProjectHistory &history() { return *m_history; }
    const QString &errorString() const { return m_error; }

    // Edits.
    //! Takes over the command and does it.
    bool push(UndoCommand *command);
    bool undo();
    bool redo();
    /*! What is pushed from here on becomes one step of the history with commitGesture(): all that a user does
       with a slider, the wheel, or an arrow key held down. Refused while another gesture goes on. */
    bool beginGesture(const QString &text);
    //! A gesture that changed nothing leaves no step.
    bool commitGesture();
    //! Project and history are as they were before the gesture.
    bool rollBackGesture();

    // The file.
    bool isModified() const;
    enum class Overwrite {
        Never, //!< a file that others have written, and parts of it that this version does not know
        Always //!< a file that was deleted is written again
    };
    bool save(Overwrite overwrite = Overwrite::Never);
    //! Reads the file again and discards edits and their history. A file that cannot be read changes nothing.
    bool reload();

    // What a crash has left: an autosave file. It may be older than the project's file, as version control
    // writes files, too. There is no autosave until the user has decided; a save does not decide.
    bool hasRecovery() const { return m_hasRecovery; }
    //! When the autosave file was written, for the question to the user.
    QDateTime recoveryTime() const;
    //! Takes over what the autosave file holds. The project is modified then, and its own file as it was.
    bool recover();
    //! Deletes the autosave file.
    bool discardRecovery();
    //! What the opening had to end that a program did not end itself, as a sentence; mostly empty.
    QString recoveryNote() const;

    // The selection: objects of the project, each once, the active one first.
    QList<DesignerObject *> selection() const;
    void select(const QList<DesignerObject *> &objects);

    // Jobs that read the project in other threads. They do not start during a gesture: then the result is
    // null.
    using CheckJob = Common::ResultJob<QList<Problem>>;
    //! Looks for problems. An edit cancels it.
    std::unique_ptr<CheckJob> check(const ConfigurationContainer &models);
    //! The folder of a build, which is deleted with the last copy of the pointer.
    using BuildFolder = std::shared_ptr<const QString>;
    using BuildJob = Common::ResultJob<BuildFolder>;
    //! Builds the project. Edits are refused until it is finished or cancelled.
    std::unique_ptr<BuildJob> build();

signals:
    void modifiedChanged(bool isModified);
    void selectionChanged();
    //! Another program has written or deleted the file. Once for each change.
    void changedByOthers();

private:
    //! What happens to a job that reads the project when somebody wants to change it.
    enum class OnEdit { CancelJob, RefuseEdit };
    bool isFree(QString &reason);
    bool mayRead();
    void addReader(Common::Job *job, OnEdit onEdit);
    bool result(bool isDone, const QString &error);
    bool canOverwrite();
    bool canLoad(const QString &path);
    bool writeMissingFile();
    void onHistoryChanged();
    void updateModified();
    void dropFromSelection();
    bool takeRecoveredImages(const QString &folder);
    void setRecovery(bool hasRecovery);
    void removeAutosave();

    struct Reader
    {
        QPointer<Common::Job> job;
        OnEdit onEdit;
    };
    std::unique_ptr<Project> m_project;
    std::unique_ptr<ProjectHistory> m_history;
    std::unique_ptr<FileWatch> m_watch;
    QList<Reader> m_readers;
    QList<QPointer<DesignerObject>> m_selection;
    QString m_error;
    bool m_hasRecovery = false;
    bool m_ownsAutosave = false; //!< the autosave file is that of this document
    bool m_wasModified = false;
    bool m_isComplete = true; //!< nothing that the file holds is lost by a save
};

} // namespace Halvane::Corvex::Designer
