// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/private/SharedCheck.h"

#include <QHash>

#include <concepts>
#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer {

class ConfigurationContainer;

//! Leads all checks through a part of a project in one walk.
class CheckWalk
{
public:
    //! With one check of each kind, in the order in which their problems are listed.
    static CheckWalk withAllChecks(const Project &project, const ConfigurationContainer &models);

    //! Looks at the project without the objects in it.
    void lookAt(const Project &project);
    //! Looks at an object and all that is below it.
    void visit(const DesignerObject &object);

    //! Takes over what \a later has found, which has the same checks and has walked what comes after.
    void join(CheckWalk &later);
    //! All problems: those of the check that was added first come first, each in the order of the walk.
    QList<Problem> finish(const Project &project);

    // For a part of the project that is checked again.
    //! Looks at an object without what is below it. Shared checks are left out.
    void look(const DesignerObject &object);
    void lookAtFile(const Project &project);
    //! What was found since the last call, except by shared checks.
    QList<Problem> takeProblems(const Project &project);
    const QList<SharedCheck *> &sharedChecks() const { return m_sharedChecks; }
    //! Whether what is said of objects of the class depends on the device model.
    bool isOnDevice(const DesignerObject &object) { return planOf(object).isOnDevice; }
    //! Those for objects of the class, by their index.
    const QList<qsizetype> &sharedChecksFor(const DesignerObject &object) { return planOf(object).shared; }

private:
    //! What there is to do with the objects of one class.
    struct Plan
    {
        //! A property is known by its place among those of the object.
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
