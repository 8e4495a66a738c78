// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/images/DeleteImage.h"

#include "corvex/editing/commands/private/FileStep.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

DeleteImage::DeleteImage(DesignerObject *image, UndoCommand *parent)
    : DeleteObject(image, ImageResource::kindName(), u"Delete Image Resource \"%1\""_s, parent)
{
    if (property()) {
        addStep<LeaveFileStep>(image->project(), image->getIdName());
        setActiveItem(image);
    }
}

} // namespace Halvane::Corvex::Designer
