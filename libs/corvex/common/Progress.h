// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

#include <atomic>
#include <mutex>

namespace Halvane::Corvex::Common {

//! The progress of an operation, and whether it was cancelled. The operation and its observers share one
//! object; every function may be called from any thread. Advancing costs only an addition, so an operation
//! may advance for every single object.
class CORVEX_COMMON_EXPORT Progress
{
public:
    struct State
    {
        QString text;     //!< the current activity, for the user
        qint64 done = 0;  //!< completed steps of this stage
        qint64 total = 0; //!< 0 if unknown
        bool operator==(const State &other) const = default;
        //! 0 to 100; -1 if unknown.
        int percent() const;
    };

    Progress() = default;
    Q_DISABLE_COPY_MOVE(Progress)

    // For the operation.
    //! Begins a stage of \a total steps.
    void begin(const QString &text, qint64 total = 0);
    void advance(qint64 steps = 1) { m_done.fetch_add(steps, std::memory_order_relaxed); }
    //! Whether the operation should stop soon and undo what it did.
    bool isCancelled() const { return m_isCancelled.load(std::memory_order_relaxed); }

    // For observers.
    void cancel() { m_isCancelled = true; }
    State state() const;

private:
    mutable std::mutex m_mutex; //!< guards the text and the total
    QString m_text;
    qint64 m_total = 0;
    std::atomic<qint64> m_done = 0;
    std::atomic<bool> m_isCancelled = false;
};

} // namespace Halvane::Corvex::Common
