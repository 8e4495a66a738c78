// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Progress.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class QThread;

namespace Halvane::Corvex::Common {

/*! Work that takes longer than a user wants to wait for. It runs in a thread of its own, or, when it changes
    what the thread of the job works with, in slices between the events of that thread.

    Signals are emitted in the thread of the job, which needs an event loop; receivers in other threads get
   them in theirs. A job that is deleted cancels its work, waits for it, and emits nothing more. It may be
   deleted in a slot that it called. */
class CORVEX_COMMON_EXPORT Job : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        None, //!< not finished yet
        Done,
        Failed,
        Cancelled
    };
    //! Called in the thread of the work. False, with a text for the user, when it failed.
    using Work = std::function<bool(Progress &progress, QString &error)>;
    enum class Next { More, Done, Failed };
    //! A piece of work of less than a millisecond, called until it has no more to do.
    using Piece = std::function<Next(Progress &progress, QString &error)>;

    //! No slice takes longer, unless a single piece does.
    static constexpr int longestSlice = 10; // milliseconds
    //! How often progress is told at most.
    static constexpr int reportInterval = 50; // milliseconds

    explicit Job(QObject *parent = nullptr);
    ~Job() override;

    // One of these, once.
    void startInThread(Work work);
    void startInSlices(Piece piece);

    //! Has the work end soon; finished() follows all the same.
    void cancel() { m_progress.cancel(); }
    //! Waits until work in a thread has returned; finished() follows in the event loop.
    void wait();
    bool isRunning() const { return m_isRunning; }
    Outcome outcome() const { return m_outcome; }
    //! For the user, of a job that failed.
    const QString &errorString() const { return m_error; }
    Progress::State progress() const { return m_progress.state(); }

signals:
    void progressed(const Halvane::Corvex::Common::Progress::State &state);
    //! Once, whatever the outcome.
    void finished();

private:
    void onTimeout();
    bool runSlice();
    void report();
    void conclude();

    Progress m_progress;
    std::unique_ptr<QThread> m_thread;
    Piece m_piece;
    QTimer m_timer; //!< of reports, or of slices
    QElapsedTimer m_sinceReport;
    Progress::State m_reported;
    QString m_error;
    Outcome m_outcome = Outcome::None;
    bool m_isRunning = false;
    bool m_isDone = false; //!< the work has succeeded
};

/*! A job whose work makes something. Work that was cancelled, or failed, has no result: what it made is
    destroyed in the thread of the job. */
template<class Result>
class ResultJob : public Job
{
public:
    //! Nothing, with a text for the user, when it failed.
    using Making = std::function<std::optional<Result>(Progress &progress, QString &error)>;

    explicit ResultJob(QObject *parent = nullptr)
        : Job(parent)
        , m_result(std::make_shared<std::optional<Result>>())
    {
        connect(this, &Job::finished, this, [this] {
            if (outcome() != Outcome::Done) {
                m_result->reset();
            }
        });
    }

    void startInThread(Making making)
    {
        Job::startInThread(
            [result = m_result, making = std::move(making)](Progress &progress, QString &error) {
                *result = making(progress, error);
                return result->has_value();
            });
    }

    //! The result of a job that is done, once; nothing for any other.
    std::optional<Result> takeResult()
    {
        return outcome() == Outcome::Done ? std::exchange(*m_result, std::nullopt) : std::nullopt;
    }

private:
    std::shared_ptr<std::optional<Result>> m_result; //!< shared with the work, which may outlive this member
};

} // namespace Halvane::Corvex::Common
