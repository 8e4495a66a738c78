// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ValueChange.h"
#include "corvex/editing/references/Mention.h"
#include "corvex/editing/references/ReferenceTarget.h"

#include <QSet>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! The changes in the rest of a project that follow when an object is renamed or removed. \a pending may be
//! null.
class CORVEX_EXPORT ReferenceChanges
{
public:
    static QList<ValueChange> renamed(const DesignerObject *object, const QString &newName,
                                      const PendingValues *pending = nullptr);
    //! Drops all mentions, except in the objects themselves. The objects must be of one kind, and elements
    //! must be on one screen.
    static QList<ValueChange> removed(const QList<DesignerObject *> &objects,
                                      const PendingValues *pending = nullptr);
    //! Removes the group's name from paths that continue with the name of one of \a members. If the group is
    //! removed as well, drops all other mentions of it.
    static QList<ValueChange> ungrouped(const DesignerObject *group, const QSet<QString> &members,
                                        bool groupGoes, const PendingValues *pending = nullptr);

private:
    using Rewriter = std::function<void(Mention &mention, const DesignerObject *owner)>;
    static QList<ValueChange> rewritten(const ReferenceTarget &target, const Rewriter &rewriter,
                                        const PendingValues *pending);
};

} // namespace Halvane::Corvex::Designer
