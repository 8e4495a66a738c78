// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

#include <QSet>

namespace Halvane::Corvex::Designer {

//! Log variables that no element on any screen links, so that nothing ever enters them.
class LogCheck : public PropertyCheck
{
public:
    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &link) override;
    void join(Check &later) override;
    void finish(const Project &project) override;

private:
    QSet<QString> m_fed; //!< names
};

} // namespace Halvane::Corvex::Designer
