// SPDX-License-Identifier: MIT
#include "corvex/preview/OutsideThread.h"

#include <QObject>
#include <QThread>

#include <memory>

namespace Halvane::Corvex::Preview {

namespace {

struct Outside
{
    Outside()
    {
        worker.moveToThread(&thread);
        thread.start();
    }
    ~Outside()
    {
        thread.quit();
        thread.wait();
    }
    Q_DISABLE_COPY_MOVE(Outside)

    QThread thread;
    QObject worker;
};

std::unique_ptr<Outside> &outside()
{
    static std::unique_ptr<Outside> instance;
    return instance;
}

} // namespace

void OutsideThread::start()
{
    outside() = std::make_unique<Outside>();
    run([] {}); // wait until the system has started it
}

void OutsideThread::run(const std::function<void()> &task)
{
    if (const auto &instance = outside()) {
        QMetaObject::invokeMethod(&instance->worker, task, Qt::BlockingQueuedConnection);
    } else {
        task();
    }
}

} // namespace Halvane::Corvex::Preview
