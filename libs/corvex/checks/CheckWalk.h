// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

#include <QHash>

namespace Halvane::Corvex::Designer {

/*! Leads checks through a project, all in one walk. The checks must outlive it. */
class CheckWalk
{
public:
    void add(ProjectCheck &check);
    void add(ObjectCheck &check);
    void add(PropertyCheck &check);

    //! All problems: those of the check that was added first come first, each in the order of the file.
    QList<Problem> run(const Project &project);

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
    void visit(const DesignerObject &object);

    QList<Check *> m_order;
    QList<ProjectCheck *> m_projectChecks;
    QList<ObjectCheck *> m_objectChecks;
    QList<PropertyCheck *> m_propertyChecks;
    QHash<QString, Plan> m_plans; //!< by class
};

} // namespace Halvane::Corvex::Designer
