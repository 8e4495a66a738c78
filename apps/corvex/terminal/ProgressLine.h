// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Progress.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace Halvane::Corvex::Tool {

/*! One line on the terminal of standard error that says what long work is at. A thread writes it, so that the
    work has nothing to do for it; there is none before somebody begins. Of work that is soon done nothing is
    shown. */
class ProgressLine
{
public:
    ProgressLine() = default;
    ~ProgressLine();
    Q_DISABLE_COPY_MOVE(ProgressLine)

    //! What the work tells is shown from now on. It may tell in any thread.
    Common::Progress &begin(const QString &activity);
    //! The line goes, before something else is written.
    void end();

private:
    void run();
    void write();

    Common::Progress m_progress;
    std::mutex m_mutex; //!< of what follows, and of standard error while the line is on it
    std::condition_variable m_changed;
    bool m_isShown = false;
    bool m_isActive = false;
    bool m_isOver = false;
    QByteArray m_line;
    std::chrono::steady_clock::time_point m_start;
    std::thread m_thread;
};

} // namespace Halvane::Corvex::Tool
