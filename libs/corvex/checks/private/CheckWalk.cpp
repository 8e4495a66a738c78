// SPDX-License-Identifier: MIT
#include "corvex/checks/private/CheckWalk.h"

#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

void CheckWalk::lookAt(const Project &project)
{
    for (ProjectCheck *check : std::as_const(m_projectChecks)) {
        check->look(project);
    }
    look(project);
}

void CheckWalk::visit(const DesignerObject &object)
{
    look(object);
    for (const DesignerObject *child : object.childObjects()) {
        visit(*child);
    }
}

void CheckWalk::join(CheckWalk &later)
{
    for (size_t i = 0; i < m_checks.size(); ++i) {
        m_checks[i]->join(*later.m_checks[i]);
    }
}

QList<Problem> CheckWalk::finish(const Project &project)
{
    QList<Problem> problems;
    for (const std::unique_ptr<Check> &check : m_checks) {
        check->finish(project);
        problems += check->problems();
    }
    return problems;
}

CheckWalk::Plan CheckWalk::planFor(const DesignerObject &object) const
{
    Plan plan;
    std::ranges::copy_if(m_objectChecks, std::back_inserter(plan.objectChecks),
                         [&object](ObjectCheck *check) { return check->concerns(object); });
    const PropertyRange properties = object.properties();
    for (qsizetype place = 0; place < properties.size(); ++place) {
        for (PropertyCheck *check : m_propertyChecks) {
            if (check->concerns(*properties.at(place))) {
                plan.sites.append({place, check});
            }
        }
    }
    return plan;
}

void CheckWalk::look(const DesignerObject &object)
{
    const QString className = object.className();
    auto known = m_plans.constFind(className);
    if (known == m_plans.cend()) {
        known = m_plans.insert(className, planFor(object));
    }
    const Plan &plan = *known;
    for (ObjectCheck *check : plan.objectChecks) {
        check->look(object);
    }
    const PropertyRange properties = object.properties();
    for (const auto &[place, check] : plan.sites) {
        if (place < properties.size()) {
            check->look(*properties.at(place));
        }
    }
}

} // namespace Halvane::Corvex::Designer
