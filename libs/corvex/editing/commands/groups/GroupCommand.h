// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

#include <QRectF>

namespace Halvane::Corvex::Designer {

class GroupElement;

/*! Puts elements of one list into a new group, which takes the place of the topmost of them. What refers to
   them stays as it is. */
class CORVEX_EXPORT GroupCommand : public ModelCommand
{
public:
    //! \a elements is the list of a screen or of another group; \a group is in no model.
    GroupCommand(const SharedProperty &elements, GroupElement *group, const QList<DesignerObject *> &members,
                 UndoCommand *parent = nullptr);
    //! Groups in the list in which the members stand.
    GroupCommand(DesignerObject *group, const QList<DesignerObject *> &members,
                 UndoCommand *parent = nullptr);

    //! What an item covers that is turned by \a rotation degrees about one of the points "TopLeft", "Top",
    //! "TopRight", "Left", "Right", "BottomLeft", "Bottom" and "BottomRight"; about its centre for any other
    //! text.
    static QRectF actualBoundingRect(const QPointF &position, const QSizeF &size, double rotation,
                                     const QString &transformOrigin);

private:
    void setupCommand(const SharedProperty &list, GroupElement *group,
                      const QList<DesignerObject *> &members);
};

} // namespace Halvane::Corvex::Designer
