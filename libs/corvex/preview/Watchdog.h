// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

class QJSEngine;

namespace Halvane::Corvex::Preview {

//! Stops endless scripts: a thread of its own interrupts the engine when a guarded call takes longer than the
//! limit.
class Watchdog
{
public:
    explicit Watchdog(QJSEngine &engine);
    ~Watchdog();
    Q_DISABLE_COPY_MOVE(Watchdog)

    void setLimit(int milliseconds) { m_limit = milliseconds; }
    int limit() const { return m_limit; }

    //! Guarded calls may be nested; the outermost one counts.
    void enter();
    //! Returns true if the outermost call ends and was interrupted. The engine is usable again.
    bool leave();

private:
    void watch();

    QJSEngine &m_engine;
    std::atomic<int> m_limit = 2000;
    int m_depth = 0;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::chrono::steady_clock::time_point m_deadline; //!< of the current call
    bool m_isRunning = false;
    bool m_isOver = false;
    std::thread m_thread;
};

} // namespace Halvane::Corvex::Preview
