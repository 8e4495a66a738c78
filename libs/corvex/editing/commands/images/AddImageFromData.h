// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

class QImage;
class QPointF;

namespace Halvane::Corvex::Designer {

class Project;
class Screen;

/*! Adds an image from memory, for example from the clipboard, as a PNG file "Image Resource.png" or the next
    free name. On a screen, also adds an element that shows it.

    An image that the project already has is not added again, as errorString() reports; on a screen the new
    element shows the existing image.
*/
class CORVEX_EXPORT AddImageFromData : public ModelCommand
{
public:
    AddImageFromData(const QImage &image, Project *project, UndoCommand *parent = nullptr);
    AddImageFromData(const QImage &image, Screen *screen, const QPointF &position,
                     UndoCommand *parent = nullptr);

    QString errorString() const override;

private:
    void setupCommand(const QImage &image, Project *project, Screen *screen, const QPointF &position);

    QString m_existingName;
};

} // namespace Halvane::Corvex::Designer
