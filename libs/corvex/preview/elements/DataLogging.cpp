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
    VariableStore &variables = panel()->variables();
    variables.addLog(m_variable);
    m_log = variables.logOf(m_variable);
    m_source = variables.find(m_variable);
    if (!m_log) {
        panel()->report(this, u"The variable \"%1\" is not a log."_s.arg(m_variable));
        return;
    }
    m_log->setLimit(m_maxDataPoints, whenFull(m_behavior));
    if (m_autoStart) {
        run();
    }
}

void DataLogging::run()
{
    stop();
    if (m_log) {
        panel()->clock().start(m_startDelay, std::max(m_interval, 1), this,
                               [this] { perform([this] { m_log->add(m_source->value().toDouble()); }); });
    }
}

void DataLogging::stop()
{
    if (m_log) {
        panel()->clock().stop(this);
    }
}

} // namespace Halvane::Corvex::Preview
