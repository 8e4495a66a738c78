// SPDX-License-Identifier: MIT
#include "corvex/editing/undo/UndoCommand.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/editing/undo/UndoStack.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

UndoCommand::UndoCommand() = default;

UndoCommand::UndoCommand(const SharedProperty &property, bool selected, UndoCommand *parent)
    : QUndoCommand(parent)
    , m_property(property)
    , m_parent(parent)
    , m_isSelected(selected)
{ }

UndoCommand::~UndoCommand()
{
    if (m_stack) {
        m_stack->commandDeleted(this);
    }
}

const UndoCommand *UndoCommand::childCommand(int index) const
{
    return dynamic_cast<const UndoCommand *>(child(index));
}

DesignerObject *UndoCommand::owner() const
{
    return m_property ? m_property->parentObject() : nullptr;
}

void UndoCommand::undo()
{
    if (childCount() > 0) {
        QUndoCommand::undo();
    }
}

void UndoCommand::redo()
{
    if (!redoChildren()) {
        fail();
    }
}

UndoCommand::Start UndoCommand::start()
{
    return startChildren(*this);
}

UndoCommand::Start UndoCommand::start(QUndoCommand &command)
{
    auto *own = dynamic_cast<UndoCommand *>(&command);
    return own ? own->start() : startChildren(command);
}

bool UndoCommand::startNow(QUndoCommand &command)
{
    const Start start = UndoCommand::start(command);
    if (start == Start::Later) {
        command.redo();
    }
    const bool isDone = start != Start::Failed && !command.isObsolete();
    command.setObsolete(false);
    return isDone;
}

UndoCommand::Start UndoCommand::startChildren(QUndoCommand &command)
{
    for (int i = 0; i < command.childCount(); ++i) {
        // The children belong to the command, but QUndoCommand only returns const pointers.
        const Start start = UndoCommand::start(*const_cast<QUndoCommand *>(command.child(i)));
        if (start == Start::Failed) {
            undoChildren(command, i);
        }
        if (start != Start::Done) {
            return start;
        }
    }
    return command.childCount() > 0 ? Start::Done : Start::Later;
}

UndoCommand::Start UndoCommand::startUndo()
{
    return startUndoOfChildren(*this);
}

UndoCommand::Start UndoCommand::startUndo(QUndoCommand &command)
{
    auto *own = dynamic_cast<UndoCommand *>(&command);
    return own ? own->startUndo() : startUndoOfChildren(command);
}

UndoCommand::Start UndoCommand::startUndoOfChildren(QUndoCommand &command)
{
    const auto child = [&command](int i) { return const_cast<QUndoCommand *>(command.child(i)); };
    for (int i = command.childCount() - 1; i >= 0; --i) {
        const Start start = startUndo(*child(i));
        for (int undone = i + 1; start == Start::Failed && undone < command.childCount(); ++undone) {
            child(undone)->redo();
        }
        if (start != Start::Done) {
            return start;
        }
    }
    return command.childCount() > 0 ? Start::Done : Start::Later;
}

bool UndoCommand::redoChildren()
{
    for (int i = 0; i < childCount(); ++i) {
        if (!startNow(*const_cast<QUndoCommand *>(child(i)))) {
            undoChildren(*this, i);
            return false;
        }
    }
    return true;
}

void UndoCommand::undoChildren(QUndoCommand &command, int end)
{
    while (--end >= 0) {
        const_cast<QUndoCommand *>(command.child(end))->undo();
    }
}

void UndoCommand::fail()
{
    setObsolete(true);
    if (m_stack) {
        m_stack->commandFailed(this);
    }
}

QString UndoCommand::errorString() const
{
    for (int i = 0; i < childCount(); ++i) {
        const UndoCommand *command = childCommand(i);
        if (const QString error = command ? command->errorString() : QString(); !error.isEmpty()) {
            return error;
        }
    }
    return {};
}

QList<DesignerObject *> UndoCommand::selectedItems()
{
    QList<DesignerObject *> items;
    if (childCount() == 0) {
        if (owner() && m_isSelected) {
            items.append(owner());
        }
        return items;
    }
    QSet<DesignerObject *> known;
    for (int i = 0; i < childCount(); ++i) {
        auto *command = const_cast<UndoCommand *>(childCommand(i));
        for (DesignerObject *item : command ? command->selectedItems() : QList<DesignerObject *>()) {
            if (!known.contains(item)) {
                known.insert(item);
                items.append(item);
            }
        }
    }
    return items;
}

bool UndoCommand::isValid() const
{
    if (childCount() > 0) {
        const UndoCommand *first = childCommand(0);
        return first && first->isValid();
    }
    return owner();
}

DesignerObject *UndoCommand::deletionCandidate() const
{
    return nullptr;
}

DesignerObject *UndoCommand::activeItem() const
{
    for (int i = 0; i < childCount(); ++i) {
        const UndoCommand *command = childCommand(i);
        if (DesignerObject *item = command ? command->activeItem() : nullptr) {
            return item;
        }
    }
    return nullptr;
}

UndoCommand::Deletion UndoCommand::deletion() const
{
    return Deletion::None;
}

void UndoCommand::cleanJunkFiles()
{
    for (int i = 0; i < childCount(); ++i) {
        if (auto *command = const_cast<UndoCommand *>(childCommand(i))) {
            command->cleanJunkFiles();
        }
    }
}

bool UndoCommand::keepFiles(Common::FileStore &store, QString &error)
{
    bool isKept = true;
    for (int i = 0; i < childCount() && isKept; ++i) {
        auto *command = const_cast<UndoCommand *>(childCommand(i));
        isKept = !command || command->keepFiles(store, error);
    }
    return isKept;
}

bool UndoCommand::changesFiles() const
{
    bool changes = false;
    for (int i = 0; i < childCount() && !changes; ++i) {
        const UndoCommand *command = childCommand(i);
        changes = command && command->changesFiles();
    }
    return changes;
}

SharedProperty UndoCommand::soleProperty() const
{
    return {};
}

Screen *UndoCommand::screen() const
{
    for (int i = 0; i < childCount(); ++i) {
        const UndoCommand *command = childCommand(i);
        const bool isAboutImages =
            command && command->property() && command->property()->id() == "imageResources"_L1;
        if (command && !isAboutImages) {
            return command->screen();
        }
    }
    return owner() ? owner()->screen() : nullptr;
}

Project *UndoCommand::project() const
{
    if (childCount() > 0) {
        const UndoCommand *first = childCommand(0);
        return first ? first->project() : nullptr;
    }
    const DesignerObject *object = owner();
    if (object && object->isKindOfClass(u"FilterElement"_s)) {
        // A filter belongs to its screen, and the screen knows the project.
        for (const DesignerObject *holder = object; holder; holder = holder->ownerObject()) {
            if (holder->isKindOfClass(u"Screen"_s)) {
                return holder->project();
            }
        }
    }
    return object ? object->project() : nullptr;
}

DesignerProperty *UndoCommand::idProperty() const
{
    if (childCount() > 0) {
        const UndoCommand *first = childCommand(0);
        return first ? first->idProperty() : nullptr;
    }
    return m_property && m_property->id() == "id"_L1 ? m_property.data() : nullptr;
}

} // namespace Halvane::Corvex::Designer
