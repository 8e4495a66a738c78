// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QHash>
#include <QPointF>
#include <QRectF>

#include <set>

namespace Halvane::Corvex::Designer {

class GraphicsItem;

/*! What the members of a group cover together. A change of one member costs the logarithm of their number, so
    that a change of all of them costs no more than a look at each. */
class CORVEX_EXPORT MemberBounds
{
public:
    //! Enters the member, or takes over where it is now. Members without width and height cover nothing,
    //! and those whose place is beyond all numbers do not count.
    void set(const GraphicsItem *member, const QRectF &frame, const QPointF &farCorner);
    void remove(const GraphicsItem *member);

    //! The rectangle around all frames.
    QRectF frame() const;
    //! From the zero point to the far corners.
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
