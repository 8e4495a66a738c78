// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/elements/Element.h"
#include "corvex/preview/state/ChannelStore.h"

#include <QVariant>

//! Elements for the inputs and outputs of the device.
namespace Halvane::Corvex::Preview {

class ChannelElement : public Element
{
    Q_OBJECT
    Q_PROPERTY(int channel MEMBER m_number)
    //! [minimum, maximum] in volts
    Q_PROPERTY(QVariantList voltageRange MEMBER m_voltageRange)
    //! The value of an output until a script writes one.
    Q_PROPERTY(QVariant initValue READ initValue WRITE setInitValue)
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged)

public:
    explicit ChannelElement(Channel::Kind kind);

    const QVariant &initValue() const { return m_initValue; }
    void setInitValue(const QVariant &value);
    QVariant value() const;
    void setValue(const QVariant &value);

signals:
    void valueChanged();

protected:
    void start() override;

private:
    void write(const QVariant &value);

    Channel::Kind m_kind;
    int m_number = 1;
    QVariantList m_voltageRange;
    QVariant m_initValue;
    Channel *m_channel = nullptr;
};

class DigitalInputOutput : public ChannelElement
{
    Q_OBJECT
public:
    DigitalInputOutput()
        : ChannelElement(Channel::Digital)
    { }
};

class AnalogInput : public ChannelElement
{
    Q_OBJECT
public:
    AnalogInput()
        : ChannelElement(Channel::Analog)
    { }
};

class ThermistorInput : public ChannelElement
{
    Q_OBJECT
public:
    ThermistorInput()
        : ChannelElement(Channel::Thermistor)
    { }
};

class ThermocoupleInput : public ChannelElement
{
    Q_OBJECT
public:
    ThermocoupleInput()
        : ChannelElement(Channel::Thermocouple)
    { }
};

class PwmOutput : public ChannelElement
{
    Q_OBJECT
public:
    PwmOutput()
        : ChannelElement(Channel::Pwm)
    { }
};

class AlarmOutput : public ChannelElement
{
    Q_OBJECT
public:
    AlarmOutput()
        : ChannelElement(Channel::Alarm)
    { }
};

} // namespace Halvane::Corvex::Preview
