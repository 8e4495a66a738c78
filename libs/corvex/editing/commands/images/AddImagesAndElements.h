// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

#include <QMap>

namespace Halvane::Corvex::Designer {

class ImageResource;
class Screen;

//! Adds images and the elements that show them.
class CORVEX_EXPORT AddImagesAndElements : public ModelCommand
{
public:
    //! \a images maps each image to its file.
    AddImagesAndElements(const QMap<ImageResource *, QString> &images,
                         const QList<DesignerObject *> &elements, Screen *screen,
                         UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
