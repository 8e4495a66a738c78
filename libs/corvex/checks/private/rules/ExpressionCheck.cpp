// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/ExpressionCheck.h"

#include "corvex/checks/private/rules/ExpressionPart.h"
#include "corvex/checks/private/rules/FunctionCall.h"
#include "corvex/checks/private/rules/ValueType.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/editing/references/ReferenceForm.h"
#include "corvex/project/Project.h"
#include "corvex/project/ProjectNames.h"
#include "corvex/values/expressions/ValueCode.h"
#include "corvex/values/private/ExpressionMeaning.h"
#include "corvex/values/private/ExpressionOperations.h"
#include "corvex/values/private/ExpressionPercent.h"
#include "corvex/values/text/ValueConversion.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Whether a value of one type can be converted to the other. For a constant text the value is checked.
bool canHold(ValueType target, ValueType type, const GeneralDataInfo &source)
{
    const bool isLiteral = source.valueType() == GeneralDataInfo::ConstantValue && type == ValueType::Text;
    bool isReadable = false;
    switch (target) {
    case ValueType::Number:
        if (isLiteral) {
            std::ignore = source.value().toDouble(&isReadable);
        }
        return isReadable || (type != ValueType::Text && type != ValueType::Color);
    case ValueType::Boolean:
        isReadable = isLiteral && (source.value() == "true"_L1 || source.value() == "false"_L1);
        return isReadable || (type != ValueType::Text && type != ValueType::Color);
    case ValueType::Color:
        if (isLiteral) {
            ValueConversion::toColor(source.value(), &isReadable);
        } else {
            isReadable = type == ValueType::Text;
        }
        return isReadable || (type != ValueType::Number && type != ValueType::Boolean && !isLiteral);
    default:
        return true;
    }
}

bool isOperator(const GeneralDataInfo &term)
{
    return term.valueType() == GeneralDataInfo::OperatorValue;
}

//! Whether there are only parentheses between a term and the next "&&", "||" or the end, in one direction.
template<class Iterator>
bool isAlone(Iterator term, Iterator end, QLatin1StringView parenthesis)
{
    const auto next = std::find_if(term, end, [parenthesis](const GeneralDataInfo &other) {
        return !isOperator(other) || other.value() != parenthesis;
    });
    return next == end || (isOperator(*next) && (next->value() == "&&"_L1 || next->value() == "||"_L1));
}

//! Whether a color of an element can equal the value.
bool canEqualColor(const GeneralDataInfo &other, ValueType type)
{
    bool isName = false;
    const QColor color = ValueConversion::toColor(other.value(), &isName);
    return (type != ValueType::Color && type != ValueType::Text)
           || (other.valueType() == GeneralDataInfo::ConstantValue && type == ValueType::Text && isName
               && ValueCode::comparable(color) == other.value())
           || other.valueType() == GeneralDataInfo::ObjectValue;
}

} // namespace

bool ExpressionCheck::concerns(const DesignerProperty &property)
{
    const bool isExpression =
        property.references() == Form::Expressions || propertyCast<GeneralDataListProperty>(&property);
    return isExpression && property.parentObject()->isKindOfClass(u"Element"_s);
}

void ExpressionCheck::look(const DesignerProperty &property)
{
    if (!property.isValid()) {
        return;
    }
    for (const auto &[terms, purpose] : ExpressionPart::of(property)) {
        lookAtTerms(property, terms);
        lookAtMeaning(property, terms, purpose);
        if (purpose.isAssignment()) {
            lookAtAssignments(property, terms);
        } else if (purpose.kind == GeneralDataList::BoolExpression) {
            lookAtCondition(property, terms);
        }
    }
}

//! Looks for operations whose results are not what the expression says.
void ExpressionCheck::lookAtMeaning(const DesignerProperty &property, const GeneralDataList &terms,
                                    const ExpressionPurpose &purpose)
{
    const ProjectNames names(m_project, property.parentObject()->screen());
    if (!purpose.separatesTerms() && terms.isComplete(purpose.kind)) {
        const auto fault = ExpressionMeaning::fault(terms, purpose.kind);
        if (fault && !fault->isOfColor) {
            report(property, ProblemCode::ExpressionMeaning, {terms.at(fault->term).value(), fault->reason});
        }
    }
    for (const ExpressionPercent &percent : ExpressionPercent::of(terms, purpose, names)) {
        report(property, ProblemCode::ExpressionPercent, percent.words(terms));
    }
    for (qsizetype i = 0; i < terms.count() && purpose.isAssignment(); i += 2) {
        if (terms.at(i).valueType() == GeneralDataInfo::ObjectValue
            && names.traitsOf(terms.at(i).value()).isReadOnly) {
            report(property, ProblemCode::ExpressionTarget, {terms.at(i).value()});
        }
    }
}

void ExpressionCheck::lookAtTerms(const DesignerProperty &property, const GeneralDataList &terms)
{
    for (const GeneralDataInfo &term : terms) {
        if (term.valueType() == GeneralDataInfo::VariableValue
            && valueTypeOf(term, m_project) == ValueType::Fieldbus) {
            report(property, ProblemCode::ExpressionFieldbus,
                   {term.value(), valueTypeName(ValueType::Fieldbus)});
        }
    }
    for (const FunctionCall &call : FunctionCall::of(terms)) {
        lookAtCall(property, call);
    }
}

void ExpressionCheck::lookAtCall(const DesignerProperty &property, const FunctionCall &call)
{
    if (!call.hasGoodCount()) {
        report(property, ProblemCode::ExpressionArguments,
               {call.name, call.wanted(), QString::number(call.argumentCount)});
        return;
    }
    const bool isVariable = call.onlyFirst && call.onlyFirst->valueType() == GeneralDataInfo::VariableValue;
    const DesignerObject *first =
        isVariable ? m_project.variables()->getListItem(call.onlyFirst->value()) : nullptr;
    // A missing object is reported separately.
    const bool isMissing = isVariable && !first;
    if (call.takesLog && !isMissing && !(first && first->isKindOfClass(u"LogVariable"_s))) {
        report(property, ProblemCode::ExpressionLog, {call.name});
    }
}

//! The terms are pairs of a target and a source.
void ExpressionCheck::lookAtAssignments(const DesignerProperty &property, const GeneralDataList &terms)
{
    for (qsizetype i = 0; i + 1 < terms.count(); i += 2) {
        const GeneralDataInfo &target = terms.at(i);
        const GeneralDataInfo &source = terms.at(i + 1);
        const ValueType wanted = valueTypeOf(target, m_project);
        const ValueType given = valueTypeOf(source, m_project);
        if (!canHold(wanted, given, source)) {
            report(property, ProblemCode::ExpressionType,
                   {target.value(), valueTypeName(wanted), source.value(), valueTypeName(given)});
        }
    }
}

void ExpressionCheck::lookAtCondition(const DesignerProperty &property, const GeneralDataList &terms)
{
    lookAtColors(property, terms);
    const QList<GeneralDataInfo> list = terms.toList();
    for (auto term = list.cbegin(); term != list.cend(); ++term) {
        const ValueType type = valueTypeOf(*term, m_project);
        if ((type == ValueType::Text || type == ValueType::Color) && isAlone(term + 1, list.cend(), ")"_L1)
            && isAlone(std::make_reverse_iterator(term), list.crend(), "("_L1)) {
            report(property, ProblemCode::ExpressionCondition, {term->value(), valueTypeName(type)});
        }
    }
}

//! Looks for comparisons of a color of an element that are never true.
void ExpressionCheck::lookAtColors(const DesignerProperty &property, const GeneralDataList &terms)
{
    static const QStringList equalities{u"=="_s, u"==="_s, u"!="_s, u"!=="_s};
    if (!terms.isComplete(GeneralDataList::BoolExpression)) {
        return;
    }
    for (const auto &[place, left, right] : ExpressionOperation::of(terms, GeneralDataList::BoolExpression)) {
        const QString &sign = terms.at(place).value();
        const bool isFirst = left.code == OperandType::Color;
        const ExpressionOperand &color = isFirst ? left : right;
        const ExpressionOperand &second = isFirst ? right : left;
        if (!equalities.contains(sign) || color.code != OperandType::Color || color.term < 0
            || second.term < 0) {
            continue;
        }
        const GeneralDataInfo &other = terms.at(second.term);
        const bool isStrict = sign.size() > 2 && other.valueType() == GeneralDataInfo::ConstantValue;
        if (isStrict || !canEqualColor(other, valueTypeOf(other, m_project))) {
            report(property, ProblemCode::ExpressionColor, {terms.at(color.term).value(), other.value()});
        }
    }
}

} // namespace Halvane::Corvex::Designer
