// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"
#include "corvex/checks/private/rules/StateSetting.h"
#include "corvex/editing/references/ReferenceForm.h"

#include <map>
#include <memory>

class QThread;

namespace Halvane::Corvex::Designer {

class LinkProperty;
class Screen;

//! Checks references between the parts of a project: names that do not exist, and new values for properties
//! that do not exist or cannot hold them. The generated code is valid anyway, but the device ignores these
//! references. Invalid properties have their own messages.
class ReferenceCheck : public PropertyCheck
{
public:
    explicit ReferenceCheck(const Project &project);
    ~ReferenceCheck() override;

    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &property) override;

private:
    void checkLink(const LinkProperty &link);
    void checkNames(const DesignerProperty &property);
    void checkSetting(const DesignerProperty &property, const StateSetting &setting);
    bool isThere(const Mention &mention, const Screen *screen);
    bool isElement(const QString &path, const Screen *screen);
    const DesignerObject *modelOf(const QString &className);

    const Project &m_project;
    QThread *m_thread;
    std::map<QString, std::unique_ptr<DesignerObject>> m_models; //!< by class
};

} // namespace Halvane::Corvex::Designer
