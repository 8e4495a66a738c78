// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

class QImage;
class QPointF;

namespace Halvane::Corvex::Designer {

class Project;
class Screen;

/*! Adds a picture that is in memory, from the clipboard for example, as a PNG file "Image Resource.png" or
   the next such name; on a screen with an element that shows it.

    A picture that the project has already is not added again, as errorString() tells; on a screen the element
    shows the one that is there. */
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
