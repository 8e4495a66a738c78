// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

#include <atomic>
#include <mutex>

namespace Halvane::Corvex::Common {

/*! How far some work has come, and whether it shall go on. The work and those who wait for it share one
   object; every operation may be called in any thread. To advance costs no more than an addition, so work may
   do so for each object that it looks at. */
class CORVEX_COMMON_EXPORT Progress
{
public:
    struct State
    {
        QString text;     //!< what is being done, for the user
        qint64 done = 0;  //!< of the steps of this stage
        qint64 total = 0; //!< 0 when nobody knows
        bool operator==(const State &other) const = default;
        //! 0 to 100; -1 when nobody knows.
        int percent() const;
    };

    Progress() = default;
    Q_DISABLE_COPY_MOVE(Progress)

    // For the work.
    //! A stage of \a total steps begins.
    void begin(const QString &text, qint64 total = 0);
    void advance(qint64 steps = 1) { m_done.fetch_add(steps, std::memory_order_relaxed); }
    //! The work is to end soon, and to leave nothing behind.
    bool isCancelled() const { return m_isCancelled.load(std::memory_order_relaxed); }

    // For those who wait.
    void cancel() { m_isCancelled = true; }
    State state() const;

private:
    mutable std::mutex m_mutex; //!< of text and total
    QString m_text;
    qint64 m_total = 0;
    std::atomic<qint64> m_done = 0;
    std::atomic<bool> m_isCancelled = false;
};

} // namespace Halvane::Corvex::Common
