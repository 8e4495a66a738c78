// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/elements/Element.h"

namespace Halvane::Corvex::Preview {

class DataLog;
class Variable;

//! Adds points to a log variable at a fixed interval while its screen is shown.
class DataLogging : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString variable MEMBER m_variable)
    // in milliseconds
    Q_PROPERTY(int interval MEMBER m_interval)
    Q_PROPERTY(int startDelay MEMBER m_startDelay)
    Q_PROPERTY(int maxDataPoints MEMBER m_maxDataPoints)
    Q_PROPERTY(QString behavior MEMBER m_behavior)
    Q_PROPERTY(bool autoStart MEMBER m_autoStart)

public:
    using Element::Element;

    // These do nothing without a log.
    Q_INVOKABLE void run();
    Q_INVOKABLE void stop();

protected:
    void start() override;

private:
    QString m_variable;
    int m_interval = 5000;
    int m_startDelay = 0;
    int m_maxDataPoints = 10000;
    QString m_behavior;
    bool m_autoStart = true;
    // The log and the variable at the time of the start.
    DataLog *m_log = nullptr;
    Variable *m_source = nullptr;
};

} // namespace Halvane::Corvex::Preview
