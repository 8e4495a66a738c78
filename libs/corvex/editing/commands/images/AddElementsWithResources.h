// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Screen;

/*! Adds elements, pasted or from a template, with the pictures and the variables that they need. Pictures are
    copied from their original locations. A variable or a picture that the project has already, under the same
    name and with the same contents, is used instead. */
class CORVEX_EXPORT AddElementsWithResources : public ModelCommand
{
public:
    AddElementsWithResources(Screen *screen, const QList<DesignerObject *> &elements,
                             const QList<DesignerObject *> &images, const QList<DesignerObject *> &variables,
                             bool selected, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
