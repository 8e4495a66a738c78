// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/private/SharedCheck.h"

#include <QHash>
#include <QSet>

namespace Halvane::Corvex::Designer {

//! The claims for one shared check, kept while a project is edited. Objects without claims take no memory.
class ClaimStore
{
public:
    using Claims = QList<SharedCheck::Claim>;

    //! Replaces the claims of an object. Its groups, old and new, are to be compared. \return the keys of the
    //! groups of which it is no subject any more.
    QStringList set(DesignerObject *object, const Claims &claims);
    void drop(const DesignerObject *object);
    void clear() { *this = {}; }
    //! The objects have another order: all groups that have one are to be compared.
    void compareAll();
    //! The groups of the object are to be compared.
    void compareGroupsOf(const DesignerObject *object);

    bool isCurrent() const { return m_changed.isEmpty(); }
    //! A group that is to be compared; its subjects are in the order of their list.
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
