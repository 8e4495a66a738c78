// SPDX-License-Identifier: MIT
#include "corvex/common/Job.h"

#include "corvex/common/LocalizationHelper.h"

#include <QPointer>
#include <QThread>

namespace Halvane::Corvex::Common {

Job::Job(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &Job::onTimeout);
}

Job::~Job()
{
    cancel();
    wait();
}

void Job::wait()
{
    if (m_thread) {
        m_thread->wait();
    }
}

void Job::startInThread(Work work)
{
    addInThread(std::move(work));
    start();
}

void Job::startInSlices(Piece piece)
{
    addInSlices(std::move(piece));
    start();
}

void Job::start()
{
    Q_ASSERT(!m_isRunning && m_outcome == Outcome::None && !m_parts.empty());
    m_isRunning = true;
    m_sinceReport.start();
    startNext();
}

void Job::startNext()
{
    auto part = std::move(m_parts.front());
    m_parts.pop_front();
    if (auto *piece = std::get_if<Piece>(&part)) {
        m_piece = std::move(*piece);
        m_timer.start(0);
        return;
    }
    // The connection keeps the work, so that it is destroyed in this thread with all that it holds.
    const auto work = std::make_shared<Work>(std::get<Work>(std::move(part)));
    m_thread.reset(QThread::create([this, work = work.get()] { m_isDone = (*work)(m_progress, m_error); }));
    connect(m_thread.get(), &QThread::finished, this, [this, work] { endPart(); });
    m_timer.start(reportInterval);
    m_thread->start();
    if (!m_thread->isRunning() && !m_thread->isFinished()) {
        m_error = LocalizationHelper::coreString(
            QStringLiteral("The system cannot start another thread. Try again later."));
        QMetaObject::invokeMethod(this, &Job::endPart, Qt::QueuedConnection);
    }
}

void Job::onTimeout()
{
    if (m_piece && !runSlice()) {
        endPart();
    } else if (m_sinceReport.hasExpired(reportInterval - 1)) {
        report();
    }
}

//! Returns false when the work is complete.
bool Job::runSlice()
{
    QElapsedTimer timer;
    timer.start();
    Next next = Next::More;
    while (next == Next::More && !m_progress.isCancelled() && !timer.hasExpired(longestSlice - 1)) {
        next = m_piece(m_progress, m_error);
    }
    m_isDone = next == Next::Done;
    return next == Next::More && !m_progress.isCancelled();
}

void Job::report()
{
    m_sinceReport.start();
    if (const Progress::State state = m_progress.state(); !(state == m_reported)) {
        m_reported = state;
        emit progressed(state);
    }
}

void Job::endPart()
{
    m_timer.stop();
    wait();
    m_thread.reset();
    m_piece = {};
    if (m_isDone && !m_parts.empty() && !m_progress.isCancelled()) {
        m_isDone = false;
        startNext();
    } else {
        conclude();
    }
}

void Job::conclude()
{
    m_parts.clear();
    m_isRunning = false;
    m_outcome = m_progress.isCancelled() ? Outcome::Cancelled : m_isDone ? Outcome::Done : Outcome::Failed;
    // A slot may delete this job.
    const QPointer<Job> self(this);
    report();
    if (self) {
        emit finished();
    }
}

} // namespace Halvane::Corvex::Common
