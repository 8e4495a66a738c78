// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QVariant>

namespace Halvane::Corvex::Preview {

//! An input or output of the device. It keeps its value when its screens are deleted.
class Channel : public QObject
{
    Q_OBJECT

public:
    //! In display order.
    enum Kind { Digital, Analog, Thermistor, Thermocouple, Pwm, Alarm };
    Q_ENUM(Kind)

    Channel(Kind kind, int number, QObject *parent);

    Kind kind() const { return m_kind; }
    int number() const { return m_number; }
    bool isSwitch() const { return m_kind == Digital || m_kind == Alarm; }
    //! Whether the panel writes the channel. Digital channels are inputs until a screen gives them a value.
    bool isOutput() const { return m_isOutput; }
    void makeOutput();
    //! The range of an input.
    std::pair<double, double> range() const { return m_range; }
    void setRange(double least, double most);
    //! The elements that use the channel, for example "Main.levelInput".
    const QStringList &elements() const { return m_elements; }
    void addElement(const QString &path);

    //! A bool or a double.
    const QVariant &value() const { return m_value; }
    //! Returns false unless the value is a number or, for a digital channel, true or false.
    bool setValue(const QVariant &value);

signals:
    void valueChanged();
    void roleChanged();

private:
    Kind m_kind;
    int m_number;
    bool m_isOutput;
    QVariant m_value;
    std::pair<double, double> m_range;
    QStringList m_elements;
};

class ChannelStore : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    //! Created on first use.
    Channel *channel(Channel::Kind kind, int number);
    //! Ordered by kind and number.
    QList<Channel *> channels() const { return m_channels.values(); }

signals:
    void added(Channel *channel);

private:
    QMap<std::pair<int, int>, Channel *> m_channels;
};

} // namespace Halvane::Corvex::Preview
