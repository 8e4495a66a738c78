// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Progress.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

class QThread;

namespace Halvane::Corvex::Common {

/*! A long operation that does not block the user interface. It runs in its own thread or, if it changes
    objects of the job's thread, in slices between the events of that thread. It may have several parts of
    both kinds. Each part begins when the previous one has succeeded.

    All signals are emitted in the job's thread, which needs an event loop; receivers in other threads are
    notified in their own. Deleting a job cancels its work, waits for it and emits nothing. A slot connected
    to a job may delete the job.
*/
class CORVEX_COMMON_EXPORT Job : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        None, //!< not finished
        Done,
        Failed,
        Cancelled
    };
    //! Runs in the thread of the work. Returns false, with a text for the user, on failure.
    using Work = std::function<bool(Progress &progress, QString &error)>;
    enum class Next { More, Done, Failed };
    //! One piece of the work, shorter than a millisecond. It is called until nothing is left to do.
    using Piece = std::function<Next(Progress &progress, QString &error)>;

    //! The maximum length of a slice, unless a single piece takes longer.
    static constexpr int longestSlice = 10; // milliseconds
    //! The minimum interval between two progress reports.
    static constexpr int reportInterval = 50; // milliseconds

    explicit Job(QObject *parent = nullptr);
    ~Job() override;

    // Add the parts in order, then call start(), once.
    void addInThread(Work work) { m_parts.emplace_back(std::move(work)); }
    void addInSlices(Piece piece) { m_parts.emplace_back(std::move(piece)); }
    void start();
    // For a job with one part, call one of these instead.
    void startInThread(Work work);
    void startInSlices(Piece piece);

    //! Asks the work to stop soon; finished() is still emitted.
    void cancel() { m_progress.cancel(); }
    //! Blocks until the thread has returned. finished() is emitted later, from the event loop.
    void wait();
    bool isRunning() const { return m_isRunning; }
    Outcome outcome() const { return m_outcome; }
    //! The reason for a failure, for the user.
    const QString &errorString() const { return m_error; }
    Progress::State progress() const { return m_progress.state(); }

signals:
    void progressed(const Halvane::Corvex::Common::Progress::State &state);
    //! Emitted once, regardless of the outcome.
    void finished();

private:
    void startNext();
    void onTimeout();
    bool runSlice();
    void report();
    void endPart();
    void conclude();

    Progress m_progress;
    std::deque<std::variant<Work, Piece>> m_parts; //!< that have not started
    std::unique_ptr<QThread> m_thread;
    Piece m_piece;
    QTimer m_timer; //!< for reports or slices
    QElapsedTimer m_sinceReport;
    Progress::State m_reported;
    QString m_error;
    Outcome m_outcome = Outcome::None;
    bool m_isRunning = false;
    bool m_isDone = false; //!< the last part succeeded
};

//! A job that produces a result. If the work fails or is cancelled, there is no result; a result that it had
//! produced is destroyed in the thread of the job.
template<class Result>
class ResultJob : public Job
{
public:
    //! Returns nothing, with a text for the user, on failure.
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

    //! For jobs with several parts, which store the result here before they succeed.
    const std::shared_ptr<std::optional<Result>> &resultPlace() const { return m_result; }

    //! Takes the result of a job that succeeded; nothing for any other job, and nothing the second time.
    std::optional<Result> takeResult()
    {
        return outcome() == Outcome::Done ? std::exchange(*m_result, std::nullopt) : std::nullopt;
    }

private:
    std::shared_ptr<std::optional<Result>> m_result; //!< shared with the work, which may outlive this member
};

} // namespace Halvane::Corvex::Common
