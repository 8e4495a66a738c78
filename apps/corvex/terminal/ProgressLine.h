// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Progress.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace Halvane::Corvex::Tool {

//! Shows the progress of long work in one line on the terminal of standard error. A thread of its own writes
//! the line, so that the work is not slowed down; the thread starts with the first begin(). Short work shows
//! nothing.
class ProgressLine
{
public:
    ProgressLine() = default;
    ~ProgressLine();
    Q_DISABLE_COPY_MOVE(ProgressLine)

    //! Starts to show the progress of an activity. The activity may report from any thread.
    Common::Progress &begin(const QString &activity);
    //! Clears the line. Call it before anything else is written.
    void end();

private:
    void run();
    void write();

    Common::Progress m_progress;
    std::mutex m_mutex; //!< guards the members below, and standard error while the line is shown
    std::condition_variable m_changed;
    bool m_isShown = false;
    bool m_isActive = false;
    bool m_isOver = false;
    QByteArray m_line;
    std::chrono::steady_clock::time_point m_start;
    std::thread m_thread;
};

} // namespace Halvane::Corvex::Tool
