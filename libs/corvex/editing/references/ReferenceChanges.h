// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ValueChange.h"
#include "corvex/editing/references/Mention.h"
#include "corvex/editing/references/ReferenceTarget.h"

#include <QSet>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! What the rest of a project has to be changed to when something in it gets another name or goes. \a pending
//! may be null.
class CORVEX_EXPORT ReferenceChanges
{
public:
    static QList<ValueChange> renamed(const DesignerObject *object, const QString &newName,
                                      const PendingValues *pending = nullptr);
    //! Mentions are dropped, except in the objects themselves. The objects are of one kind and, being
    //! elements, of one screen.
    static QList<ValueChange> removed(const QList<DesignerObject *> &objects,
                                      const PendingValues *pending = nullptr);
    /*! Paths lose the name of the group where they go on with that of one of \a members. When the group goes
        with that, what else mentions it is dropped. */
    static QList<ValueChange> ungrouped(const DesignerObject *group, const QSet<QString> &members,
                                        bool groupGoes, const PendingValues *pending = nullptr);

private:
    using Rewriter = std::function<void(Mention &mention, const DesignerObject *owner)>;
    static QList<ValueChange> rewritten(const ReferenceTarget &target, const Rewriter &rewriter,
                                        const PendingValues *pending);
};

} // namespace Halvane::Corvex::Designer
