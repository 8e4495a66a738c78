// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Screen;

//! Adds elements, pasted or from a template, with the images and variables that they need. Images are copied
//! from their original locations. If the project already has a variable or an image with the same name and
//! contents, that one is used instead.
class CORVEX_EXPORT AddElementsWithResources : public ModelCommand
{
public:
    AddElementsWithResources(Screen *screen, const QList<DesignerObject *> &elements,
                             const QList<DesignerObject *> &images, const QList<DesignerObject *> &variables,
                             bool selected, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
