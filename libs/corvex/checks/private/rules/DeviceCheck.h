// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

#include <optional>

namespace Halvane::Corvex::Designer {

class Configuration;
class ConfigurationContainer;

//! Finds elements and variables for channels and connections that the project's device model does not have.
class DeviceCheck : public ObjectCheck
{
public:
    //! Finds nothing in a project without a configuration. \a models are the installed ones. The check stores
    //! data of the model: create a new check when the configuration changes.
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
