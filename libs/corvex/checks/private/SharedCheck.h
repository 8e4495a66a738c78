// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

/*! Compares objects that share something: an identifier, a message, a name.

    Each object claims what it uses by keys. The objects with the same key are a group, and what the check
    says depends on one group alone. So an edit makes it compare only the groups that the edited object was in
    or is in now.
*/
class SharedCheck : public Check
{
public:
    struct Claim
    {
        QString key;
        bool isSubject =
            true; //!< Whether the check reports the object. Of the others it counts only the number.
    };
    struct Group
    {
        QString key;
        QList<const DesignerObject *> subjects; //!< in the order of the project
        qsizetype otherCount = 0;
    };

    //! Whether such objects claim anything. The answer holds for all objects of the class.
    virtual bool concerns(const DesignerObject &object) const = 0;
    virtual QList<Claim> claims(const DesignerObject &object) const = 0;
    //! Reports the subjects of one group. Each object is a subject of one group at most.
    virtual void compare(const Group &group) = 0;

    //! Collects the claims of an object. Objects come in the order of the project.
    void collect(const DesignerObject &object);
    void join(Check &later) override;
    //! Compares all groups and puts the problems into the order of the project.
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
