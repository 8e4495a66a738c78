// SPDX-License-Identifier: MIT
#include "elements/Statements.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlText.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/expressions/ValueCode.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/values/text/ObjectPath.h"

#include "elements/Rows.h"

#include <QCache>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! Sets the values on a new object of the class, to write them as that class does.
QmlBindings assignToNew(const QString &className, const QMap<QString, QString> &values)
{
    const std::unique_ptr<DesignerObject> model(DesignerFactory::instance()->createUnowned(className));
    QmlBindings all;
    for (const auto &[id, value] : values.asKeyValueRange()) {
        const SharedProperty property = model ? model->getProperty(id) : SharedProperty();
        if (!property || property == model->idProperty() || !property->canRead(value)
            || !model->changePropertyValue(property, value)) {
            continue;
        }
        for (const QmlBinding &binding : property->qmlBindings()) {
            if (ObjectPath::isValid(binding.name) && !binding.isBlock()) {
                all.add(binding.name, binding.code);
            }
        }
    }
    return all;
}

//! The same, cached: the buttons of a project set the same few values on elements of the same classes.
//! Valid until the next call in this thread.
const QmlBindings &assignedBy(const QString &className, const QMap<QString, QString> &values)
{
    constexpr qsizetype most = 2048;
    static thread_local QCache<QStringList, QmlBindings> known(most);
    QStringList key{className};
    for (const auto &[id, value] : values.asKeyValueRange()) {
        key << id << value;
    }
    if (const QmlBindings *all = known.object(key)) {
        return *all;
    }
    auto *all = new QmlBindings(assignToNew(className, values));
    known.insert(key, all);
    return *all;
}

//! The handler named after the property; nothing without statements.
QmlBindings handler(const DesignerProperty *property, const QStringList &statements)
{
    if (statements.isEmpty()) {
        return {};
    }
    const QString name = u"on"_s + property->id().at(0).toUpper() + property->id().mid(1);
    return {name, QmlText::block(statements)};
}

QmlBindings expressionToQml(const DesignerProperty *property, const ExpressionPurpose &purpose)
{
    const QString code = ValueCode::of(expressionOf(*property), purpose);
    return code.isEmpty() ? QmlBindings() : QmlBindings(property->id(), code);
}

} // namespace

QString completeCode(const GeneralDataList &expression, GeneralDataInfo::OutputType output,
                     GeneralDataList::InfoType kind)
{
    return expression.isComplete(kind) ? expression.toQmlString(output, kind) : QString();
}

QString operandCode(const GeneralDataInfo &term)
{
    const bool isOperand = term.valueType() == GeneralDataInfo::ObjectValue
                           || term.valueType() == GeneralDataInfo::VariableValue
                           || (term.valueType() == GeneralDataInfo::ConstantValue
                               && term.dataType() != GeneralDataInfo::HexData);
    return isOperand ? term.toQmlString(GeneralDataInfo::RawOutput) : QString();
}

QStringList assignments(const GeneralDataList &expression)
{
    QStringList statements;
    for (qsizetype i = 0; i + 1 < expression.count(); i += 2) {
        const bool isColor = expression.at(i).dataType() == GeneralDataInfo::ColorData;
        const QString statement =
            GeneralDataList({expression.at(i), expression.at(i + 1)})
                .toQmlString(isColor ? GeneralDataInfo::ColorOutput : GeneralDataInfo::RawOutput,
                             GeneralDataList::AssignExpression);
        if (!statement.isEmpty()) {
            statements.append(statement);
        }
    }
    return statements;
}

QStringList assignments(const DesignerObject *owner, const QString &name,
                        const QMap<QString, QString> &values)
{
    const Element *element = owner->screen() ? owner->screen()->getElement(name) : nullptr;
    const QString object = element ? element->getQmlIdName() : QString();
    if (object.isEmpty()) {
        return {};
    }
    QStringList statements;
    const QmlBindings bindings = assignedBy(element->className(), values);
    for (const QmlBinding &assigned : bindings) {
        statements.append(u"%1.%2 = %3;"_s.arg(object, assigned.name, assigned.code));
    }
    return statements;
}

QmlBindings stateToQml(const DesignerProperty *property)
{
    QStringList statements;
    for (const UpdateObjectInfo &update : valueAs<UpdateObjectListProperty>(property)) {
        QMap<QString, QString> values;
        for (const PropertyInfo &info : update.propertyValues()) {
            values.insert(info.propName(), info.propValue());
        }
        statements += assignments(property->parentObject(), update.name(), values);
    }
    return handler(property, statements);
}

QmlBindings changesToQml(const DesignerProperty *property)
{
    QStringList statements;
    const PropertyList &changes = valueAs<PropertyChangeListProperty>(property);
    for (const QString &element : changes.elements()) {
        QMap<QString, QString> values;
        for (const PropertyChangeInfo &change : changes.values(element)) {
            values.insert(change.propertyName(), change.valueString());
        }
        statements += assignments(property->parentObject(), element, values);
    }
    return handler(property, statements);
}

QmlBindings assignmentsToQml(const DesignerProperty *property)
{
    return handler(property, assignments(expressionOf(*property)));
}

QmlBindings mathToQml(const DesignerProperty *property)
{
    return expressionToQml(property, {GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput});
}

QmlBindings conditionToQml(const DesignerProperty *property)
{
    return expressionToQml(property, {GeneralDataList::BoolExpression});
}

QmlBindings termsToQml(const DesignerProperty *property)
{
    QStringList codes;
    for (const GeneralDataInfo &term : expressionOf(*property)) {
        const QString code = operandCode(term);
        if (!code.isEmpty()) {
            codes.append(code);
        }
    }
    return {property->id(), QmlText::array(codes)};
}

QmlBindings linkNameToQml(const DesignerProperty *property)
{
    return {property->id(), QmlText::quoted(ObjectLinkInfo(property->valueString()).objectId())};
}

QmlBindings screenLinkToQml(const DesignerProperty *property)
{
    const QString name = ObjectLinkInfo(property->valueString()).objectId();
    return {property->id(), QmlText::quoted(name.isEmpty() ? QString() : QmlText::reference(name))};
}

} // namespace Halvane::Corvex::Elements
