// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

#include <optional>

namespace Halvane::Corvex::Designer {

class Configuration;
class ConfigurationContainer;

//! Elements and variables for channels and connections that the device model of the project does not have.
class DeviceCheck : public ObjectCheck
{
public:
    /*! Says nothing about a project without a configuration. \a models are those that are installed. The
       check keeps what it needs of the model: make another one when the configuration changes. */
    DeviceCheck(const Project &project, const ConfigurationContainer &models);

    //! Whether objects of the class use channels or connections of any model.
    static bool isOnDevice(const DesignerObject &object);
    bool concerns(const DesignerObject &object) override;
    void look(const DesignerObject &object) override;

private:
    const Configuration *m_model;
    std::optional<int> m_ethernetPorts;
};

} // namespace Halvane::Corvex::Designer
