// SPDX-License-Identifier: MIT
#include "elements/Statements.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlText.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/values/text/ObjectPath.h"

#include "elements/Rows.h"

#include <QCache>

#include <optional>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! A part of an element with the code for its new value.
struct Assigned
{
    QString property;
    QString code;
};

//! Of the line "x: 1"; none of a line of another form, such as one that opens a block.
std::optional<Assigned> readAssigned(QStringView qmlLine)
{
    const QStringView line = qmlLine.trimmed();
    const qsizetype colon = line.indexOf(u": "_s);
    if (colon < 0 || !ObjectPath::isValid(line.first(colon)) || line.endsWith(u'{') || line.endsWith(u'}')) {
        return {};
    }
    return Assigned{line.first(colon).toString(), line.sliced(colon + 2).toString()};
}

//! A new object of the class writes the values as any other of the class would.
QList<Assigned> assignToNew(const QString &className, const QMap<QString, QString> &values)
{
    const std::unique_ptr<DesignerObject> model(DesignerFactory::instance()->createUnowned(className));
    QList<Assigned> all;
    for (const auto &[id, value] : values.asKeyValueRange()) {
        const SharedProperty property = model ? model->getProperty(id) : SharedProperty();
        if (!property || property == model->idProperty() || !property->canRead(value)
            || !model->changePropertyValue(property, value)) {
            continue;
        }
        const QString qml = property->toQml(0);
        for (const QStringView line : QStringView(qml).split(u'\n')) {
            if (const std::optional<Assigned> assigned = readAssigned(line)) {
                all.append(*assigned);
            }
        }
    }
    return all;
}

//! The same, remembered: the buttons of a project give the same few values to elements of the same classes.
QList<Assigned> assignedBy(const QString &className, const QMap<QString, QString> &values)
{
    constexpr qsizetype most = 2048;
    static thread_local QCache<QStringList, QList<Assigned>> known(most);
    QStringList key{className};
    for (const auto &[id, value] : values.asKeyValueRange()) {
        key << id << value;
    }
    if (const QList<Assigned> *all = known.object(key)) {
        return *all;
    }
    const QList<Assigned> all = assignToNew(className, values);
    known.insert(key, new QList<Assigned>(all));
    return all;
}

QString handlerName(const DesignerProperty *property)
{
    return u"on"_s + property->id().at(0).toUpper() + property->id().mid(1);
}

QString expressionToQml(const DesignerProperty *property, int indent, GeneralDataInfo::OutputType output,
                        GeneralDataList::InfoType kind)
{
    const QString code = completeCode(expressionOf(*property), output, kind);
    return code.isEmpty() ? QString() : QmlText::line(indent, property->id(), code);
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
    for (const Assigned &assigned : assignedBy(element->className(), values)) {
        statements.append(u"%1.%2 = %3;"_s.arg(object, assigned.property, assigned.code));
    }
    return statements;
}

QString handler(int indent, const QString &name, const QStringList &statements)
{
    if (statements.isEmpty()) {
        return {};
    }
    const QString lineStart = u'\n' + QmlText::tabs(indent + 1);
    return QmlText::tabs(indent) + name + u": {"_s + lineStart + statements.join(lineStart) + u'\n'
           + QmlText::tabs(indent) + u'}';
}

QString stateToQml(const DesignerProperty *property, int indent)
{
    QStringList statements;
    for (const UpdateObjectInfo &update : static_cast<const UpdateObjectListProperty *>(property)->value()) {
        QMap<QString, QString> values;
        for (const PropertyInfo &info : update.propertyValues()) {
            values.insert(info.propName(), info.propValue());
        }
        statements += assignments(property->parentObject(), update.name(), values);
    }
    return handler(indent, handlerName(property), statements);
}

QString changesToQml(const DesignerProperty *property, int indent)
{
    QStringList statements;
    const PropertyList &changes = static_cast<const PropertyChangeListProperty *>(property)->value();
    for (const QString &element : changes.elements()) {
        QMap<QString, QString> values;
        for (const PropertyChangeInfo &change : changes.values(element)) {
            values.insert(change.propertyName(), change.valueString());
        }
        statements += assignments(property->parentObject(), element, values);
    }
    return handler(indent, handlerName(property), statements);
}

QString assignmentsToQml(const DesignerProperty *property, int indent)
{
    return handler(indent, handlerName(property), assignments(expressionOf(*property)));
}

QString mathToQml(const DesignerProperty *property, int indent)
{
    return expressionToQml(property, indent, GeneralDataInfo::NumberOutput, GeneralDataList::MathExpression);
}

QString conditionToQml(const DesignerProperty *property, int indent)
{
    return expressionToQml(property, indent, GeneralDataInfo::RawOutput, GeneralDataList::BoolExpression);
}

QString termsToQml(const DesignerProperty *property, int indent)
{
    QStringList codes;
    for (const GeneralDataInfo &term : expressionOf(*property)) {
        const QString code = operandCode(term);
        if (!code.isEmpty()) {
            codes.append(code);
        }
    }
    return QmlText::line(indent, property->id(), QmlText::array(codes));
}

QString linkNameToQml(const DesignerProperty *property, int indent)
{
    return QmlText::line(indent, property->id(),
                         QmlText::quoted(ObjectLinkInfo(property->valueString()).objectId()));
}

QString screenLinkToQml(const DesignerProperty *property, int indent)
{
    const QString name = ObjectLinkInfo(property->valueString()).objectId();
    return QmlText::line(indent, property->id(),
                         QmlText::quoted(name.isEmpty() ? QString() : QmlText::reference(name)));
}

} // namespace Halvane::Corvex::Elements
