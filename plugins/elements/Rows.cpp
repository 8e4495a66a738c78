// SPDX-License-Identifier: MIT
#include "elements/Rows.h"

#include "corvex/core/PropertyValidators.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/LinkProperty.h"

#include "elements/BoundQml.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

PropertyRow linkRow(const char *id, const char *title, const char *description, const QString &className,
                    const QString &scopeType)
{
    return row<LinkProperty>(id, title, ObjectLinkInfo(QString(), scopeType, className))
        .flags(ordinary)
        .description(description)
        .parameter("scopeType", scopeType)
        .parameter("filterType", className)
        .allowInvalid();
}

} // namespace

PropertyRow expressionRow(const char *id, const char *title, const char *description, const char *editor)
{
    return row<GeneralDataListProperty>(id, title, GeneralDataList())
        .description(description)
        .editor(editor)
        .allowInvalid();
}

const GeneralDataList &expressionOf(const DesignerProperty &property)
{
    return valueAs<GeneralDataListProperty>(&property);
}

PropertyRow bindingRow(const char *id, const char *title, const char *description, const char *editor)
{
    return expressionRow(id, title, description, editor).flags(notAtRuntime).validator(&bindingValidator);
}

PropertyRow elementLinkRow(const char *id, const char *title, const char *description, const char *className)
{
    return linkRow(id, title, description, QString::fromLatin1(className), u"Screen"_s);
}

PropertyRow projectLinkRow(const char *id, const char *title, const char *description, const char *className)
{
    return linkRow(id, title, description, QString::fromLatin1(className), u"Project"_s);
}

PropertyRow visualElementRow(const char *id, const char *title, const char *description)
{
    return elementLinkRow(id, title, description, "VisualElement")
        .validator(&PropertyValidators::visualElementValidator);
}

PropertyRow stateRow(const char *id, const char *title, const char *description)
{
    return row<UpdateObjectListProperty>(id, title, UpdateObjectList())
        .description(description)
        .editor("ElementPropertyChangesEditor")
        .qml(&stateToQml)
        .allowInvalid();
}

PropertyRow channelRow(const char *description)
{
    return row<IntegerProperty>("channel", "Channel", 1)
        .description(description)
        .editor("ChannelEditor")
        .parameter("minimum", 1)
        .allowInvalid();
}

PropertyRow initialConditionRow()
{
    return expressionRow(
               "initValue", "Initial Value",
               "Whether the output is on when the screen appears; without an expression it is left as it is.",
               "VerticalBooleanExpressionEditor")
        .validator(&codeValidator<GeneralDataList::BoolExpression>)
        .qml(&conditionToQml);
}

PropertyRow initialNumberRow()
{
    return expressionRow("initValue", "Initial Value",
                         "The value of the output when the screen appears, in percent; without an expression "
                         "it is left as it is.",
                         "VerticalMathExpressionEditor")
        .validator(&codeValidator<GeneralDataList::MathExpression>)
        .qml(&mathToQml);
}

} // namespace Halvane::Corvex::Elements
