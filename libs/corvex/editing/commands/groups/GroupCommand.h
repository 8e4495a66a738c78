// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

#include <QRectF>

namespace Halvane::Corvex::Designer {

class GroupElement;

//! Moves elements of one list into a new group, which replaces the topmost of them. References to them are
//! unchanged.
class CORVEX_EXPORT GroupCommand : public ModelCommand
{
public:
    //! \a elements is the list of a screen or of another group; \a group must not be in a model.
    GroupCommand(const SharedProperty &elements, GroupElement *group, const QList<DesignerObject *> &members,
                 UndoCommand *parent = nullptr);
    //! Creates the group in the list that contains the members.
    GroupCommand(DesignerObject *group, const QList<DesignerObject *> &members,
                 UndoCommand *parent = nullptr);

    //! The bounding rectangle of an item rotated by \a rotation degrees about one of the points "TopLeft",
    //! "Top", "TopRight", "Left", "Right", "BottomLeft", "Bottom" and "BottomRight"; for any other text about
    //! its centre.
    static QRectF actualBoundingRect(const QPointF &position, const QSizeF &size, double rotation,
                                     const QString &transformOrigin);

private:
    void setupCommand(const SharedProperty &list, GroupElement *group,
                      const QList<DesignerObject *> &members);
};

} // namespace Halvane::Corvex::Designer
