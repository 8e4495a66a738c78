// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/Commands.h"

#include <QRectF>

namespace Halvane::Corvex::Designer {

/*! Arranges the visual elements of a selection. Each function plans one step of the history, and neither a
    command nor a reason if everything is arranged already.

    Elements count as they appear on the screen: rotated, scaled, and groups with all their members. Objects
    inside others of the selection, and objects that are not visual elements, are ignored.
*/
class CORVEX_EXPORT Arrangement
{
public:
    //! The edges and middles that can be aligned.
    enum class Line { Left, Center, Right, Top, Middle, Bottom };
    //! Moves the elements to an edge or the middle of their common bounds; a single one to that of the
    //! screen.
    static PlannedCommand alignment(const QList<DesignerObject *> &objects, Line line);
    //! Moves the elements between the two outermost ones so that all gaps are equal.
    static PlannedCommand distribution(const QList<DesignerObject *> &objects, Qt::Orientation direction);
    //! Gives all elements the width or the height of the first one, or both. Elements without a size of their
    //! own, such as groups, keep theirs.
    static PlannedCommand sameSize(const QList<DesignerObject *> &objects, Qt::Orientations sides);

    //! Raise and Lower move by one place.
    enum class Level { Raise, Lower, Front, Back };
    //! Changes the places of the elements in the drawing order of their screen or group. Their own order
    //! stays.
    static PlannedCommand restacking(const QList<DesignerObject *> &objects, Level level);
    //! Reverses the drawing order of the elements among each other.
    static PlannedCommand flippedOrder(const QList<DesignerObject *> &objects);

    static PlannedCommand grouping(const QList<DesignerObject *> &objects);
    static PlannedCommand ungrouping(const QList<DesignerObject *> &objects);

    //! The edits that can do something with a selection.
    enum class Ability {
        Align = 1,
        Distribute = 2,
        Resize = 4,
        Group = 8,
        Ungroup = 16,
        Raise = 32, //!< and to the front
        Lower = 64, //!< and to the back
        Flip = 128,
    };
    Q_DECLARE_FLAGS(Abilities, Ability)
    static Abilities abilities(const QList<DesignerObject *> &objects);

    //! The common bounds of the visual elements, in the coordinates of their screen.
    static QRectF bounds(const QList<DesignerObject *> &objects);
};
Q_DECLARE_OPERATORS_FOR_FLAGS(Arrangement::Abilities)

} // namespace Halvane::Corvex::Designer
