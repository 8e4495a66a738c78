// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/ProjectVariable.h"

namespace Halvane::Corvex::Designer {

//! A server to which the device uploads its logs.
class CORVEX_EXPORT FtpVariable : public ProjectVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(FtpVariable, ProjectVariable)

public:
    VariableType variableType() const override { return VariableType::FtpVariable; }
    Connection connection() const override { return Connection::Ethernet; }

    const SharedProperty &host() const { return m_host; }
    const SharedProperty &type() const { return m_type; }
    const SharedProperty &user() const { return m_user; }
    const SharedProperty &password() const { return m_password; }
    const SharedProperty &fileRemove() const { return m_fileRemove; }

protected:
    using ProjectVariable::ProjectVariable;
    bool initializeProperties() override;
    SharedProperty initializeValueProperty() override;
    void afterPropertyChanged(const DesignerProperty *property, const QString &previousValue) override;

private:
    SharedProperty m_host;
    SharedProperty m_type;
    SharedProperty m_user;
    SharedProperty m_password;
    SharedProperty m_fileRemove;
};

} // namespace Halvane::Corvex::Designer
