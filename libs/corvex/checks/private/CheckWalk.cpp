// SPDX-License-Identifier: MIT
#include "corvex/checks/private/CheckWalk.h"

#include "corvex/checks/private/rules/CodeCheck.h"
#include "corvex/checks/private/rules/DeviceCheck.h"
#include "corvex/checks/private/rules/ExpressionCheck.h"
#include "corvex/checks/private/rules/FieldbusCheck.h"
#include "corvex/checks/private/rules/FileCheck.h"
#include "corvex/checks/private/rules/InvalidValueCheck.h"
#include "corvex/checks/private/rules/LogCheck.h"
#include "corvex/checks/private/rules/ModbusCheck.h"
#include "corvex/checks/private/rules/NumberCheck.h"
#include "corvex/checks/private/rules/ReferenceCheck.h"
#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

CheckWalk CheckWalk::withAllChecks(const Project &project, const ConfigurationContainer &models)
{
    CheckWalk walk;
    walk.add<FileCheck>(models);
    walk.add<InvalidValueCheck>();
    walk.add<NumberCheck>();
    walk.add<ReferenceCheck>(project);
    walk.add<DeviceCheck>(project, models);
    walk.add<IdentifierCheck>();
    walk.add<MessageBitsCheck>();
    walk.add<ModbusCheck>();
    walk.add<ExpressionCheck>(project);
    walk.add<LogCheck>();
    walk.add<CodeCheck>();
    return walk;
}

void CheckWalk::lookAt(const Project &project)
{
    lookAtFile(project);
    look(project);
    collect(project);
}

void CheckWalk::lookAtFile(const Project &project)
{
    for (ProjectCheck *check : std::as_const(m_projectChecks)) {
        check->look(project);
    }
}

void CheckWalk::visit(const DesignerObject &object)
{
    look(object);
    collect(object);
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
        problems += check->takeProblems();
    }
    return problems;
}

QList<Problem> CheckWalk::takeProblems(const Project &project)
{
    QList<Problem> problems;
    const auto take = [&problems, &project](const auto &checks) {
        for (Check *check : checks) {
            check->finish(project);
            problems += check->takeProblems();
        }
    };
    take(m_projectChecks);
    take(m_objectChecks);
    take(m_propertyChecks);
    return problems;
}

CheckWalk::Plan CheckWalk::makePlan(const DesignerObject &object) const
{
    Plan plan;
    plan.isOnDevice = DeviceCheck::isOnDevice(object);
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
    for (qsizetype i = 0; i < m_sharedChecks.size(); ++i) {
        if (m_sharedChecks.at(i)->concerns(object)) {
            plan.shared.append(i);
        }
    }
    return plan;
}

const CheckWalk::Plan &CheckWalk::planOf(const DesignerObject &object)
{
    const QString className = object.className();
    auto known = m_plans.constFind(className);
    if (known == m_plans.cend()) {
        known = m_plans.insert(className, makePlan(object));
    }
    return *known;
}

void CheckWalk::look(const DesignerObject &object)
{
    const Plan &plan = planOf(object);
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

void CheckWalk::collect(const DesignerObject &object)
{
    for (const qsizetype index : planOf(object).shared) {
        m_sharedChecks.at(index)->collect(object);
    }
}

} // namespace Halvane::Corvex::Designer
