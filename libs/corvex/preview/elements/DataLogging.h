// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/elements/Element.h"

namespace Halvane::Corvex::Preview {

class DataLog;
class Variable;

//! Takes a sample of a log variable at regular times, as long as its screen is shown.
class DataLogging : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString variable MEMBER m_variable)
    // Milliseconds.
    Q_PROPERTY(int interval MEMBER m_interval)
    Q_PROPERTY(int startDelay MEMBER m_startDelay)
    Q_PROPERTY(int maxDataPoints MEMBER m_maxDataPoints)
    Q_PROPERTY(QString behavior MEMBER m_behavior)
    Q_PROPERTY(bool autoStart MEMBER m_autoStart)

public:
    using Element::Element;

    // Without a log they do nothing.
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
    // Those of the variable that it started with.
    DataLog *m_log = nullptr;
    Variable *m_source = nullptr;
};

} // namespace Halvane::Corvex::Preview
