// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QHash>
#include <QPointF>
#include <QRectF>

#include <set>

namespace Halvane::Corvex::Designer {

class GraphicsItem;

//! The common bounds of the members of a group. Updating one member takes time logarithmic in their number,
//! so moving all members costs little more than visiting each.
class CORVEX_EXPORT MemberBounds
{
public:
    //! Adds or updates a member. Members without width and height cover nothing; members at infinite or
    //! invalid positions are ignored.
    void set(const GraphicsItem *member, const QRectF &frame, const QPointF &farCorner);
    void remove(const GraphicsItem *member);

    //! The bounding rectangle of all frames.
    QRectF frame() const;
    //! The distance from the origin to the farthest corners.
    QSizeF reach() const;

private:
    struct Edges
    {
        QRectF frame;
        QPointF farCorner;
    };
    using Numbers = std::multiset<double>;

    QHash<const GraphicsItem *, Edges> m_members;
    Numbers m_left;
    Numbers m_top;
    Numbers m_right;
    Numbers m_bottom;
    Numbers m_across;
    Numbers m_down;
};

} // namespace Halvane::Corvex::Designer
