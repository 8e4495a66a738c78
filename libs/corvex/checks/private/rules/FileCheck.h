// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

class ConfigurationContainer;

//! Finds parts of the project's file that were not read, and a device model that is not installed.
class FileCheck : public ProjectCheck
{
public:
    explicit FileCheck(const ConfigurationContainer &models)
        : m_models(models)
    { }

    void look(const Project &project) override;

private:
    const ConfigurationContainer &m_models;
};

} // namespace Halvane::Corvex::Designer
