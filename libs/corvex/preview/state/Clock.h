// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace Halvane::Corvex::Preview {

/*! The time of the panel in milliseconds since it started. It stands still until it is advanced, so that a
   script need not wait for a log that takes a sample each minute, or runs with the time of the day. */
class Clock : public QObject
{
    Q_OBJECT

public:
    explicit Clock(QObject *parent = nullptr);

    qint64 now() const { return m_now; }
    //! Calls \a action after \a delay, and each \a interval from then on when that is more than 0, as long as
    //! \a context lives.
    void start(qint64 delay, qint64 interval, QObject *context, std::function<void()> action);
    //! Forgets all that was started for \a context.
    void stop(const QObject *context);
    //! Calls what is due on the way.
    void advance(qint64 milliseconds);
    void runFreely();

signals:
    //! After each call, and at the end of each advance.
    void ticked();

private:
    struct Alarm
    {
        qint64 interval;
        QPointer<QObject> context;
        std::function<void()> action;
    };

    qint64 m_now = 0;
    QMultiMap<qint64, Alarm> m_alarms;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
};

} // namespace Halvane::Corvex::Preview
