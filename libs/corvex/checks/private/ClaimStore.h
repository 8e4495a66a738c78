// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/private/SharedCheck.h"

#include <QHash>
#include <QSet>

namespace Halvane::Corvex::Designer {

//! The claims for one shared check while a project is being edited. Objects without claims need no memory.
class ClaimStore
{
public:
    using Claims = QList<SharedCheck::Claim>;

    //! Replaces the claims of an object, and marks its old and new groups for comparison. \return the keys of
    //! the groups that the object has left as a subject.
    QStringList set(DesignerObject *object, const Claims &claims);
    void drop(const DesignerObject *object);
    void clear() { *this = {}; }
    //! The order of the objects has changed: marks all groups whose result depends on it.
    void compareAll();
    //! Marks the groups of the object for comparison.
    void compareGroupsOf(const DesignerObject *object);

    bool isCurrent() const { return m_changed.isEmpty(); }
    //! A marked group. Its subjects are in list order.
    SharedCheck::Group takeChanged();

private:
    struct Group
    {
        QSet<const DesignerObject *> subjects;
        qsizetype otherCount = 0;
    };
    void remove(const DesignerObject *object, const Claims &claims);

    QHash<QString, Group> m_groups;
    QHash<const DesignerObject *, Claims> m_claims;
    QSet<QString> m_changed;
};

} // namespace Halvane::Corvex::Designer
