// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/ListOrder.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/ObjectListProperty.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

OrderRule ruleOf(const DesignerProperty &list)
{
    const auto *objects = propertyCast<ObjectListProperty>(&list);
    return objects ? objects->orderRule() : OrderRule::InsertionOrder;
}

bool isVisual(const DesignerObject &item)
{
    return item.isKindOfClass(u"VisualElement"_s);
}

} // namespace

bool ListOrder::isFree(const DesignerProperty &list, const DesignerObject &item)
{
    static const QStringList sorted{u"HardwareElement"_s, u"FunctionElement"_s, u"FilterElement"_s,
                                    u"ProjectVariable"_s};
    const OrderRule rule = ruleOf(list);
    return rule == OrderRule::InsertionOrder
           || (rule == OrderRule::KindOrder
               && std::ranges::none_of(
                   sorted, [&item](const QString &className) { return item.isKindOfClass(className); }));
}

bool ListOrder::canExchange(const DesignerProperty &list, const DesignerObject &first,
                            const DesignerObject &second)
{
    return isFree(list, first) && isFree(list, second)
           && (ruleOf(list) == OrderRule::InsertionOrder || isVisual(first) == isVisual(second));
}

} // namespace Halvane::Corvex::Designer
