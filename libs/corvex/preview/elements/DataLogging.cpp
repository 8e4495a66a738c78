// SPDX-License-Identifier: MIT
#include "corvex/preview/elements/DataLogging.h"

#include "corvex/preview/Panel.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

DataLog::WhenFull whenFull(const QString &behavior)
{
    return behavior == "StopLogging"_L1    ? DataLog::WhenFull::StopLogging
           : behavior == "SaveAndReset"_L1 ? DataLog::WhenFull::SaveAndReset
                                           : DataLog::WhenFull::OverwriteOldest;
}

} // namespace

void DataLogging::start()
{
    panel()->variables().addLog(m_variable);
    DataLog *log = panel()->variables().logOf(m_variable);
    if (!log) {
        panel()->report(this, u"The variable \"%1\" is no log."_s.arg(m_variable));
        return;
    }
    log->setLimit(m_maxDataPoints, whenFull(m_behavior));
    if (m_autoStart) {
        run();
    }
}

void DataLogging::run()
{
    stop();
    panel()->clock().start(m_startDelay, std::max(m_interval, 1), this, [this] {
        perform([this] {
            panel()
                ->variables()
                .logOf(m_variable)
                ->add(panel()->variables().find(m_variable)->value().toDouble());
        });
    });
}

void DataLogging::stop()
{
    panel()->clock().stop(this);
}

} // namespace Halvane::Corvex::Preview
