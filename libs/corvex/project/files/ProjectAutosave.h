// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

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
    complete and restored on failure.
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

    //! Whether there is an autosave file. After a crash this may be the one that was set aside; it gets its
    //! name back.
    bool findArchive();

    //! Called by the timer: starts a run, unless nothing has changed or a run is active. Returns whether a
    //! run has started. finished() reports the result, even if it could not be started.
    bool run();
    bool isRunning() const { return m_isRunning; }
    //! The current run, for its progress; null if no run is active.
    const Common::Job *job() const { return m_job.get(); }
    //! Ends the current run, and restores the previous file before it returns.
    void cancel();
    //! While paused nothing is saved, because the previous file is still needed.
    void setPaused(bool isPaused) { m_isPaused = isPaused; }
    //! Whether the undo history is unchanged since the project was last autosaved, loaded or saved.
    bool checkStackIsSame() const;
    //! The project is equal to its file: no autosave is needed until the next edit.
    void startOver();
    void countEdit() { ++m_editCount; }

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
    HistoryState historyState() const;
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
    bool m_isPaused = false;
    QString m_archive;
    std::shared_ptr<AutosaveRun> m_work; //!< of the job; null without a job
    std::unique_ptr<Common::Job> m_job;
};

} // namespace Halvane::Corvex::Designer
