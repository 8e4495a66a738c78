// SPDX-License-Identifier: MIT
#include "elements/function/LogicBuilder.h"

#include "corvex/core/QmlText.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/text/PairList.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! The conditions as an array that the runtime keeps evaluating, and a handler with the assignments of those
//! that are true. A rule without a condition always applies; one without assignments is omitted.
QmlBindings logicToQml(const DesignerProperty *property)
{
    QStringList conditions;
    QStringList rules;
    for (const TextPair &rule : PairList(property->valueString())) {
        const QStringList statements = assignments(GeneralDataList(rule.second));
        const QString condition = rule.first.isEmpty()
                                      ? u"true"_s
                                      : completeCode(GeneralDataList(rule.first), GeneralDataInfo::RawOutput,
                                                     GeneralDataList::BoolExpression);
        if (statements.isEmpty() || condition.isEmpty()) {
            continue;
        }
        rules.append(u"if (conditions[%1]) {"_s.arg(conditions.size()));
        for (const QString &statement : statements) {
            rules.append(QmlText::tabs(1) + statement);
        }
        rules.append(u"}"_s);
        conditions.append(condition);
    }
    if (conditions.isEmpty()) {
        return {};
    }
    QmlBindings bindings(u"conditions"_s, QmlText::array(conditions));
    bindings.add(u"onEvaluate"_s, QmlText::block(rules));
    return bindings;
}

} // namespace

bool LogicBuilder::initializeProperties()
{
    static const PropertyTable table{
        row<StringProperty>("logicExpression", "Rules", QString())
            .description("Rules: while a condition is true, its assignments are made whenever a value in "
                         "them changes.")
            .rank(1)
            .references(Form::Expressions)
            .editor("VerticalBooleanExpressionEditor")
            .validator(&logicValidator)
            .qml(&logicToQml)
            .allowInvalid(),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
