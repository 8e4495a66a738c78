// SPDX-License-Identifier: MIT
#include "corvex/document/ProjectHistory.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/project/Project.h"

#include <QScopedValueRollback>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

//! For a macro, whether any of its commands does.
bool touchesFiles(const QUndoCommand *command)
{
    if (const auto *own = dynamic_cast<const UndoCommand *>(command)) {
        return own->changesFiles();
    }
    bool touches = false;
    for (int i = 0; i < command->childCount() && !touches; ++i) {
        touches = touchesFiles(command->child(i));
    }
    return touches;
}

} // namespace

int ProjectHistory::Part::end() const
{
    return to >= 0 ? to : stack->count();
}

ProjectHistory::ProjectHistory(Project &project, QObject *parent)
    : QObject(parent)
    , m_project(project)
{
    m_project.setHistoryKeeper(this);
    historyForgotten();
    followStack();
    connect(&m_project, &Project::undoStackChanged, this, [this] {
        if (!m_isMoving) {
            emit changed();
        }
    });
}

ProjectHistory::~ProjectHistory()
{
    m_project.setHistoryKeeper(nullptr);
    setGate(nullptr);
}

void ProjectHistory::setGate(EditGate *gate)
{
    m_gate = gate;
    current().stack->setGate(m_gate);
}

void ProjectHistory::setUnsaved()
{
    m_saved.reset();
    current().stack->setStartSaved(false);
    emit changed();
}

bool ProjectHistory::beginGesture(const QString &text)
{
    if (!current().stack->beginGesture(text)) {
        return refuse(stack().errorString());
    }
    emit changed();
    return true;
}

bool ProjectHistory::commitGesture()
{
    const bool isDone = current().stack->commitGesture();
    emit changed();
    return isDone || refuse(LocalizationHelper::coreString(u"There is no gesture to finish."_s));
}

bool ProjectHistory::rollBackGesture()
{
    const bool isDone = current().stack->rollBackGesture();
    emit changed();
    return isDone || refuse(stack().errorString());
}

bool ProjectHistory::pushInRun(const QString &text, UndoCommand *command, int pause)
{
    const bool isDone = current().stack->pushInRun(text, command, pause);
    emit changed();
    return isDone || refuse(stack().errorString());
}

void ProjectHistory::endRun()
{
    current().stack->endRun();
}

int ProjectHistory::sizeBefore(size_t part) const
{
    int size = 0;
    for (size_t i = 0; i < part; ++i) {
        size += m_parts[i].size();
    }
    return size;
}

int ProjectHistory::count() const
{
    return sizeBefore(m_parts.size());
}

int ProjectHistory::position() const
{
    return sizeBefore(m_current) + stack().index() - current().from;
}

int ProjectHistory::savedPosition() const
{
    const auto saved =
        std::ranges::find_if(m_parts, [this](const Part &part) { return part.stack == m_saved; });
    return saved == m_parts.end() ? -1 : sizeBefore(size_t(saved - m_parts.begin()));
}

const QUndoCommand *ProjectHistory::commandBefore() const
{
    if (stack().index() > current().from) {
        return stack().command(stack().index() - 1);
    }
    for (size_t i = m_current; i-- > 0;) {
        if (m_parts[i].size() > 0) {
            return m_parts[i].stack->command(m_parts[i].end() - 1);
        }
    }
    return nullptr;
}

const QUndoCommand *ProjectHistory::commandAfter() const
{
    if (stack().index() < current().end()) {
        return stack().command(stack().index());
    }
    for (size_t i = m_current + 1; i < m_parts.size(); ++i) {
        if (m_parts[i].size() > 0) {
            return m_parts[i].stack->command(m_parts[i].from);
        }
    }
    return nullptr;
}

bool ProjectHistory::canUndo() const
{
    return stack().isInRun() ? stack().hasChangedInGesture() || commandBefore()
                             : !stack().hasGesture() && commandBefore();
}

bool ProjectHistory::canRedo() const
{
    return !stack().hasGesture() && !stack().hasChangedInGesture() && commandAfter();
}

QString ProjectHistory::undoText() const
{
    if (stack().isInRun() && stack().hasChangedInGesture()) {
        return stack().gestureText();
    }
    const QUndoCommand *command = commandBefore();
    return command ? command->actionText() : QString();
}

QString ProjectHistory::redoText() const
{
    const QUndoCommand *command = commandAfter();
    return command ? command->actionText() : QString();
}

QString ProjectHistory::stepText(int step) const
{
    for (const Part &part : m_parts) {
        if (step < part.size()) {
            return part.stack->command(part.from + step)->actionText();
        }
        step -= part.size();
    }
    return {};
}

bool ProjectHistory::refuse(const QString &reason)
{
    m_error = reason;
    return false;
}

//! Returns whether the command can be undone or redone now.
bool ProjectHistory::prepare(const QUndoCommand *command)
{
    m_error.clear();
    if (!current().stack->isOpen()) {
        return refuse(stack().errorString());
    }
    // Since a save, other programs have had access to the project's folder.
    return !touchesFiles(command) || m_project.beginFileChanges(&m_error);
}

bool ProjectHistory::undo()
{
    endRun();
    const QUndoCommand *command = commandBefore();
    if (!command) {
        return refuse(LocalizationHelper::coreString(u"There is nothing to undo."_s));
    }
    if (!prepare(command)) {
        return false;
    }
    bool isDone = false;
    {
        const QScopedValueRollback<bool> isMoving(m_isMoving, true);
        while (stack().index() == current().from) {
            activate(m_current - 1);
        }
        const int before = stack().index();
        current().stack->undo();
        isDone = stack().index() < before;
        if (!isDone) {
            m_error = stack().errorString();
        }
        settle();
    }
    emit changed();
    return isDone;
}

bool ProjectHistory::redo()
{
    endRun();
    const QUndoCommand *command = commandAfter();
    if (!command) {
        return refuse(LocalizationHelper::coreString(u"There is nothing to redo."_s));
    }
    if (!prepare(command)) {
        return false;
    }
    bool isDone = false;
    {
        const QScopedValueRollback<bool> isMoving(m_isMoving, true);
        while (stack().index() == current().end()) {
            activate(m_current + 1);
        }
        const int before = stack().index();
        const int steps = stack().count();
        current().stack->redo();
        isDone = stack().index() > before;
        if (!isDone) {
            m_error = stack().errorString();
        }
        if (stack().count() < steps) {
            dropLaterParts(); // They depend on the steps that the stack has dropped.
        }
        settle();
    }
    emit changed();
    return isDone;
}

bool ProjectHistory::goTo(int position)
{
    endRun();
    bool isDone = position >= 0 && position <= count();
    while (isDone && this->position() != position) {
        isDone = this->position() > position ? undo() : redo();
    }
    return isDone;
}

void ProjectHistory::activate(size_t part)
{
    disconnect(current().stack.get(), nullptr, this, nullptr);
    current().stack->setGate(nullptr);
    m_current = part;
    current().stack->setStartSaved(current().stack == m_saved);
    followStack();
    m_project.setUndoStack(current().stack);
}

void ProjectHistory::followStack()
{
    const UndoStack *stack = current().stack.get();
    current().stack->setGate(m_gate);
    connect(stack, &UndoStack::indexChanged, this, &ProjectHistory::onIndexChanged);
    connect(stack, &UndoStack::aboutToPush, this, &ProjectHistory::dropLaterParts);
    connect(stack, &UndoStack::moved, this, [this, stack](const UndoCommand *command) {
        // Another receiver may have pushed a command, which deletes this one.
        if (stack->lastMoved() == command) {
            emit moved(command);
        }
    });
}

//! At the saved state, switches to the history in which index 0 means saved.
void ProjectHistory::settle()
{
    const auto saved =
        std::ranges::find_if(m_parts, [this](const Part &part) { return part.stack == m_saved; });
    const auto part = size_t(saved - m_parts.begin());
    if (saved != m_parts.end() && part != m_current && position() == sizeBefore(part)) {
        activate(part);
    }
}

//! Other code has moved the stack itself, possibly from one part into another.
void ProjectHistory::onIndexChanged()
{
    if (m_isMoving) {
        return;
    }
    const int index = stack().index();
    if (index < current().from || index > current().end()) {
        const auto part = std::ranges::find_if(m_parts, [this, index](const Part &candidate) {
            return candidate.stack == current().stack && index >= candidate.from && index <= candidate.end();
        });
        m_current = part == m_parts.end() ? m_current : size_t(part - m_parts.begin());
    }
    {
        const QScopedValueRollback<bool> isMoving(m_isMoving, true);
        settle();
    }
    emit changed();
}

//! These parts can no longer be reached.
void ProjectHistory::dropLaterParts()
{
    std::deque<Part> later;
    while (m_parts.size() > m_current + 1) {
        later.push_front(std::move(m_parts.back()));
        m_parts.pop_back();
    }
    const auto isLeft = [this](const Stack &stack) {
        return std::ranges::any_of(m_parts, [&stack](const Part &part) { return part.stack == stack; });
    };
    while (!later.empty()) {
        const Stack stack = std::move(later.back().stack);
        later.pop_back();
        if (stack != current().stack && isLeft(stack)) {
            stack->dropRedo();
        }
    }
    if (m_saved && !isLeft(m_saved)) {
        m_saved.reset();
    }
    current().to = -1;
}

void ProjectHistory::aboutToSave()
{
    current().stack->commitGesture();
    m_error.clear();
    m_keepsFiles = std::ranges::all_of(
        m_parts, [this](const Part &part) { return part.stack->keepFiles(m_files, m_error); });
    if (!m_keepsFiles) {
        for (const Part &part : m_parts) {
            part.stack->cleanJunkFiles();
        }
    }
}

std::shared_ptr<UndoStack> ProjectHistory::historyAfterSave()
{
    const Stack before = current().stack;
    disconnect(before.get(), nullptr, this, nullptr);
    before->setGate(nullptr);
    if (!m_keepsFiles) {
        m_parts = {Part{std::make_shared<UndoStack>()}};
        m_current = 0;
        QMetaObject::invokeMethod(
            this, [this, reason = m_error] { emit forgotten(reason); }, Qt::QueuedConnection);
    } else if (before->count() > 0) {
        const int index = before->index();
        const Part head{before, current().from, index};
        const Part tail{before, index, current().to};
        auto place = m_parts.erase(m_parts.begin() + qsizetype(m_current));
        if (tail.size() > 0) {
            place = m_parts.insert(place, tail);
        }
        place = m_parts.insert(place, Part{std::make_shared<UndoStack>()});
        if (head.size() > 0) {
            place = m_parts.insert(place, head) + 1;
        }
        m_current = size_t(place - m_parts.begin());
        dropOldParts();
    }
    m_saved = current().stack;
    m_saved->setStartSaved(true);
    followStack();
    return m_saved;
}

void ProjectHistory::dropOldParts()
{
    const int previous = m_current > 0 ? m_parts[m_current - 1].size() : 0;
    while (m_current > 1 && sizeBefore(m_current) - previous > m_mostEarlierSteps) {
        m_parts.pop_front();
        --m_current;
    }
}

void ProjectHistory::historyForgotten()
{
    m_parts = {Part{m_project.sharedUndoStack()}};
    m_current = 0;
    m_saved = current().stack;
    current().stack->setStartSaved(true);
}

} // namespace Halvane::Corvex::Designer
