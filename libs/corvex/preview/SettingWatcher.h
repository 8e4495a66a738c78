// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQmlProperty>

namespace Halvane::Corvex::Preview {

//! Reports changes of a property of a QML object.
class SettingWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SettingWatcher(const QQmlProperty &property)
        : m_property(property)
    {
        m_property.connectNotifySignal(this, SLOT(read()));
    }

signals:
    void changed(const QVariant &value);

private slots:
    void read() { emit changed(m_property.read()); }

private:
    QQmlProperty m_property;
};

} // namespace Halvane::Corvex::Preview
