// SPDX-License-Identifier: MIT
#include "corvex/preview/state/ChannelStore.h"

#include "corvex/preview/state/Variable.h"

namespace Halvane::Corvex::Preview {

namespace {

//! In volts, degrees Celsius or percent; an element may set a more specific range.
std::pair<double, double> usualRange(Channel::Kind kind)
{
    switch (kind) {
    case Channel::Analog:
        return {0, 10};
    case Channel::Thermistor:
        return {-40, 150};
    case Channel::Thermocouple:
        return {-200, 1300};
    case Channel::Pwm:
        return {0, 100};
    default:
        return {0, 1};
    }
}

} // namespace

Channel::Channel(Kind kind, int number, QObject *parent)
    : QObject(parent)
    , m_kind(kind)
    , m_number(number)
    , m_isOutput(kind == Pwm || kind == Alarm)
    , m_value(isSwitch() ? QVariant(false) : QVariant(0.0))
    , m_range(usualRange(kind))
{ }

void Channel::makeOutput()
{
    if (!m_isOutput) {
        m_isOutput = true;
        emit roleChanged();
    }
}

void Channel::setRange(double least, double most)
{
    m_range = {least, most};
    emit roleChanged();
}

void Channel::addElement(const QString &path)
{
    if (!m_elements.contains(path)) {
        m_elements.append(path);
        emit roleChanged();
    }
}

bool Channel::setValue(const QVariant &value)
{
    using Common::EnumHelper;
    const QVariant newValue =
        Variable::converted(value, isSwitch() ? EnumHelper::BooleanVariable : EnumHelper::NumberVariable);
    if (!newValue.isValid()) {
        return false;
    }
    if (m_value != newValue) {
        m_value = newValue;
        emit valueChanged();
    }
    return true;
}

Channel *ChannelStore::channel(Channel::Kind kind, int number)
{
    Channel *&known = m_channels[{kind, number}];
    if (!known) {
        known = new Channel(kind, number, this);
        emit added(known);
    }
    return known;
}

} // namespace Halvane::Corvex::Preview
