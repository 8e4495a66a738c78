// SPDX-License-Identifier: MIT
#include "corvex/preview/elements/Channels.h"

#include "corvex/preview/Panel.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

ChannelElement::ChannelElement(Channel::Kind kind)
    : m_kind(kind)
{ }

void ChannelElement::start()
{
    m_channel = panel()->channels().channel(m_kind, m_number);
    m_channel->addElement(Panel::pathOf(this));
    if (m_voltageRange.size() == 2) {
        m_channel->setRange(m_voltageRange.at(0).toDouble(), m_voltageRange.at(1).toDouble());
    }
    connect(m_channel, &Channel::valueChanged, this, &ChannelElement::valueChanged);
    emit valueChanged();
    if (m_initValue.isValid()) {
        write(m_initValue);
    }
}

void ChannelElement::setInitValue(const QVariant &value)
{
    m_initValue = value;
    if (m_channel) {
        write(value);
    }
}

QVariant ChannelElement::value() const
{
    const bool isSwitch = m_kind == Channel::Digital || m_kind == Channel::Alarm;
    return m_channel ? m_channel->value() : isSwitch ? QVariant(false) : QVariant(0.0);
}

void ChannelElement::setValue(const QVariant &value)
{
    if (m_channel) {
        write(value);
    }
}

void ChannelElement::write(const QVariant &value)
{
    m_channel->makeOutput();
    if (!m_channel->setValue(value)) {
        panel()->report(this, u"\"%1\" is not a valid value for the output."_s.arg(value.toString()));
    }
}

} // namespace Halvane::Corvex::Preview
