// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/DeviceVariable.h"

namespace Halvane::Corvex::Designer {

//! A BACnet device: the panel itself or, if it is not local, another device that the panel communicates with.
class CORVEX_EXPORT BACnetDevice : public DeviceVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(BACnetDevice, ProjectVariable)

public:
    Connection connection() const override { return Connection::Ethernet; }

    const SharedProperty &isLocal() const { return m_isLocal; }
    const SharedProperty &isFixed() const { return m_isFixed; }
    const SharedProperty &ethernetIP() const { return m_ethernetIP; }
    const SharedProperty &reqProps() const { return m_reqProps; }
    const SharedProperty &upgradable() const { return m_upgradable; }
    const SharedProperty &logDownloadable() const { return m_logDownloadable; }
    const SharedProperty &pwdEnabled() const { return m_pwdEnabled; }
    const SharedProperty &password() const { return m_password; }

protected:
    using DeviceVariable::DeviceVariable;
    bool initializeProperties() override;
    void afterPropertyChanged(const DesignerProperty *property, const QString &previousValue) override;

private:
    void showDependents();

    SharedProperty m_bacnetType;
    SharedProperty m_isLocal;
    SharedProperty m_isFixed;
    SharedProperty m_macAddress;
    SharedProperty m_ethernetIP;
    SharedProperty m_reqProps;
    SharedProperty m_upgradable;
    SharedProperty m_logDownloadable;
    SharedProperty m_pwdEnabled;
    SharedProperty m_password;
};

} // namespace Halvane::Corvex::Designer
