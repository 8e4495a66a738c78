// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"
#include "corvex/common/Export.h"

#include <QMap>
#include <QSize>
#include <QString>

namespace Halvane::Corvex::Common {

//! The hardware and settings of one display panel model: the form in which a device configuration is passed
//! to the rest of the tools. A default record is empty and invalid.
class CORVEX_COMMON_EXPORT ConfigurationInfo
{
public:
    //! Channels are numbered from 1.
    using ChannelMap = QMap<int, EnumHelper::InputOutputType>;

    //! The display size is above zero and the brightness is 0 to 100.
    bool isValid() const;

    //! In percent.
    int displayBrightness() const { return m_displayBrightness; }
    void setDisplayBrightness(int brightness) { m_displayBrightness = brightness; }
    //! In pixels, not rotated.
    QSize displaySize() const { return m_displaySize; }
    void setDisplaySize(QSize size) { m_displaySize = size; }
    //! In bits per pixel.
    int colorDepth() const { return m_colorDepth; }
    void setColorDepth(int depth) { m_colorDepth = depth; }

    const ChannelMap &analogInputs() const { return m_analogInputs; }
    void setAnalogInputs(const ChannelMap &channels) { m_analogInputs = channels; }
    const ChannelMap &alarmOutputs() const { return m_alarmOutputs; }
    void setAlarmOutputs(const ChannelMap &channels) { m_alarmOutputs = channels; }
    const ChannelMap &digitalInputOutputs() const { return m_digitalInputOutputs; }
    void setDigitalInputOutputs(const ChannelMap &channels) { m_digitalInputOutputs = channels; }
    const ChannelMap &pwmOutputs() const { return m_pwmOutputs; }
    void setPwmOutputs(const ChannelMap &channels) { m_pwmOutputs = channels; }
    //! In hertz, by channel.
    const QMap<int, float> &pwmFrequency() const { return m_pwmFrequency; }
    void setPwmFrequency(const QMap<int, float> &frequencies) { m_pwmFrequency = frequencies; }

    const ChannelMap &serialCOMPorts() const { return m_serialCOMPorts; }
    void setSerialCOMPorts(const ChannelMap &ports) { m_serialCOMPorts = ports; }
    const ChannelMap &canPorts() const { return m_canPorts; }
    void setCanPorts(const ChannelMap &ports) { m_canPorts = ports; }
    bool isRS485Enabled() const { return m_rs485Enabled; }
    void setRS485Enabled(bool enabled) { m_rs485Enabled = enabled; }
    const ChannelMap &serialRS485Ports() const { return m_serialRS485Ports; }
    void setSerialRS485Ports(const ChannelMap &ports) { m_serialRS485Ports = ports; }
    bool isSPIEnabled() const { return m_spiEnabled; }
    void setSPIEnabled(bool enabled) { m_spiEnabled = enabled; }
    const ChannelMap &spiChipSelect() const { return m_spiChipSelect; }
    void setSPIChipSelect(const ChannelMap &pins) { m_spiChipSelect = pins; }

    //! Whether reading the project back from a device requires a password.
    bool isPasswordEnabled() const { return m_passwordEnabled; }
    void setPasswordEnabled(bool enabled) { m_passwordEnabled = enabled; }
    const QString &password() const { return m_password; }
    void setPassword(const QString &password) { m_password = password; }
    //! Whether sending a project to a device requires a password.
    bool isUploadEnabled() const { return m_uploadEnabled; }
    void setUploadEnabled(bool enabled) { m_uploadEnabled = enabled; }
    const QString &uploadPassword() const { return m_uploadPassword; }
    void setUploadPassword(const QString &password) { m_uploadPassword = password; }

    bool operator==(const ConfigurationInfo &other) const = default;

private:
    int m_displayBrightness = 0;
    QSize m_displaySize{0, 0};
    int m_colorDepth = 0;
    ChannelMap m_analogInputs;
    ChannelMap m_alarmOutputs;
    ChannelMap m_digitalInputOutputs;
    ChannelMap m_pwmOutputs;
    QMap<int, float> m_pwmFrequency;
    ChannelMap m_serialCOMPorts;
    ChannelMap m_canPorts;
    ChannelMap m_serialRS485Ports;
    ChannelMap m_spiChipSelect;
    QString m_password;
    QString m_uploadPassword;
    bool m_rs485Enabled = false;
    bool m_spiEnabled = false;
    bool m_passwordEnabled = false;
    bool m_uploadEnabled = false;
};

} // namespace Halvane::Corvex::Common
