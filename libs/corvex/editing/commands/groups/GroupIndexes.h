// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <QStringList>

namespace Halvane::Corvex::Designer {

class GroupElement;

//! The numbering order of a group's members. Commands must update it when the members change.
class CORVEX_EXPORT GroupIndexes
{
public:
    //! The group whose members are in \a list; null for any other list.
    static GroupElement *groupOf(const SharedProperty &list);

    //! The text \a indexes with the names \a without removed, and the names \a with at the place of the first
    //! removed one or, if nothing was removed, at the end.
    static QString replaced(const QString &indexes, const QStringList &without, const QStringList &with);
};

} // namespace Halvane::Corvex::Designer
