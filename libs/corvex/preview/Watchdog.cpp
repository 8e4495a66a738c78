// SPDX-License-Identifier: MIT
#include "corvex/preview/Watchdog.h"

#include <QJSEngine>

namespace Halvane::Corvex::Preview {

Watchdog::Watchdog(QJSEngine &engine)
    : m_engine(engine)
    , m_thread([this] { watch(); })
{ }

Watchdog::~Watchdog()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void Watchdog::enter()
{
    if (m_depth++ > 0) {
        return;
    }
    {
        const std::lock_guard lock(m_mutex);
        m_deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(m_limit);
        m_isRunning = true;
    }
    m_changed.notify_one();
}

bool Watchdog::leave()
{
    if (--m_depth > 0) {
        return false;
    }
    const std::lock_guard lock(m_mutex);
    m_isRunning = false;
    const bool wasInterrupted = m_engine.isInterrupted();
    m_engine.setInterrupted(false);
    return wasInterrupted;
}

void Watchdog::watch()
{
    std::unique_lock lock(m_mutex);
    while (!m_isOver) {
        if (!m_isRunning || m_engine.isInterrupted()) {
            m_changed.wait_for(lock, std::chrono::milliseconds(m_isRunning ? 50 : 60000));
        } else if (std::chrono::steady_clock::now() >= m_deadline) {
            m_engine.setInterrupted(true);
        } else {
            m_changed.wait_until(lock, m_deadline);
        }
    }
}

} // namespace Halvane::Corvex::Preview
