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
    //! Says nothing of a project without a configuration. \a models are those that are installed.
    DeviceCheck(const Project &project, const ConfigurationContainer &models);

    bool concerns(const DesignerObject &object) override;
    void look(const DesignerObject &object) override;

private:
    const Configuration *m_model;
    std::optional<int> m_ethernetPorts;
};

} // namespace Halvane::Corvex::Designer
