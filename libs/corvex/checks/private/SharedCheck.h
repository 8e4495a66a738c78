// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

/*! Compares objects that share something: an identifier, a message, a name.

    Each object claims what it uses by keys. Objects with the same key form a group, and the result of the
    check depends on one group only. So after an edit only the old and new groups of the edited object are
    compared.
*/
class SharedCheck : public Check
{
public:
    struct Claim
    {
        QString key;
        bool isSubject = true; //!< Whether the check reports the object. Other objects are only counted.
    };
    struct Group
    {
        QString key;
        QList<const DesignerObject *> subjects; //!< in the order of the project
        qsizetype otherCount = 0;
    };

    //! Whether such objects claim anything. The answer applies to all objects of the class.
    virtual bool concerns(const DesignerObject &object) const = 0;
    virtual QList<Claim> claims(const DesignerObject &object) const = 0;
    //! Reports the subjects of a group. Each object is a subject of at most one group.
    virtual void compare(const Group &group) = 0;

    //! Collects the claims of an object. Objects come in the order of the project.
    void collect(const DesignerObject &object);
    void join(Check &later) override;
    //! Compares all groups and sorts the problems into project order.
    void finish(const Project &project) override;

private:
    struct Collected
    {
        const DesignerObject *object;
        Claim claim;
    };
    QList<Collected> m_collected;
};

} // namespace Halvane::Corvex::Designer
