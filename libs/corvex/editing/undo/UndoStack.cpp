// SPDX-License-Identifier: MIT
#include "corvex/editing/undo/UndoStack.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/editing/undo/UndoCommand.h"

namespace Halvane::Corvex::Designer {

UndoStack::UndoStack(QObject *parent)
    : QUndoStack(parent)
{
    connect(this, &QUndoStack::indexChanged, this, &UndoStack::onIndexChanged);
}

UndoStack::~UndoStack()
{
    // QUndoStack tells of index 0 while it goes.
    disconnect(this, &QUndoStack::indexChanged, this, &UndoStack::onIndexChanged);
    deleteCandidates();
}

void UndoStack::push(UndoCommand *command)
{
    DesignerObject *candidate = command->deletionCandidate();
    if (candidate && !m_deletionCandidates.contains(candidate)) {
        m_deletionCandidates.append(candidate);
    }
    m_lastPushed = command;
    QUndoStack::push(command);
}

void UndoStack::startOver()
{
    deleteCandidates();
    const bool wasSaved = isSaved();
    clear();
    m_lastPushed = nullptr;
    m_previousIndex = 0;
    if (wasSaved) {
        emit savedChanged(true);
    }
}

DesignerObject *UndoStack::activeItem() const
{
    return m_activeItem;
}

void UndoStack::deleteCandidates()
{
    while (!m_deletionCandidates.isEmpty()) {
        // What was put back may have gone with the model since.
        const QPointer<DesignerObject> candidate = m_deletionCandidates.takeFirst();
        if (candidate && !candidate->parent()) {
            delete candidate;
        }
    }
}

void UndoStack::cleanJunkFiles()
{
    for (int i = 0; i < count(); ++i) {
        // The stack owns its commands; QUndoStack shows them to be read only.
        if (auto *known = const_cast<UndoCommand *>(dynamic_cast<const UndoCommand *>(command(i)))) {
            known->cleanJunkFiles();
        }
    }
}

const UndoCommand *UndoStack::decidingCommand(int index) const
{
    if (index == 0) {
        return nullptr;
    }
    return index == count() ? m_lastPushed : dynamic_cast<const UndoCommand *>(command(index - 1));
}

void UndoStack::onIndexChanged(int index)
{
    if (index == m_currentIndex) {
        return;
    }
    m_previousIndex = m_currentIndex;
    m_currentIndex = index;

    const UndoCommand *deciding = decidingCommand(index);
    const UndoCommand::Deletion deletion = deciding ? deciding->deletion() : UndoCommand::Deletion::None;
    m_isDeleteScreen = deletion == UndoCommand::Deletion::Screen;
    m_isDeleteImage = deletion == UndoCommand::Deletion::Image;
    m_isDeleteVariable = deletion == UndoCommand::Deletion::Variable;
    m_activeItem = deciding ? deciding->activeItem() : nullptr;
    if (!m_isActiveItemSignalBlocked) {
        emit activeItemChanged(m_activeItem);
    }
    if (index == 0) {
        emit savedChanged(true);
    } else if (m_previousIndex == 0) {
        emit savedChanged(false);
    }
}

} // namespace Halvane::Corvex::Designer
