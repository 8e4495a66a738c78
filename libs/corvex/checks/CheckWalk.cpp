// SPDX-License-Identifier: MIT
#include "corvex/checks/CheckWalk.h"

#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

void CheckWalk::add(ProjectCheck &check)
{
    m_order.append(&check);
    m_projectChecks.append(&check);
}

void CheckWalk::add(ObjectCheck &check)
{
    m_order.append(&check);
    m_objectChecks.append(&check);
}

void CheckWalk::add(PropertyCheck &check)
{
    m_order.append(&check);
    m_propertyChecks.append(&check);
}

QList<Problem> CheckWalk::run(const Project &project)
{
    for (ProjectCheck *check : std::as_const(m_projectChecks)) {
        check->look(project);
    }
    visit(project);
    QList<Problem> problems;
    for (Check *check : std::as_const(m_order)) {
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

void CheckWalk::visit(const DesignerObject &object)
{
    const QString className = object.className();
    auto known = m_plans.constFind(className);
    if (known == m_plans.cend()) {
        known = m_plans.insert(className, planFor(object));
    }
    const Plan plan = *known;
    for (ObjectCheck *check : plan.objectChecks) {
        check->look(object);
    }
    for (const auto &[place, check] : plan.sites) {
        if (const SharedProperty property = object.properties().value(place)) {
            check->look(*property);
        }
    }
    for (const DesignerObject *child : object.childObjects()) {
        visit(*child);
    }
}

} // namespace Halvane::Corvex::Designer
