// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/ModelCommand.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/editing/commands/groups/GroupPlaces.h"
#include "corvex/editing/commands/private/EditStep.h"

#include <optional>

namespace Halvane::Corvex::Designer {

namespace {

void redoAll(const QList<ValueChange> &changes)
{
    for (const ValueChange &change : changes) {
        change.redo();
    }
}

void undoAll(const QList<ValueChange> &changes)
{
    for (const ValueChange &change : changes) {
        change.undo();
    }
}

} // namespace

//! Shared by the commands of one edit.
struct ModelCommand::Edit
{
    PendingValues pending;
    bool hasSeveral = false; //!< more than one command
    GroupPlaces places;
    const ModelCommand *lastInGroups = nullptr; //!< after this command the positions of groups are corrected
};

struct ModelCommand::Plan
{
    std::vector<std::unique_ptr<EditStep>> steps;
    std::vector<std::unique_ptr<HeldObject>> unused;
    QList<ValueChange> changes;
    std::optional<QList<ValueChange>> placeChanges;
    QPointer<DesignerObject> activeItem;
    QList<QPointer<DesignerObject>> selectedWhenDone;
    QList<QPointer<DesignerObject>> selectedWhenUndone;
    QString error;
    bool changesComeFirst = false;
    bool isRefused = false;
    bool hasSelection = false;

    bool redoSteps(QString &reason)
    {
        for (auto step = steps.begin(); step != steps.end(); ++step) {
            if (!(*step)->redo(reason)) {
                QString ignored; // the first reason counts
                undoSteps(step, ignored);
                return false;
            }
        }
        return true;
    }
    bool undoSteps(std::vector<std::unique_ptr<EditStep>>::iterator end, QString &reason)
    {
        for (auto step = end; step != steps.begin();) {
            if (!(*--step)->undo(reason)) {
                QString ignored;
                while (++step != end) {
                    (*step)->redo(ignored);
                }
                return false;
            }
        }
        return true;
    }
};

ModelCommand::ModelCommand(const SharedProperty &property, bool selected, UndoCommand *parent)
    : UndoCommand(property, selected, parent)
{
    if (parent) {
        m_edit = wholeEdit();
        m_edit->hasSeveral = true;
    }
    noteForGroups(property);
}

ModelCommand::~ModelCommand() = default;

ModelCommand::Plan &ModelCommand::plan()
{
    if (!m_plan) {
        m_plan = std::make_unique<Plan>();
    }
    return *m_plan;
}

std::shared_ptr<ModelCommand::Edit> ModelCommand::wholeEdit() const
{
    const UndoCommand *command = this;
    for (const UndoCommand *parent = parentCommand(); parent; parent = parent->parentCommand()) {
        const auto *model = dynamic_cast<const ModelCommand *>(parent);
        if (!model && parent->childCount() > 1) {
            // At this point the command is the last child of its parent.
            model = dynamic_cast<const ModelCommand *>(parent->child(parent->childCount() - 2));
        }
        if (model && model->m_edit) {
            return model->m_edit;
        }
        command = parent;
    }
    auto *root = const_cast<ModelCommand *>(dynamic_cast<const ModelCommand *>(command));
    auto edit = std::make_shared<Edit>();
    if (root && root != this) {
        root->m_edit = edit;
    }
    return edit;
}

void ModelCommand::noteForGroups(const SharedProperty &property)
{
    if (!GroupPlaces::concerns(property)) {
        return;
    }
    if (!m_edit) {
        m_edit = std::make_shared<Edit>();
    }
    if (m_edit->places.note(property)) {
        m_edit->lastInGroups = this;
    }
}

void ModelCommand::placeGroups()
{
    if (!m_edit || m_edit->lastInGroups != this) {
        return;
    }
    if (!plan().placeChanges) {
        plan().placeChanges = m_edit->places.settle();
    } else {
        redoAll(*m_plan->placeChanges);
    }
}

QString ModelCommand::localized(const QString &english)
{
    return Common::LocalizationHelper::coreString(english);
}

void ModelCommand::setTitle(const QString &english, const QString &name)
{
    // An edit of many elements changes the same property of each. Commands only exist on the GUI thread.
    static struct
    {
        QString form;
        QString name;
        QString text;
    } last;
    if (const QString form = localized(english); form != last.form || name != last.name) {
        last = {form, name, form.arg(name)};
    }
    setText(last.text);
}

void ModelCommand::refuse(const QString &error, const QList<DesignerObject *> &unused)
{
    plan().isRefused = true;
    plan().error = error;
    hold(unused);
}

void ModelCommand::hold(const QList<DesignerObject *> &unused)
{
    for (DesignerObject *object : unused) {
        plan().unused.push_back(std::make_unique<HeldObject>(object));
    }
}

void ModelCommand::addStep(std::unique_ptr<EditStep> step)
{
    noteForGroups(step->property());
    plan().steps.push_back(std::move(step));
}

void ModelCommand::addValueStep(const SharedProperty &property, const QString &value)
{
    const QString before = valueOf(property);
    if (before != value) {
        addStep<SetValueStep>(ValueChange{property, before, value});
        notePending(property, value);
    }
}

void ModelCommand::addChanges(const QList<ValueChange> &changes)
{
    if (changes.isEmpty()) {
        return;
    }
    plan().changes += changes;
    for (const ValueChange &change : changes) {
        noteForGroups(change.property);
        notePending(change.property, change.after);
    }
}

void ModelCommand::addChange(const SharedProperty &property, const QString &value)
{
    const QString before = property ? valueOf(property) : QString();
    if (property && before != value) {
        addChanges({{property, before, value}});
    }
}

void ModelCommand::makeChangesFirst()
{
    plan().changesComeFirst = true;
}

void ModelCommand::setActiveItem(DesignerObject *item)
{
    plan().activeItem = item;
}

void ModelCommand::setSelection(const QList<DesignerObject *> &whenDone,
                                const QList<DesignerObject *> &whenUndone)
{
    using Items = QList<QPointer<DesignerObject>>;
    plan().selectedWhenDone = Items(whenDone.cbegin(), whenDone.cend());
    plan().selectedWhenUndone = Items(whenUndone.cbegin(), whenUndone.cend());
    plan().hasSelection = true;
}

QString ModelCommand::valueOf(const SharedProperty &property) const
{
    if (const PendingValues *values = pending()) {
        const auto known = values->constFind(property.data());
        if (known != values->cend()) {
            return *known;
        }
    }
    return property->valueString();
}

const PendingValues *ModelCommand::pending() const
{
    return m_edit && m_edit->hasSeveral ? &m_edit->pending : nullptr;
}

void ModelCommand::notePending(const SharedProperty &property, const QString &value)
{
    if (pending()) {
        m_edit->pending.insert(property.data(), value);
    }
}

bool ModelCommand::isValid() const
{
    if (m_plan && m_plan->isRefused) {
        return false;
    }
    const auto isPossible = [](const std::unique_ptr<EditStep> &step) { return step->isPossible(); };
    return UndoCommand::isValid()
           && (!m_plan || std::all_of(m_plan->steps.begin(), m_plan->steps.end(), isPossible));
}

QString ModelCommand::errorString() const
{
    return m_plan && !m_plan->error.isEmpty() ? m_plan->error : UndoCommand::errorString();
}

DesignerObject *ModelCommand::activeItem() const
{
    if (m_plan && m_plan->activeItem) {
        return m_plan->activeItem;
    }
    return m_plan && m_plan->hasSelection ? ownSelection().value(0) : UndoCommand::activeItem();
}

QList<DesignerObject *> ModelCommand::ownSelection() const
{
    QList<DesignerObject *> items;
    for (const QPointer<DesignerObject> &item :
         m_isDone ? m_plan->selectedWhenDone : m_plan->selectedWhenUndone) {
        if (item) {
            items.append(item);
        }
    }
    return items;
}

QList<DesignerObject *> ModelCommand::selectedItems()
{
    return m_plan && m_plan->hasSelection ? ownSelection() : UndoCommand::selectedItems();
}

void ModelCommand::redo()
{
    if (!redoAny()) {
        fail();
    }
}

UndoCommand::Start ModelCommand::start()
{
    return redoAny() ? Start::Done : Start::Failed;
}

bool ModelCommand::redoAny()
{
    if (m_isDone) {
        return true;
    }
    QString error;
    m_isDone =
        childCount() > 0 ? !(m_plan && m_plan->isRefused) && redoChildren() : isValid() && redoLeaf(error);
    if (m_isDone && m_plan) {
        m_plan->error.clear();
    } else if (!error.isEmpty()) {
        plan().error = error;
    }
    return m_isDone;
}

bool ModelCommand::redoLeaf(QString &error)
{
    const bool changesComeFirst = m_plan && m_plan->changesComeFirst;
    if (changesComeFirst) {
        redoAll(m_plan->changes);
    }
    const bool done = redoOwn(error);
    if (done && m_plan && !changesComeFirst) {
        redoAll(m_plan->changes);
    } else if (!done && changesComeFirst) {
        undoAll(m_plan->changes);
    }
    if (done) {
        placeGroups();
    }
    return done;
}

void ModelCommand::undo()
{
    if (!m_isDone) {
        return;
    }
    QString error;
    if (childCount() > 0) {
        QUndoCommand::undo();
    } else if (isValid() && !undoLeaf(error)) {
        plan().error = error;
        return;
    }
    m_isDone = false;
}

UndoCommand::Start ModelCommand::startUndo()
{
    if (m_isDone && childCount() == 0) {
        undo();
        return m_isDone ? Start::Failed : Start::Done;
    }
    const Start start = m_isDone ? UndoCommand::startUndo() : Start::Done;
    m_isDone = m_isDone && start != Start::Done;
    return start;
}

bool ModelCommand::undoLeaf(QString &error)
{
    if (undoOwn(error) && m_plan) {
        m_plan->error.clear();
        undoAll(m_plan->changes);
        if (m_plan->placeChanges) {
            undoAll(*m_plan->placeChanges);
        }
    }
    return error.isEmpty();
}

bool ModelCommand::redoOwn(QString &error)
{
    return !m_plan || m_plan->redoSteps(error);
}

bool ModelCommand::undoOwn(QString &error)
{
    if (!m_plan) {
        return true;
    }
    if (!m_plan->undoSteps(m_plan->steps.end(), error)) {
        return false;
    }
    return std::all_of(m_plan->steps.begin(), m_plan->steps.end(), [this](const auto &step) {
        const auto *value = dynamic_cast<const SetValueStep *>(step.get());
        return !value || value->change().property != property()
               || property()->equalsValue(value->change().before);
    });
}

void ModelCommand::appendOwnChanges(QList<ValueChange> &changes) const
{
    if (m_plan) {
        for (const std::unique_ptr<EditStep> &step : m_plan->steps) {
            if (const auto *value = dynamic_cast<const SetValueStep *>(step.get())) {
                changes.append(value->change());
            }
        }
    }
}

QList<ValueChange> ModelCommand::valueChanges() const
{
    QList<ValueChange> changes;
    for (int i = 0; i < childCount(); ++i) {
        if (const auto *command = dynamic_cast<const ModelCommand *>(child(i))) {
            changes += command->valueChanges();
        }
    }
    appendOwnChanges(changes);
    return m_plan ? changes + m_plan->changes + m_plan->placeChanges.value_or(QList<ValueChange>()) : changes;
}

void ModelCommand::cleanJunkFiles()
{
    UndoCommand::cleanJunkFiles();
    if (m_plan) {
        for (const std::unique_ptr<EditStep> &step : m_plan->steps) {
            step->cleanJunkFiles();
        }
    }
}

bool ModelCommand::keepFiles(Common::FileStore &store, QString &error)
{
    return UndoCommand::keepFiles(store, error)
           && (!m_plan || std::ranges::all_of(m_plan->steps, [&](const std::unique_ptr<EditStep> &step) {
                  return step->keepFiles(store, error);
              }));
}

bool ModelCommand::changesFiles() const
{
    return UndoCommand::changesFiles()
           || (m_plan && std::ranges::any_of(m_plan->steps, [](const std::unique_ptr<EditStep> &step) {
                   return step->changesFiles();
               }));
}

} // namespace Halvane::Corvex::Designer
