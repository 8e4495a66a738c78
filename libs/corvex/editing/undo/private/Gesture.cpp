// SPDX-License-Identifier: MIT
#include "corvex/editing/undo/private/Gesture.h"

#include "corvex/core/DesignerObject.h"

#include <QSet>

#include <algorithm>
#include <iterator>

namespace Halvane::Corvex::Designer {

namespace {

//! The property that a command changes; for a composite, the one of its first command.
SharedProperty propertyOf(const UndoCommand &command)
{
    const UndoCommand *leaf = &command;
    while (leaf && !leaf->property() && leaf->childCount() > 0) {
        leaf = dynamic_cast<const UndoCommand *>(leaf->child(0));
    }
    return leaf ? leaf->property() : SharedProperty();
}

//! Undoes the commands before \a end. Returns false, with nothing changed, if one cannot be undone.
bool undoAll(const Gesture::Commands &commands, Gesture::Commands::const_iterator end)
{
    for (auto command = end; command != commands.begin();) {
        const UndoCommand::Start start = (*--command)->startUndo();
        if (start == UndoCommand::Start::Failed) {
            while (++command != end) {
                (*command)->redo();
            }
            return false;
        }
        if (start == UndoCommand::Start::Later) {
            (*command)->undo();
        }
    }
    return true;
}

class GestureCommand final : public UndoCommand
{
public:
    GestureCommand(const QString &text, Gesture::Commands commands)
        : UndoCommand(propertyOf(*commands.front()), false, nullptr)
        , m_commands(std::move(commands))
    {
        setText(text);
    }

    void undo() override { startUndo(); }
    Start startUndo() override
    {
        m_isDone = m_isDone && !undoAll(m_commands, m_commands.end());
        return m_isDone ? Start::Failed : Start::Done;
    }
    void redo() override
    {
        if (start() == Start::Failed) {
            fail();
        }
    }
    Start start() override
    {
        for (auto command = m_commands.begin(); !m_isDone && command != m_commands.end(); ++command) {
            if (!startNow(**command)) {
                undoAll(m_commands, command);
                return Start::Failed;
            }
        }
        m_isDone = true;
        return Start::Done;
    }
    bool isValid() const override { return m_commands.front()->isValid(); }
    bool changesFiles() const override
    {
        return std::ranges::any_of(m_commands, [](const auto &command) { return command->changesFiles(); });
    }
    bool keepFiles(Common::FileStore &store, QString &error) override
    {
        return std::ranges::all_of(m_commands,
                                   [&](const auto &command) { return command->keepFiles(store, error); });
    }
    void cleanJunkFiles() override
    {
        for (const auto &command : m_commands) {
            command->cleanJunkFiles();
        }
    }
    QList<DesignerObject *> selectedItems() override
    {
        QList<DesignerObject *> items;
        QSet<DesignerObject *> known;
        for (const auto &command : m_commands) {
            for (DesignerObject *item : command->selectedItems()) {
                if (!known.contains(item)) {
                    known.insert(item);
                    items.append(item);
                }
            }
        }
        return items;
    }
    DesignerObject *activeItem() const override
    {
        for (auto command = m_commands.rbegin(); command != m_commands.rend(); ++command) {
            if (DesignerObject *item = (*command)->activeItem()) {
                return item;
            }
        }
        return nullptr;
    }
    QString errorString() const override
    {
        const auto known = std::ranges::find_if(
            m_commands, [](const auto &command) { return !command->errorString().isEmpty(); });
        return known == m_commands.end() ? QString() : (*known)->errorString();
    }

private:
    Gesture::Commands m_commands;
    bool m_isDone = true;
};

} // namespace

void Gesture::add(std::unique_ptr<UndoCommand> command)
{
    const SharedProperty property = command->soleProperty();
    m_commands.push_back(std::move(command));
    const auto last = std::prev(m_commands.end());
    if (!property) {
        m_runs.clear();
        return;
    }
    const auto run = m_runs.find(property.data());
    if (run == m_runs.end()) {
        m_runs.insert(property.data(), {last});
        return;
    }
    if (run->hasEarlier) {
        m_commands.erase(run->last);
    }
    *run = {last, true};
}

bool Gesture::rollBack()
{
    m_runs.clear();
    if (!undoAll(m_commands, m_commands.end())) {
        return false;
    }
    while (!m_commands.empty()) {
        m_commands.pop_back();
    }
    return true;
}

std::unique_ptr<UndoCommand> Gesture::takeCommand()
{
    m_runs.clear();
    return m_commands.empty() ? nullptr
                              : std::make_unique<GestureCommand>(m_text, std::exchange(m_commands, {}));
}

} // namespace Halvane::Corvex::Designer
