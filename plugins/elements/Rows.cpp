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

PropertyRow linkRow(const char *id, const char *title, const QString &className, const QString &scopeType)
{
    return row<LinkProperty>(id, title, ObjectLinkInfo(QString(), scopeType, className))
        .flags(ordinary)
        .parameter("scopeType", scopeType)
        .parameter("filterType", className)
        .allowInvalid();
}

} // namespace

PropertyRow expressionRow(const char *id, const char *title, const char *editor)
{
    return row<GeneralDataListProperty>(id, title, GeneralDataList()).editor(editor).allowInvalid();
}

const GeneralDataList &expressionOf(const DesignerProperty &property)
{
    return valueAs<GeneralDataListProperty>(&property);
}

PropertyRow bindingRow(const char *id, const char *title, const char *editor)
{
    return expressionRow(id, title, editor).flags(notAtRuntime).validator(&bindingValidator);
}

PropertyRow elementLinkRow(const char *id, const char *title, const char *className)
{
    return linkRow(id, title, QString::fromLatin1(className), u"Screen"_s);
}

PropertyRow projectLinkRow(const char *id, const char *title, const char *className)
{
    return linkRow(id, title, QString::fromLatin1(className), u"Project"_s);
}

PropertyRow visualElementRow(const char *id, const char *title)
{
    return elementLinkRow(id, title, "VisualElement").validator(&PropertyValidators::visualElementValidator);
}

PropertyRow stateRow(const char *id, const char *title)
{
    return row<UpdateObjectListProperty>(id, title, UpdateObjectList())
        .editor("ElementPropertyChangesEditor")
        .qml(&stateToQml)
        .allowInvalid();
}

PropertyRow channelRow()
{
    return row<IntegerProperty>("channel", "Channel", 1)
        .editor("ChannelEditor")
        .parameter("minimum", 1)
        .allowInvalid();
}

PropertyRow initialConditionRow()
{
    return expressionRow("initValue", "Initial Value", "VerticalBooleanExpressionEditor")
        .validator(&codeValidator<GeneralDataList::BoolExpression>)
        .qml(&conditionToQml);
}

PropertyRow initialNumberRow()
{
    return expressionRow("initValue", "Initial Value", "VerticalMathExpressionEditor")
        .validator(&codeValidator<GeneralDataList::MathExpression>)
        .qml(&mathToQml);
}

} // namespace Halvane::Corvex::Elements
