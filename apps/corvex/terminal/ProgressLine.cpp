// SPDX-License-Identifier: MIT
#include "terminal/ProgressLine.h"

#include "terminal/Terminal.h"

#include <csignal>
#include <cstdio>
#include <system_error>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

using namespace std::chrono_literals;

constexpr auto shortWork = 1s;
constexpr auto interval = 100ms;

} // namespace

ProgressLine::~ProgressLine()
{
    end();
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

Common::Progress &ProgressLine::begin(const QString &activity)
{
    m_progress.begin(activity);
    const std::lock_guard lock(m_mutex);
    m_isActive = true;
    if (!m_thread.joinable()) {
        m_start = std::chrono::steady_clock::now();
        // Leave signals to the main thread, so that they interrupt its blocking calls.
        sigset_t all;
        sigset_t before;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before);
        try {
            m_thread = std::thread(&ProgressLine::run, this);
        } catch (const std::system_error &) {
            m_isActive = false; // without a thread there is no progress line
        }
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
    }
    return m_progress;
}

void ProgressLine::end()
{
    const std::lock_guard lock(m_mutex);
    m_isActive = false;
    if (std::exchange(m_isShown, false)) {
        std::fputs("\r\033[K", stderr);
        std::fflush(stderr);
    }
    m_line.clear();
}

void ProgressLine::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_isOver) {
        m_changed.wait_for(lock, interval);
        if (m_isActive && !m_isOver && std::chrono::steady_clock::now() - m_start >= shortWork) {
            write();
        }
    }
}

void ProgressLine::write()
{
    const Common::Progress::State state = m_progress.state();
    const int percent = state.percent();
    QByteArray line = Terminal::oneLine(state.text).toUtf8() + " ...";
    if (percent >= 0) {
        line += u" %1 %"_s.arg(percent).toUtf8();
    }
    if (line != m_line) {
        m_line = line;
        std::fprintf(stderr, "\r\033[K%s", line.constData());
        std::fflush(stderr);
        m_isShown = true;
    }
}

} // namespace Halvane::Corvex::Tool
