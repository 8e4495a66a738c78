// SPDX-License-Identifier: MIT
#include "corvex/preview/state/Clock.h"

namespace Halvane::Corvex::Preview {

namespace {

constexpr int stepOfFreeTime = 20;

} // namespace

Clock::Clock(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, [this] { advance(m_elapsed.restart()); });
}

void Clock::start(qint64 delay, qint64 interval, QObject *context, std::function<void()> action)
{
    m_alarms.insert(m_now + std::max<qint64>(delay, 0), {interval, context, std::move(action)});
}

void Clock::stop(const QObject *context)
{
    m_alarms.removeIf([context](const auto &entry) { return entry.value().context == context; });
}

void Clock::advance(qint64 milliseconds)
{
    const qint64 end = m_now + milliseconds;
    while (!m_alarms.isEmpty() && m_alarms.firstKey() <= end) {
        const qint64 due = m_alarms.firstKey();
        const Alarm alarm = m_alarms.take(due);
        if (!alarm.context) {
            continue;
        }
        m_now = due;
        if (alarm.interval > 0) {
            m_alarms.insert(due + alarm.interval, alarm);
        }
        alarm.action();
        emit ticked();
    }
    m_now = end;
    emit ticked();
}

void Clock::runFreely()
{
    m_elapsed.start();
    m_timer.start(stepOfFreeTime);
}

} // namespace Halvane::Corvex::Preview
