// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QDateTime>
#include <QObject>

#include <memory>

namespace Halvane::Corvex::Common {
class Job;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class AutosaveRun;
class Project;

/*! Saves a project next to its folder while it is being edited, as the archive D/P.kdproj.kdasv with
    "P.kdproj", "Images/..." and "Preview.png".

    A run is a job: it writes the project into a temporary folder, in slices between events, and packs that
    folder in another thread. The user can continue to edit; the archive contains one state of the project.
    Meanwhile the previous autosave file has the name D/P.kdproj.kdasv.tmp. It is deleted when the new file is
    complete and restored on failure. P is the name of the project as it was last saved.

    Several documents and programs may have the same project open. Each one only deletes the archive that it
    has written itself, and writes another one if its own was replaced or deleted. An archive of another one
    that is in the way gets a free name that begins with its own.
*/
class CORVEX_EXPORT ProjectAutosave : public QObject
{
    Q_OBJECT

public:
    static constexpr int shortestInterval = 5; //!< in minutes
    static constexpr int longestInterval = 120;

    explicit ProjectAutosave(Project *project);
    //! Completes an active run.
    ~ProjectAutosave() override;

    //! Restarts the timer with the minutes in the user's setting "autoIntervalTime". Without a valid setting
    //! there is no timer.
    void start();
    //! -1 without a timer.
    int timerId() const { return m_timerId; }
    //! In milliseconds, 0 without a timer.
    int interval() const { return m_interval; }

    // The archive of an earlier session, after a crash. Nothing is autosaved until it was adopted or
    // discarded.
    //! Looks for it. It may be the one that was set aside, or have the name from before an unsaved renaming
    //! that nothing else recorded. It gets its right name then.
    void findArchive();
    //! The present path of that archive, to which another program may have moved it; empty if none was found,
    //! or if it was deleted since.
    QString foundArchive() const;
    //! The project has the contents of the archive now, so it is handled as if written by this object.
    void adoptArchive();
    //! Deletes it.
    bool discardArchive(QString *error);

    //! Called by the timer: starts a run, unless nothing has changed or a run is active. Returns whether a
    //! run has started. finished() reports the result, even if it could not be started.
    bool run();
    bool isRunning() const { return m_isRunning; }
    //! The current run, for its progress; null if no run is active.
    const Common::Job *job() const { return m_job.get(); }
    //! Ends the current run, and restores the previous file before it returns.
    void cancel();
    //! Cancels an active run, and deletes the archive that this object has written.
    void removeArchive();
    //! Whether the undo history is unchanged since the project was last autosaved, loaded or saved.
    bool checkStackIsSame() const;
    //! The project is equal to its file: no autosave is needed until the next edit.
    void startOver();
    //! The same after a save. Another session's archive follows if the project has a new name; \a oldArchive
    //! is its path from before.
    void projectSaved(const QString &oldArchive);
    void countEdit();

signals:
    //! For the status indicator.
    void runningChanged(bool running);
    //! \a error is empty if the autosave file is complete.
    void finished(const QString &error);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct HistoryState
    {
        int index = 0;
        quint64 editCount = 0;
        bool operator==(const HistoryState &other) const = default;
    };
    //! Identifies an archive. A run of another document may have moved it.
    struct Archive
    {
        explicit Archive(const QString &archive = {});
        bool isAt(const QString &otherPath) const;
        //! Its present path; empty if it no longer exists.
        QString find() const;

        QString path;
        QDateTime time;
        qint64 size = 0;
    };
    HistoryState historyState() const;
    bool needsRun() const;
    void concludeJob();
    QString moveAside();
    void startJob();
    void complete();
    void conclude(const QString &error);

    Project *m_project;
    int m_timerId = -1;
    int m_interval = 0;
    quint64 m_editCount = 0;
    HistoryState m_saved;
    HistoryState m_beingSaved;
    bool m_isRunning = false;
    bool m_isDue = false;            //!< when the current gesture ends
    bool m_isSavedInArchive = false; //!< m_saved is not a state of the project's file
    QString m_archive;               //!< of the last run
    Archive m_found;
    Archive m_written;
    std::shared_ptr<AutosaveRun> m_work; //!< of the job; null without a job
    std::unique_ptr<Common::Job> m_job;
};

} // namespace Halvane::Corvex::Designer
