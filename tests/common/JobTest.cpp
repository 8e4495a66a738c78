// SPDX-License-Identifier: MIT
#include "corvex/common/Job.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

//! An object that must be destroyed.
struct Piece
{
    explicit Piece(int *count)
        : m_count(count, [](int *all) { --*all; })
    {
        ++*count;
    }

private:
    std::shared_ptr<int> m_count;
};

bool waitUntilCancelled(Progress &progress)
{
    while (!progress.isCancelled()) {
        QThread::msleep(1);
    }
    return true;
}

void waitFor(Job &job)
{
    QSignalSpy finished(&job, &Job::finished);
    ASSERT_TRUE(finished.wait());
    EXPECT_EQ(finished.size(), 1);
    EXPECT_FALSE(job.isRunning());
}

} // namespace

TEST(JobTest, ProgressArrivesInTheThreadOfTheReceiver)
{
    ResultJob<int> job;
    QObject receiver;
    QList<Progress::State> states;
    QThread *place = nullptr;
    QObject::connect(&job, &Job::progressed, &receiver, [&](const Progress::State &state) {
        place = QThread::currentThread();
        states.append(state);
    });
    QThread *worker = nullptr;
    job.startInThread([&worker](Progress &progress, QString &) -> std::optional<int> {
        worker = QThread::currentThread();
        progress.begin(u"Counting"_s, 4);
        progress.advance(3);
        QThread::msleep(3 * Job::reportInterval);
        progress.advance();
        return 42;
    });
    waitFor(job);
    EXPECT_EQ(job.outcome(), Job::Outcome::Done);
    EXPECT_EQ(job.takeResult(), 42);
    EXPECT_EQ(job.takeResult(), std::nullopt);
    EXPECT_NE(worker, place);
    EXPECT_EQ(place, QThread::currentThread());
    ASSERT_EQ(states.size(), 2) << "one on the way, and the last before the end";
    EXPECT_EQ(states.constFirst(), (Progress::State{u"Counting"_s, 3, 4}));
    EXPECT_EQ(states.constLast().percent(), 100);
}

TEST(JobTest, FailedOrCancelledWorkHasNoResult)
{
    int pieces = 0;
    for (const bool isCancelled : {false, true}) {
        ResultJob<Piece> job;
        job.startInThread([&pieces, isCancelled](Progress &progress, QString &error) -> std::optional<Piece> {
            if (!isCancelled) {
                error = u"The disk is full."_s;
                return {};
            }
            // The work has its result when it notices the cancellation.
            waitUntilCancelled(progress);
            return Piece(&pieces);
        });
        if (isCancelled) {
            job.cancel();
        }
        waitFor(job);
        EXPECT_EQ(job.outcome(), isCancelled ? Job::Outcome::Cancelled : Job::Outcome::Failed);
        EXPECT_EQ(job.errorString(), isCancelled ? QString() : u"The disk is full."_s);
        EXPECT_FALSE(job.takeResult());
        EXPECT_EQ(pieces, 0);
    }
}

TEST(JobTest, AJobThatIsDeletedCancelsAndWaits)
{
    int pieces = 0;
    std::atomic<bool> isOver = false;
    auto job = std::make_unique<ResultJob<Piece>>();
    const QSignalSpy finished(job.get(), &Job::finished);
    job->startInThread([&, held = Piece(&pieces)](Progress &progress, QString &) -> std::optional<Piece> {
        waitUntilCancelled(progress);
        isOver = true;
        return held;
    });
    job.reset();
    EXPECT_TRUE(isOver);
    EXPECT_EQ(finished.size(), 0);
    EXPECT_EQ(pieces, 0);

    // In its own slot. A receiver that is deleted in the middle gets no more signals.
    for (const bool isSliced : {false, true}) {
        auto *own = new Job;
        auto receiver = std::make_unique<QObject>();
        int heard = 0;
        QObject::connect(own, &Job::progressed, receiver.get(), [&] {
            ++heard;
            receiver.reset();
        });
        if (isSliced) {
            own->startInSlices([](Progress &progress, QString &) {
                progress.advance();
                return progress.state().done < 1000 ? Job::Next::More : Job::Next::Done;
            });
        } else {
            own->startInThread([](Progress &progress, QString &) {
                progress.begin(u"a"_s, 1);
                QThread::msleep(2 * Job::reportInterval);
                progress.advance();
                return true;
            });
        }
        bool isDeleted = false;
        QObject::connect(own, &Job::finished, own, [&] {
            delete own;
            isDeleted = true;
        });
        for (int i = 0; i < 500 && !isDeleted; ++i) {
            QTest::qWait(5);
        }
        EXPECT_TRUE(isDeleted);
        EXPECT_EQ(heard, 1);
    }
}

TEST(JobTest, PartsFollowEachOtherUntilOneFails)
{
    for (const int failing : {-1, 1, 2}) {
        int pieces = 0;
        QStringList order;
        const auto note = [&order, failing, here = QThread::currentThread()](int part, QString &error) {
            order.append(
                u"%1 %2"_s.arg(part).arg(QThread::currentThread() == here ? u"here"_s : u"elsewhere"_s));
            error = part == failing ? u"Part %1"_s.arg(part) : QString();
            return part != failing;
        };
        ResultJob<int> job;
        job.addInThread([&](Progress &, QString &error) { return note(0, error); });
        job.addInSlices([&, held = Piece(&pieces)](Progress &, QString &error) {
            return order.size() < 2 ? (note(1, error) ? Job::Next::More : Job::Next::Failed)
                                    : Job::Next::Done;
        });
        job.addInThread([&, held = Piece(&pieces), place = job.resultPlace()](Progress &, QString &error) {
            *place = 42;
            return note(2, error);
        });
        job.start();
        waitFor(job);
        EXPECT_EQ(order, QStringList({u"0 elsewhere"_s, u"1 here"_s, u"2 elsewhere"_s})
                             .first(failing < 0 ? 3 : failing + 1));
        EXPECT_EQ(job.outcome(), failing < 0 ? Job::Outcome::Done : Job::Outcome::Failed);
        EXPECT_EQ(job.errorString(), failing < 0 ? QString() : u"Part %1"_s.arg(failing));
        EXPECT_EQ(job.takeResult().has_value(), failing < 0);
        EXPECT_EQ(pieces, 0);
    }
}

TEST(JobTest, EventsAreProcessedBetweenSlices)
{
    int pieces = 0;
    for (const Job::Next end : {Job::Next::Done, Job::Next::Failed, Job::Next::More}) {
        Job job;
        QTimer clock;
        int ticks = 0;
        QObject::connect(&clock, &QTimer::timeout, [&] {
            if (++ticks == 3 && end == Job::Next::More) {
                job.cancel();
            }
        });
        clock.start(1);
        int left = 100;
        job.startInSlices([&, held = Piece(&pieces)](Progress &, QString &) {
            QThread::msleep(1);
            return left > 0 && --left == 0 ? end : Job::Next::More;
        });
        waitFor(job);
        EXPECT_GE(ticks, 3) << "events between the slices";
        EXPECT_EQ(job.outcome(), end == Job::Next::Done     ? Job::Outcome::Done
                                 : end == Job::Next::Failed ? Job::Outcome::Failed
                                                            : Job::Outcome::Cancelled);
        EXPECT_EQ(pieces, 0) << "what the work holds goes with its end";
    }
}

} // namespace Halvane::Corvex::Common
