// SPDX-License-Identifier: MIT
#include "corvex/checks/private/SharedCheck.h"

#include <QHash>

#include <algorithm>

namespace Halvane::Corvex::Designer {

void SharedCheck::collect(const DesignerObject &object)
{
    for (const Claim &claim : claims(object)) {
        m_collected.append({&object, claim});
    }
}

void SharedCheck::join(Check &later)
{
    m_collected += std::exchange(static_cast<SharedCheck &>(later).m_collected, {});
    Check::join(later);
}

void SharedCheck::finish(const Project &)
{
    QHash<QString, Group> groups;
    QHash<const DesignerObject *, qsizetype> order;
    for (const auto &[object, claim] : std::exchange(m_collected, {})) {
        Group &group = groups[claim.key];
        if (claim.isSubject) {
            group.key = claim.key;
            group.subjects.append(object);
            order.insert(object, order.size());
        } else {
            ++group.otherCount;
        }
    }
    for (const Group &group : std::as_const(groups)) {
        if (!group.subjects.isEmpty()) {
            compare(group);
        }
    }
    sortProblems([&order](const Problem &problem) { return order.value(problem.source); });
}

} // namespace Halvane::Corvex::Designer
