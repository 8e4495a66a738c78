// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/SortingCommand.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/editing/commands/private/EditStep.h"

#include <QScopeGuard>

namespace Halvane::Corvex::Designer {

bool SortingCommand::redoOwn(QString &error)
{
    const SharedProperty list = property();
    list->setOrderingPaused(!m_isSortEnabled);
    const auto resume = qScopeGuard([&list] { list->setOrderingPaused(false); });
    if (!ModelCommand::redoOwn(error)) {
        return false;
    }
    if (m_isSortEnabled) {
        SortListStep::sort(list);
    }
    return true;
}

bool SortingCommand::undoOwn(QString &error)
{
    const SharedProperty list = property();
    list->setOrderingPaused(!m_isSortEnabled);
    const auto resume = qScopeGuard([&list] { list->setOrderingPaused(false); });
    return ModelCommand::undoOwn(error);
}

} // namespace Halvane::Corvex::Designer
