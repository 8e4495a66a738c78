// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/screens/AddScreen.h"

namespace Halvane::Corvex::Designer {

//! Adds a screen and applies another command to it, in one step.
class CORVEX_EXPORT AddScreenAndElements : public AddScreen
{
public:
    //! Takes ownership of \a elements, which must not have a parent. The command is planned before the screen
    //! is in the project, so call screen->setProject(project) before you create a command that brings images
    //! or variables.
    AddScreenAndElements(DesignerObject *screen, Project *project, qsizetype index, UndoCommand *elements,
                         UndoCommand *parent = nullptr);

    bool isValid() const override;
    QString errorString() const override;
    QList<DesignerObject *> selectedItems() override;
    void cleanJunkFiles() override;
    bool keepFiles(Common::FileStore &store, QString &error) override;
    bool changesFiles() const override;

protected:
    bool redoOwn(QString &error) override;
    bool undoOwn(QString &error) override;
    void appendOwnChanges(QList<ValueChange> &changes) const override;

private:
    std::unique_ptr<UndoCommand> m_elements;
};

} // namespace Halvane::Corvex::Designer
