// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <QStringList>

namespace Halvane::Corvex::Designer {

class GroupElement;

//! The order in which a group numbers its members, which follows them only when commands say so.
class CORVEX_EXPORT GroupIndexes
{
public:
    //! The group whose members \a list holds; null for any other list.
    static GroupElement *groupOf(const SharedProperty &list);

    //! The text \a indexes without some names and with others at the place of the first of these, or at the
    //! end.
    static QString replaced(const QString &indexes, const QStringList &without, const QStringList &with);
};

} // namespace Halvane::Corvex::Designer
