// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/objects/SortingCommand.h"

namespace Halvane::Corvex::Designer {

class Project;

//! Adds an image: copies its file into the project's images folder under the name of the resource, and shows
//! it in elements. The project must have a file.
class CORVEX_EXPORT AddImage : public SortingCommand
{
public:
    //! Sets the image as the "source" of the elements \a users.
    AddImage(DesignerObject *image, const QString &filePath, Project *project,
             const QList<DesignerObject *> &users = {}, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
