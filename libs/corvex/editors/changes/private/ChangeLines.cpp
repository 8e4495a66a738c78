// SPDX-License-Identifier: MIT
#include "corvex/editors/changes/private/ChangeLines.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editors/expressions/private/ExpressionScope.h"
#include "corvex/values/text/PairList.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Lines = QList<ChangeLine>;

constexpr ExpressionPurpose condition{GeneralDataList::BoolExpression};
constexpr ExpressionPurpose assignment{GeneralDataList::AssignExpression};
constexpr ExpressionPurpose singleTerm{GeneralDataList::GeneralExpression, GeneralDataInfo::RawOutput, true};

Lines readStates(const QString &stored)
{
    Lines lines;
    for (const UpdateObjectInfo &update : UpdateObjectList(stored)) {
        for (const PropertyInfo &value : update.propertyValues()) {
            lines.append({update.name(), value.propName(), value.propValue()});
        }
    }
    return lines;
}

//! Lines of one element in a row are one update.
QString writeStates(const Lines &lines)
{
    UpdateObjectList updates;
    for (auto line = lines.cbegin(); line != lines.cend();) {
        UpdateObjectInfo update;
        PropertyInfoList values;
        update.setName(line->target);
        for (; line != lines.cend() && line->target == update.name(); ++line) {
            values.append(PropertyInfo(line->property, line->value));
        }
        update.setPropertyValues(values);
        updates.append(update);
    }
    return updates.toString();
}

Lines readChanges(const QString &stored)
{
    Lines lines;
    for (const PropertyChangeInfo &change : PropertyList(stored)) {
        lines.append({change.elementName(), change.propertyName(), change.valueString()});
    }
    return lines;
}

QString writeChanges(const Lines &lines)
{
    PropertyList changes;
    for (const auto &[element, property, value] : lines) {
        changes.append(PropertyChangeInfo(element, property, value));
    }
    return changes.toString();
}

SharedProperty shared(const DesignerProperty &property)
{
    return property.parentObject()->getProperty(property.id());
}

//! Null if a part has no readable form.
std::optional<Lines> readAssignments(const DesignerProperty &property, const QString &stored)
{
    const ExpressionScope scope(shared(property), singleTerm);
    const GeneralDataList terms(stored);
    Lines lines;
    for (qsizetype i = 0; i + 1 < terms.count(); i += 2) {
        const QString target = scope.print(GeneralDataList({terms.at(i)}).toString());
        const QString source = scope.print(GeneralDataList({terms.at(i + 1)}).toString());
        if (target.isNull() || source.isNull()) {
            return {};
        }
        lines.append({target, {}, source});
    }
    return terms.count() % 2 == 0 ? std::optional(lines) : std::nullopt;
}

std::optional<Lines> readRules(const DesignerProperty &property, const QString &stored)
{
    const ExpressionScope conditions(shared(property), condition);
    const ExpressionScope effects(shared(property), assignment);
    Lines lines;
    for (const TextPair &rule : PairList(stored)) {
        const QString first = conditions.print(rule.first);
        const QString second = effects.print(rule.second);
        if (first.isNull() || second.isNull()) {
            return {};
        }
        lines.append({first, {}, second});
    }
    return lines;
}

//! Reads each part on its own, so that an error names its line.
ChangeLines::Writing writeParts(const DesignerProperty &property, const Lines &lines, ChangeLines::Form form)
{
    const bool hasRules = form == ChangeLines::Form::Rules;
    const ExpressionScope conditions(shared(property), condition);
    const ExpressionScope effects(shared(property), assignment);
    GeneralDataList terms;
    PairList rules;
    for (const ChangeLine &line : lines) {
        const auto first = hasRules ? conditions.read(line.target) : ExpressionScope::Reading();
        const auto second =
            first.error ? first : effects.read(hasRules ? line.value : line.target + " = "_L1 + line.value);
        if (second.error) {
            const QString near = effects.suggestionFor(*second.error);
            const QString advice = near.isEmpty()
                                       ? QString()
                                       : LocalizationHelper::coreString(u" Did you mean \"%1\"?"_s).arg(near);
            return {{},
                    LocalizationHelper::coreString(u"Line %1: %2"_s)
                            .arg(QString::number(&line - lines.constData() + 1), second.error->message)
                        + advice};
        }
        for (const GeneralDataInfo &term : second.terms) {
            terms.append(term);
        }
        rules.append(TextPair{first.stored, second.stored});
    }
    return {hasRules ? rules.toString() : terms.toString(), {}};
}

} // namespace

std::optional<ChangeLines::Form> ChangeLines::formOf(const DesignerProperty &property)
{
    if (propertyCast<UpdateObjectListProperty>(&property)) {
        return Form::States;
    }
    if (propertyCast<PropertyChangeListProperty>(&property)) {
        return Form::Changes;
    }
    if (property.references() == Designer::Form::Expressions) {
        return Form::Rules;
    }
    const auto *expression = propertyCast<GeneralDataListProperty>(&property);
    return expression && expression->purpose({}).isAssignment() ? std::optional(Form::Assignments)
                                                                : std::nullopt;
}

std::optional<QList<ChangeLine>> ChangeLines::read(const DesignerProperty &property, const QString &stored)
{
    const std::optional<Form> form = formOf(property);
    std::optional<Lines> lines;
    if (form == Form::States) {
        lines = readStates(stored);
    } else if (form == Form::Changes) {
        lines = readChanges(stored);
    } else if (form == Form::Assignments) {
        lines = readAssignments(property, stored);
    } else if (form == Form::Rules) {
        lines = readRules(property, stored);
    }
    // What the lines would lose is not shown as lines.
    return lines && write(property, *lines).stored == stored ? lines : std::nullopt;
}

ChangeLines::Writing ChangeLines::write(const DesignerProperty &property, const QList<ChangeLine> &lines)
{
    const Form form = formOf(property).value_or(Form::States);
    Lines complete;
    for (const ChangeLine &line : lines) {
        if (isComplete(form, line)) {
            complete.append(line);
        }
    }
    switch (form) {
    case Form::States:
        return {writeStates(complete), {}};
    case Form::Changes:
        return {writeChanges(complete), {}};
    default:
        return writeParts(property, complete, form);
    }
}

bool ChangeLines::isComplete(Form form, const ChangeLine &line)
{
    const bool hasProperty = form == Form::States || form == Form::Changes;
    return !line.target.isEmpty() && (hasProperty ? !line.property.isEmpty() : !line.value.isEmpty());
}

} // namespace Halvane::Corvex::Designer
