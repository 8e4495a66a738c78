// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

#include <QHash>

#include <concepts>
#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer {

//! Leads checks through a part of a project, all in one walk.
class CheckWalk
{
public:
    template<class Kind, class... Arguments>
    void add(Arguments &&...arguments)
    {
        auto made = std::make_unique<Kind>(std::forward<Arguments>(arguments)...);
        if constexpr (std::derived_from<Kind, ProjectCheck>) {
            m_projectChecks.append(made.get());
        } else if constexpr (std::derived_from<Kind, ObjectCheck>) {
            m_objectChecks.append(made.get());
        } else {
            m_propertyChecks.append(made.get());
        }
        m_checks.push_back(std::move(made));
    }

    //! Looks at the project, and not at the objects that it holds.
    void lookAt(const Project &project);
    //! Looks at an object and all that is below it.
    void visit(const DesignerObject &object);

    //! Takes over what \a later has found, which has the same checks and has walked what comes after.
    void join(CheckWalk &later);
    //! All problems: those of the check that was added first come first, each in the order of the walk.
    QList<Problem> finish(const Project &project);

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
    };

    Plan planFor(const DesignerObject &object) const;
    void look(const DesignerObject &object);

    std::vector<std::unique_ptr<Check>> m_checks;
    QList<ProjectCheck *> m_projectChecks;
    QList<ObjectCheck *> m_objectChecks;
    QList<PropertyCheck *> m_propertyChecks;
    QHash<QString, Plan> m_plans; //!< by class
};

} // namespace Halvane::Corvex::Designer
