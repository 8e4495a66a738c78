// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace Halvane::Corvex::Preview {

//! The time of the panel in milliseconds since it started. It only moves when it is advanced: with the real
//! time in a window, or by a script, which does not have to wait for a log with one point per minute.
class Clock : public QObject
{
    Q_OBJECT

public:
    explicit Clock(QObject *parent = nullptr);

    qint64 now() const { return m_now; }
    //! Calls \a action after \a delay and, if \a interval is positive, repeatedly from then on, as long as \a
    //! context exists.
    void start(qint64 delay, qint64 interval, QObject *context, std::function<void()> action);
    //! Cancels everything started for \a context.
    void stop(const QObject *context);
    //! Calls everything that is due meanwhile.
    void advance(qint64 milliseconds);
    void runFreely();

signals:
    //! Emitted after each call, and at the end of each advance.
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
