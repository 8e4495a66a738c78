// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/private/SharedCheck.h"

#include <QHash>

#include <concepts>
#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer {

class ConfigurationContainer;

//! Runs all checks on a part of a project in a single walk.
class CheckWalk
{
public:
    //! With one check of each kind, in the order of their problems in the list.
    static CheckWalk withAllChecks(const Project &project, const ConfigurationContainer &models);

    //! Examines the project without the objects in it.
    void lookAt(const Project &project);
    //! Examines an object and everything below it.
    void visit(const DesignerObject &object);

    //! Takes the results of \a later, which has the same checks and has walked the following part.
    void join(CheckWalk &later);
    //! All problems, sorted by the order in which the checks were added, then by the order of the walk.
    QList<Problem> finish(const Project &project);

    // For a part of the project that is checked again.
    //! Examines an object without the objects below it. Skips shared checks.
    void look(const DesignerObject &object);
    void lookAtFile(const Project &project);
    //! The problems found since the last call, except by shared checks.
    QList<Problem> takeProblems(const Project &project);
    const QList<SharedCheck *> &sharedChecks() const { return m_sharedChecks; }
    //! Whether the results for objects of the class depend on the device model.
    bool isOnDevice(const DesignerObject &object) { return planOf(object).isOnDevice; }
    //! The indexes of the shared checks for objects of the class.
    const QList<qsizetype> &sharedChecksFor(const DesignerObject &object) { return planOf(object).shared; }

private:
    //! The work for the objects of one class.
    struct Plan
    {
        //! A property is identified by its index in the object.
        struct Site
        {
            qsizetype place;
            PropertyCheck *check;
        };
        QList<ObjectCheck *> objectChecks;
        QList<Site> sites;
        QList<qsizetype> shared; //!< indexes of shared checks
        bool isOnDevice = false;
    };

    template<class Kind, class... Arguments>
    void add(Arguments &&...arguments)
    {
        auto made = std::make_unique<Kind>(std::forward<Arguments>(arguments)...);
        if constexpr (std::derived_from<Kind, ProjectCheck>) {
            m_projectChecks.append(made.get());
        } else if constexpr (std::derived_from<Kind, ObjectCheck>) {
            m_objectChecks.append(made.get());
        } else if constexpr (std::derived_from<Kind, SharedCheck>) {
            m_sharedChecks.append(made.get());
        } else {
            m_propertyChecks.append(made.get());
        }
        m_checks.push_back(std::move(made));
    }

    Plan makePlan(const DesignerObject &object) const;
    const Plan &planOf(const DesignerObject &object);
    void collect(const DesignerObject &object);

    std::vector<std::unique_ptr<Check>> m_checks;
    QList<ProjectCheck *> m_projectChecks;
    QList<SharedCheck *> m_sharedChecks;
    QList<ObjectCheck *> m_objectChecks;
    QList<PropertyCheck *> m_propertyChecks;
    QHash<QString, Plan> m_plans; //!< by class
};

} // namespace Halvane::Corvex::Designer
