// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/groups/GroupIndexes.h"

#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/records/ListInfo.h"

namespace Halvane::Corvex::Designer {

GroupElement *GroupIndexes::groupOf(const SharedProperty &list)
{
    return kindCast<GroupElement>(list ? list->parentObject() : nullptr);
}

QString GroupIndexes::replaced(const QString &indexes, const QStringList &without, const QStringList &with)
{
    QStringList names = ListInfo(indexes).toList();
    const QSet<QString> going(without.cbegin(), without.cend());
    const auto first = std::find_if(names.cbegin(), names.cend(),
                                    [&going](const QString &name) { return going.contains(name); });
    qsizetype place = first - names.cbegin();
    names.removeIf([&going](const QString &name) { return going.contains(name); });
    for (const QString &name : with) {
        names.insert(place++, name);
    }
    return ListInfo(names).toString();
}

} // namespace Halvane::Corvex::Designer
