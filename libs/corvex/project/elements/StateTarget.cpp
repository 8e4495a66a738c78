// SPDX-License-Identifier: MIT
#include "corvex/project/elements/StateTarget.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlBinding.h"
#include "corvex/core/properties/ExpressionProperties.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

bool StateTarget::canBeSet(const DesignerProperty &property)
{
    const auto *expression = propertyCast<GeneralDataListProperty>(&property);
    const Form form = property.references();
    const bool isHandler = (expression && expression->purpose({}).isAssignment()) || form == Form::States
                           || form == Form::Changes || form == Form::Expressions;
    return property.hasFlag(RuntimeFlag) && !isHandler;
}

SharedProperty StateTarget::replacedBy(const DesignerProperty &expression)
{
    constexpr auto suffix = "Binding"_L1;
    const PropertyRange properties = expression.parentObject()->properties();
    const auto isReplaced = [&expression](const SharedProperty &property) {
        const QmlBindings bindings = property->qmlBindings();
        return std::ranges::any_of(bindings, [&expression](const QmlBinding &binding) {
            return expression.id() == binding.name + suffix;
        });
    };
    const auto found = std::ranges::find_if(properties, isReplaced);
    return found == properties.end() ? SharedProperty() : *found;
}

} // namespace Halvane::Corvex::Designer
