// SPDX-License-Identifier: MIT
#include "elements/function/PropertyTrigger.h"

#include "corvex/core/QmlText.h"
#include "corvex/core/properties/BasicProperties.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! "actions: [qml_a, qml_b]"
QmlBindings actionsToQml(const DesignerProperty *property)
{
    QStringList actions;
    for (const QString &name : property->valueString().split(u", "_s, Qt::SkipEmptyParts)) {
        if (const QString id = QmlText::reference(name); !id.isEmpty()) {
            actions.append(id);
        }
    }
    return {u"actions"_s, QmlText::array(actions)};
}

} // namespace

bool PropertyTrigger::initializeProperties()
{
    static const PropertyTable table{
        expressionRow("dataValues", "Data Values",
                      "The variables and properties whose changes start the actions.", "PropertyEditor")
            .rank(1)
            .validator(&termsValidator)
            .qml(&termsToQml),
        expressionRow("condition", "Condition", "The condition that must be true for the actions to run.",
                      "VerticalBooleanExpressionEditor")
            .rank(2)
            .validator(&codeValidator<GeneralDataList::BoolExpression>)
            .qml(&conditionToQml),
        row<StringProperty>("actionScheduler", "Actions", QString())
            .description("The actions of the screen that run, in this order.")
            .example("blink")
            .rank(3)
            .references(Form::CommaNames)
            .validator(&actionsValidator)
            .qml(&actionsToQml)
            .editor("ItemsOrderEditor")
            .parameter("scopeType", u"Screen"_s)
            .parameter("filterType", u"BasicAction"_s)
            .allowInvalid(),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
