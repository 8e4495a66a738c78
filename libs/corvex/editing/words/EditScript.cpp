// SPDX-License-Identifier: MIT
#include "corvex/editing/words/EditScript.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/editing/words/ProjectPath.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editing/words/private/EditPlanner.h"
#include "corvex/editing/words/private/Explanation.h"
#include "corvex/project/Project.h"
#include "corvex/variables/ModbusMap.h"
#include "corvex/variables/NumberVariable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString pathOf(const SharedProperty &property)
{
    const DesignerObject *owner = property->parentObject();
    return owner ? u"%1.%2"_s.arg(owner->objectPath(), property->id()) : property->id();
}

//! The texts of all leaf commands below \a command.
QStringList partsOf(const QUndoCommand &command)
{
    QStringList parts;
    for (int i = 0; i < command.childCount(); ++i) {
        const QUndoCommand &child = *command.child(i);
        if (child.childCount() == 0 && !child.text().isEmpty()) {
            parts.append(child.text());
        }
        parts += partsOf(child);
    }
    return parts;
}

//! What the text of a validator does not say.
QString detailOf(const DesignerProperty &property)
{
    const auto *terms = propertyCast<GeneralDataListProperty>(&property);
    const QVariant kind = property.editorParameter(u"RegType"_s);
    return terms && kind.isValid() ? ModbusMap(ModbusMap::RegisterKind(kind.toInt())).detail(terms->value())
                                   : QString();
}

} // namespace

EditScript::EditScript(Project &project, std::function<bool()> loadModels)
    : m_project(project)
    , m_planner(std::make_unique<EditPlanner>(project, std::move(loadModels)))
{ }

EditScript::~EditScript() = default;

EditPlan EditScript::plan(const QString &line) const
{
    return m_planner->plan(EditPlanner::read(line));
}

EditScript::Result EditScript::run(const QString &line)
{
    m_refusal = {};
    const EditCall call = EditPlanner::read(line);
    const bool isReadable = call.refusal.message.isEmpty();
    m_isLost = m_isLost || (m_hasFailed && isReadable && call.movesHistory());
    if (!isReadable) {
        m_refusal = call.refusal;
    } else if (!call.form) {
        return Result::Done;
    } else if (!m_isLost) {
        EditPlan plan = call.settings.isEmpty() ? m_planner->plan(call) : EditPlan();
        if (call.settings.isEmpty() ? perform(plan) : addWithValues(call)) {
            return Result::Done;
        }
    }
    return noteFailure(call);
}

//! Adds an object and sets its values, in one step.
bool EditScript::addWithValues(const EditCall &call)
{
    UndoStack *stack = m_project.undoStack();
    const QString title = Common::LocalizationHelper::coreString(u"Add %1"_s).arg(call.givenName());
    if (!stack->beginGesture(title)) {
        m_refusal.message = stack->errorString();
        return false;
    }
    const qsizetype edits = m_edits.size();
    EditPlan addition = m_planner->plan(call);
    const DesignerObject *added = addition.added;
    bool isDone = perform(addition);
    for (auto setting = call.settings.cbegin(); isDone && setting != call.settings.cend(); ++setting) {
        EditPlan value =
            plan(u"set \"%1.%2\" = %3"_s.arg(added->objectPath(), setting->property, setting->value));
        isDone = perform(value);
    }
    if (isDone) {
        return stack->commitGesture();
    }
    m_edits.resize(edits);
    stack->rollBackGesture();
    return false;
}

bool EditScript::perform(EditPlan &plan)
{
    m_output += plan.output;
    if (plan.isRefused()) {
        m_refusal = plan.refusal;
        return false;
    }
    if (const std::optional<int> steps = plan.historySteps) {
        UndoStack *stack = m_project.undoStack();
        const int index = stack->index() + *steps;
        stack->setIndex(index);
        if (stack->index() != index) {
            m_refusal.message = stack->errorString();
            return false;
        }
        m_edits.append({plan.historyText, {}, {}});
    }
    return !plan.command || push(plan);
}

bool EditScript::push(EditPlan &plan)
{
    ModelCommand *command = plan.command.release();
    // Removed objects are identified by their earlier paths, and earlier values contain earlier names.
    QHash<const DesignerProperty *, QString> paths;
    QHash<std::pair<const DesignerProperty *, QString>, QString> readable;
    for (const ValueChange &change : command->valueChanges()) {
        paths.insert(change.property.data(), pathOf(change.property));
        if (m_reportsReadable) {
            readable.insert({change.property.data(), change.before},
                            ReadableValue::print(*change.property, change.before));
        }
    }
    UndoStack *stack = m_project.undoStack();
    if (!stack->push(command)) {
        m_refusal.message = plan.explained(stack->errorString());
        return false;
    }
    if (plan.added && !plan.added->idProperty()->isValid()) {
        m_refusal.message = Explanation::ofName(*plan.added, plan.added->getIdName(),
                                                plan.added->idProperty()->errorString());
        stack->undo();
        return false;
    }
    QList<Change> changes;
    for (const auto &[property, before, after] : command->valueChanges()) {
        const DesignerObject *owner = property->parentObject();
        const bool isInModel = owner && owner->project();
        Change change{isInModel ? pathOf(property) : paths.value(property.data()), before, after, {}, {}};
        if (m_reportsReadable) {
            const auto known = readable.constFind({property.data(), before});
            change.readableBefore =
                known == readable.cend() ? ReadableValue::print(*property, before) : *known;
            change.readableAfter = ReadableValue::print(*property, after);
        }
        changes.append(change);
    }
    if (plan.changed) {
        m_changed.insert(plan.changed);
    }
    std::ranges::stable_sort(changes, {}, &Change::property);
    m_edits.append({command->text(), partsOf(*command), changes});
    return true;
}

//! Whether a failed line is itself wrong. Records what later lines will miss.
EditScript::Result EditScript::noteFailure(const EditCall &call)
{
    const bool follows = m_isLost || std::ranges::any_of(call.words, [this](const QString &word) {
                             return std::ranges::any_of(word.split(u'.'), [this](const QString &name) {
                                 return m_unmade.contains(name);
                             });
                         });
    const QString name = call.givenName();
    if (!name.isEmpty() && !ProjectPath::isName(m_project, name)) {
        m_unmade.insert(name);
    }
    m_hasFailed = true;
    return follows ? Result::Follows : Result::Failed;
}

QStringList EditScript::invalidValues() const
{
    QStringList lines;
    for (const SharedProperty &property : m_changed) {
        const DesignerObject *owner = property->parentObject();
        if (owner && owner->project() == &m_project && !property->isValid()) {
            lines.append(u"%1: %2%3"_s.arg(pathOf(property), property->errorString(), detailOf(*property)));
        }
        const auto *variable = kindCast<ProjectVariable>(owner);
        if (variable && property == variable->value() && property->isValid()
            && NumberVariable::lacksNumber(*variable)) {
            lines.append(Common::LocalizationHelper::coreString(
                             u"%1: \"%2\" is not a number that the device supports."_s)
                             .arg(pathOf(property), property->valueString()));
        }
    }
    lines.sort();
    return lines;
}

void EditScript::undoAll()
{
    m_project.undoStack()->setIndex(0);
    m_project.createUndoStack();
}

} // namespace Halvane::Corvex::Designer
