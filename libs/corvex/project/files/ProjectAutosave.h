// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QObject>

#include <memory>

class QThread;

namespace Halvane::Corvex::Common {
class TemporaryFolder;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class Project;
class ZipWorker;

/*! Saves a project beside its folder while it is being edited, as the archive D/P.kdproj.kdasv of "P.kdproj",
    "Images/..." and "Preview.png".

    The contents are brought together in a temporary folder of their own and packed in a thread of its own.
   For that time the autosave file of before is called D/P.kdproj.kdasv.tmp; it goes when the new one is
   complete and comes back when that fails.
*/
class CORVEX_EXPORT ProjectAutosave : public QObject
{
    Q_OBJECT

public:
    static constexpr int shortestInterval = 5; //!< in minutes
    static constexpr int longestInterval = 120;

    explicit ProjectAutosave(Project *project);
    //! Waits for the archive that is being packed.
    ~ProjectAutosave() override;

    //! Starts the timer anew with the minutes in the user's setting "autoIntervalTime"; there is no timer
    //! when these are missing or out of range.
    void start();
    //! -1 without a timer.
    int timerId() const { return m_timerId; }
    //! In milliseconds, 0 without a timer.
    int interval() const { return m_interval; }

    /*! Whether there is an autosave file. After a crash this may be the file that was set aside, which gets
        its name back. */
    bool findArchive();

    /*! What the timer does: begins a run, unless nothing has changed or a run is under way. Whether one has
       begun; what became of it is told by finished(), which also tells why one could not begin. */
    bool run();
    bool isRunning() const { return m_isRunning; }
    //! Nothing is saved while it is paused: the file of before is still needed.
    void setPaused(bool isPaused) { m_isPaused = isPaused; }
    //! Whether the undo history stands where it stood when the project was autosaved, loaded or saved last,
    //! and has not been elsewhere in between.
    bool checkStackIsSame() const;
    //! The project is as its file holds it: nothing is worth an autosave until the next edit.
    void startOver();
    void countEdit() { ++m_editCount; }

signals:
    //! For the status indicator.
    void runningChanged(bool running);
    //! \a error is empty when the autosave file is complete.
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
    QString stage();
    void pack();
    void takeArchive();
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
    std::unique_ptr<Common::TemporaryFolder> m_staging;
    std::unique_ptr<ZipWorker> m_worker;
    std::unique_ptr<QThread> m_thread;
};

} // namespace Halvane::Corvex::Designer
