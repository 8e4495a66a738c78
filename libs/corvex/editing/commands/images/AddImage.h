// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/objects/SortingCommand.h"

namespace Halvane::Corvex::Designer {

class Project;

/*! Adds a picture: its file is copied into the project's folder of images under the name of the resource, and
    elements show it. The project must have a file. */
class CORVEX_EXPORT AddImage : public SortingCommand
{
public:
    //! The elements \a users get the picture as their "source".
    AddImage(DesignerObject *image, const QString &filePath, Project *project,
             const QList<DesignerObject *> &users = {}, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
