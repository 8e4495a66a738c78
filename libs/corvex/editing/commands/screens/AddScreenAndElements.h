// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/screens/AddScreen.h"

namespace Halvane::Corvex::Designer {

//! Adds a screen and does what another command does to it, in one step.
class CORVEX_EXPORT AddScreenAndElements : public AddScreen
{
public:
    //! Takes over \a elements, which must not have a parent.
    AddScreenAndElements(DesignerObject *screen, Project *project, qsizetype index, UndoCommand *elements,
                         UndoCommand *parent = nullptr);

    QList<DesignerObject *> selectedItems() override;
    void cleanJunkFiles() override;

protected:
    bool redoOwn(QString &error) override;
    bool undoOwn() override;

private:
    std::unique_ptr<UndoCommand> m_elements;
};

} // namespace Halvane::Corvex::Designer
