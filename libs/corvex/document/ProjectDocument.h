// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"
#include "corvex/common/Job.h"
#include "corvex/document/ProjectHistory.h"

#include <QDateTime>
#include <QDir>
#include <QPointer>
#include <QStringList>

namespace Halvane::Corvex::Designer {

class ConfigurationContainer;
class DesignerObject;
class FileWatch;
class Project;

/*! A project that a user is editing, with the state of the editing session: the history across saves, the
    selection, a watch on the file, and the recovery after a crash.

    On failure operations return false and change nothing, and errorString() gives the reason for the user.
*/
class CORVEX_EXPORT ProjectDocument
    : public QObject
    , private EditGate
{
    Q_OBJECT

public:
    enum class Access {
        Shared, //!< other programs may write the project; changedByOthers() reports it
        Alone   //!< other programs can neither read nor write the project while it is open
    };
    using LoadJob = Common::ResultJob<std::unique_ptr<Project>>;
    //! Starts loading a project, for the constructor, in a thread of its own. Waits while other programs
    //! write it.
    static std::unique_ptr<LoadJob> load(const QString &path, Access access = Access::Shared);

    //! The project must have a file.
    explicit ProjectDocument(std::unique_ptr<Project> project, QObject *parent = nullptr);
    //! Discards unsaved edits, and the autosave file that this document has written or recovered.
    ~ProjectDocument() override;

    Project &project() const { return *m_project; }
    ProjectHistory &history() { return *m_history; }
    const QString &errorString() const { return m_error; }

    // Edits.
    //! Takes ownership of the command and executes it.
    bool push(UndoCommand *command);
    bool undo();
    bool redo();
    //! Commands pushed from here on become one step of the history with commitGesture(), for example
    //! everything that a user does with a slider, the wheel, or an arrow key held down. Refused during
    //! another gesture.
    bool beginGesture(const QString &text);
    //! A gesture without changes adds no step.
    bool commitGesture();
    //! Restores project and history to the start of the gesture.
    bool rollBackGesture();
    //! Pushes a command that is part of a run: the steps of an arrow key or of the wheel. All commands with
    //! the same text form one step of the history. A run ends after a pause, and before anything else that
    //! the user does: another command, undo, redo, save, a new selection, a job.
    bool pushInRun(const QString &text, UndoCommand *command);
    //! In milliseconds; replaces UndoStack::runPause.
    void setRunPause(int pause) { m_runPause = pause; }

    // The file.
    bool isModified() const;
    enum class Overwrite {
        Never, //!< refuses if others have changed the file, or if it has parts that this version does not
               //!< know
        Always //!< also writes a deleted file again
    };
    bool save(Overwrite overwrite = Overwrite::Never);
    //! Reads the file again and discards all edits and their history. If the file cannot be read, nothing
    //! changes.
    bool reload();

    // The autosave file after a crash. It may be older than the project's file, for example because version
    // control wrote that. There is no autosave until the user has decided; a save does not count as a
    // decision.
    bool hasRecovery() const;
    //! The time of the autosave file, for the question to the user.
    QDateTime recoveryTime() const;
    //! Loads the contents of the autosave file. The project is modified then; its own file is not changed,
    //! and images and an unsaved new name of the project wait for the next save. If these cannot be written,
    //! the project is read from its own file again.
    bool recover();
    //! Deletes the autosave file.
    bool discardRecovery();
    //! What opening the project had to complete or undo after an interruption, as a sentence; usually empty.
    QString recoveryNote() const;

    // The selected objects of the project, without duplicates, the active one first.
    QList<DesignerObject *> selection() const;
    void select(const QList<DesignerObject *> &objects);

    // Jobs. During a gesture they are not started, and the result is null. A cancelled job changes nothing.
    using CheckJob = Common::ResultJob<QList<Problem>>;
    //! Searches for problems. An edit cancels the job.
    std::unique_ptr<CheckJob> check(const ConfigurationContainer &models);
    //! The folder of a build, which is deleted with the last copy of the pointer.
    using BuildFolder = std::shared_ptr<const QString>;
    using BuildJob = Common::ResultJob<BuildFolder>;
    //! What an edit during a build does.
    enum class OnEdit {
        Refuse, //!< edits are refused until the job has finished or was cancelled
        Cancel  //!< an edit cancels the job
    };
    //! Builds the project.
    std::unique_ptr<BuildJob> build(OnEdit onEdit = OnEdit::Refuse);
    struct ImportResult
    {
        qsizetype changedValues = 0;
        qsizetype addedVariables = 0;
        qsizetype unchangedVariables = 0;
    };
    using ImportJob = Common::ResultJob<ImportResult>;
    /*! Imports a table of variables in the form of VariableImport, in one step of the history. If a line is
        wrong or a value is invalid, it fails and changes nothing; the error lists all those lines. A null \a
        separator is detected in the first line. Edits are refused until the job has finished or was
        cancelled.
    */
    std::unique_ptr<ImportJob> importVariables(const QByteArray &table, QChar separator = {});
    using RenderJob = Common::ResultJob<QStringList>;
    //! Draws all screens as the canvas shows them, to "NAME.png" in \a folder, which is created if necessary.
    //! Other files are kept. The result contains the paths of the pictures. The job works on a copy of the
    //! project; an edit before the copy is complete cancels it. Needs a QApplication.
    std::unique_ptr<RenderJob> renderScreens(const QString &folder);

signals:
    void modifiedChanged(bool isModified);
    void selectionChanged();
    //! Another program has written or deleted the file. Emitted once for each change.
    void changedByOthers();

private:
    bool mayEdit(QString &reason) override;
    bool mayValidate() const override;
    bool mayRead();
    //! An edit cancels the job, or is refused with \a refusal.
    void addReader(Common::Job *job, const QString &refusal = {}, bool edits = false);
    void removeReader(const Common::Job *job);
    bool result(bool isDone, const QString &error);
    bool canOverwrite();
    bool canLoad(const QString &path);
    bool losesParts() const;
    bool writeMissingFile();
    void watchFile();
    void onHistoryChanged();
    void updateModified();
    void dropFromSelection();
    //! Discards all edits and their history.
    bool readFile(const QString &path);
    bool takeRecoveredImages(const QDir &images, const QDateTime &archived, QString &error);
    bool takeRecoveredName(const QString &name, QString &error);

    class ImportRun;
    struct Reader
    {
        QPointer<Common::Job> job;
        QString refusal; //!< of edits; empty if an edit cancels the job
        bool edits = false;
    };
    std::unique_ptr<Project> m_project;
    std::unique_ptr<ProjectHistory> m_history;
    std::unique_ptr<FileWatch> m_watch;
    QList<Reader> m_readers;
    QList<QPointer<DesignerObject>> m_selection;
    QString m_error;
    int m_runPause = UndoStack::runPause;
    bool m_isOwnEdit = false; //!< of a job that refuses all others
    bool m_wasModified = false;
    bool m_isComplete = true; //!< a save loses nothing from the file
};

} // namespace Halvane::Corvex::Designer
