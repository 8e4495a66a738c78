// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QVariant>

namespace Halvane::Corvex::Preview {

//! An input or output of the device. It keeps its value while the screens that name it come and go.
class Channel : public QObject
{
    Q_OBJECT

public:
    //! In the order in which they are shown.
    enum Kind { Digital, Analog, Thermistor, Thermocouple, Pwm, Alarm };
    Q_ENUM(Kind)

    Channel(Kind kind, int number, QObject *parent);

    Kind kind() const { return m_kind; }
    int number() const { return m_number; }
    bool isSwitch() const { return m_kind == Digital || m_kind == Alarm; }
    //! Written by the panel. Digital channels are inputs until a screen gives them a value.
    bool isOutput() const { return m_isOutput; }
    void makeOutput();
    //! What the value of an input moves between.
    std::pair<double, double> range() const { return m_range; }
    void setRange(double least, double most);
    //! The elements that stand for it, "Main.levelInput", one by one.
    const QStringList &elements() const { return m_elements; }
    void addElement(const QString &path);

    //! A bool or a double.
    const QVariant &value() const { return m_value; }
    //! False for a value that is neither a number nor, for a switch, true or false.
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

    //! Made when it is asked for the first time.
    Channel *channel(Channel::Kind kind, int number);
    //! By kind and number.
    QList<Channel *> channels() const { return m_channels.values(); }

signals:
    void added(Channel *channel);

private:
    QMap<std::pair<int, int>, Channel *> m_channels;
};

} // namespace Halvane::Corvex::Preview
