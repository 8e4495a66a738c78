// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/ExpressionPart.h"

#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/values/text/PairList.h"

namespace Halvane::Corvex::Designer {

QString ExpressionPart::changed(const DesignerProperty &property,
                                const std::function<void(ExpressionPart &)> &change)
{
    if (const auto *expression = propertyCast<GeneralDataListProperty>(&property)) {
        ExpressionPart part{expression->value(), expression->purpose()};
        if (!part.terms.isEmpty()) {
            change(part);
        }
        return part.terms.toString();
    }
    PairList rules;
    for (TextPair rule : PairList(property.valueString())) {
        const auto replace = [&change](QString &text, GeneralDataList::InfoType kind) {
            ExpressionPart part{GeneralDataList(text), {kind}};
            if (!part.terms.isEmpty()) {
                change(part);
                text = part.terms.toString();
            }
        };
        replace(rule.first, GeneralDataList::BoolExpression);
        replace(rule.second, GeneralDataList::AssignExpression);
        rules.append(rule);
    }
    return rules.toString();
}

QList<ExpressionPart> ExpressionPart::of(const DesignerProperty &property)
{
    if (const auto *expression = propertyCast<GeneralDataListProperty>(&property)) {
        return expression->value().isEmpty()
                   ? QList<ExpressionPart>()
                   : QList<ExpressionPart>{{expression->value(), expression->purpose()}};
    }
    QList<ExpressionPart> parts;
    for (const TextPair &rule : PairList(property.valueString())) {
        parts.append({GeneralDataList(rule.first), {GeneralDataList::BoolExpression}});
        parts.append({GeneralDataList(rule.second), {GeneralDataList::AssignExpression}});
    }
    return parts;
}

} // namespace Halvane::Corvex::Designer
