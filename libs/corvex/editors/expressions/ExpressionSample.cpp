// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/ExpressionSample.h"

#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/editors/expressions/private/ExpressionCalculator.h"
#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

ExpressionSample::ExpressionSample(const SharedProperty &expression)
    : m_expression(expression)
    , m_calculator(ExpressionCalculator::shared())
{
    const auto *property = propertyCast<GeneralDataListProperty>(expression.data());
    const Project *project = expression->parentObject()->project();
    if (!property || !project) {
        return;
    }
    for (const GeneralDataInfo &term : property->value()) {
        const DesignerObject *variable = term.valueType() == GeneralDataInfo::VariableValue
                                             ? project->variables()->getListItem(term.value())
                                             : nullptr;
        if (variable) {
            connect(variable, &DesignerObject::propertyValueChanged, this, &ExpressionSample::changed,
                    Qt::UniqueConnection);
        }
    }
}

ExpressionSample::~ExpressionSample() = default;

QString ExpressionSample::value(const std::function<QString(const QString &code)> &wrap) const
{
    const auto *property = propertyCast<GeneralDataListProperty>(m_expression.data());
    const ExpressionScope scope(m_expression);
    if (!property || !scope.isValid()) {
        return {};
    }
    return m_calculator->valueOf(scope, property->value(), property->purpose(), {}, wrap).text;
}

} // namespace Halvane::Corvex::Designer
