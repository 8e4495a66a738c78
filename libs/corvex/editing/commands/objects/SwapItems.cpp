// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/SwapItems.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/editing/commands/private/ListOrder.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

SwapItems::SwapItems(const SharedProperty &list, DesignerObject *first, DesignerObject *second,
                     UndoCommand *parent)
    : ModelCommand(list, true, parent)
{
    if (!list || !first || !second || first == second || first->listProperty() != list
        || second->listProperty() != list) {
        refuse(Common::LocalizationHelper::coreString(u"These are not two items of the same list."_s));
        return;
    }
    if (!ListOrder::canExchange(*list, *first, *second)) {
        refuse(Common::LocalizationHelper::coreString(u"The list sorts these two items itself."_s));
        return;
    }
    setTitle(u"Swap \"%1\" and \"%2\""_s, first->getIdName(), second->getIdName());
    addStep<SwapItemsStep>(list, first, second);
    setSelection({first, second});
}

} // namespace Halvane::Corvex::Designer
