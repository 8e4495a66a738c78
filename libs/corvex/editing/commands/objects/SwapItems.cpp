// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/SwapItems.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/ObjectListProperty.h"
#include "corvex/editing/commands/private/EditStep.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! A swap that the list's own order undoes at once could not be taken back by another one.
bool canExchange(const DesignerProperty &list, const DesignerObject &first, const DesignerObject &second)
{
    const auto *objects = propertyCast<ObjectListProperty>(&list);
    const auto rule = objects ? objects->orderRule() : OrderRule::InsertionOrder;
    const auto isVisual = [](const DesignerObject &item) { return item.isKindOfClass(u"VisualElement"_s); };
    const auto isSorted = [](const DesignerObject &item) {
        return item.isKindOfClass(u"HardwareElement"_s) || item.isKindOfClass(u"FunctionElement"_s)
               || item.isKindOfClass(u"FilterElement"_s) || item.isKindOfClass(u"ProjectVariable"_s);
    };
    return rule == OrderRule::InsertionOrder
           || (rule == OrderRule::KindOrder && !isSorted(first) && !isSorted(second)
               && isVisual(first) == isVisual(second));
}

} // namespace

SwapItems::SwapItems(const SharedProperty &list, DesignerObject *first, DesignerObject *second,
                     UndoCommand *parent)
    : ModelCommand(list, true, parent)
{
    if (!list || !first || !second || first == second || first->listProperty() != list
        || second->listProperty() != list) {
        refuse(Common::LocalizationHelper::coreString(u"These are not two items of one list."_s));
        return;
    }
    if (!canExchange(*list, *first, *second)) {
        refuse(Common::LocalizationHelper::coreString(u"The list keeps these two in an order of its own."_s));
        return;
    }
    setTitle(u"Swap \"%1\" and \"%2\""_s, first->getIdName(), second->getIdName());
    addStep<SwapItemsStep>(list, first, second);
    setSelection({first, second});
}

} // namespace Halvane::Corvex::Designer
