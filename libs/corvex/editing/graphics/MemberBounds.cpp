// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/MemberBounds.h"

#include <cmath>

namespace Halvane::Corvex::Designer {

void MemberBounds::set(const GraphicsItem *member, const QRectF &frame, const QPointF &farCorner)
{
    const auto known = m_members.constFind(member);
    if (known != m_members.cend() && known->frame == frame && known->farCorner == farCorner) {
        return;
    }
    remove(member);
    if (!std::isfinite(frame.left() + frame.top() + frame.right() + frame.bottom() + farCorner.x()
                       + farCorner.y())) {
        return;
    }
    m_members.insert(member, {frame, farCorner});
    if (!frame.isNull()) {
        m_left.insert(frame.left());
        m_top.insert(frame.top());
        m_right.insert(frame.right());
        m_bottom.insert(frame.bottom());
    }
    m_across.insert(farCorner.x());
    m_down.insert(farCorner.y());
}

void MemberBounds::remove(const GraphicsItem *member)
{
    if (!m_members.contains(member)) {
        return;
    }
    const auto [frame, farCorner] = m_members.take(member);
    const auto removeOne = [](Numbers &numbers, double number) { numbers.erase(numbers.find(number)); };
    if (!frame.isNull()) {
        removeOne(m_left, frame.left());
        removeOne(m_top, frame.top());
        removeOne(m_right, frame.right());
        removeOne(m_bottom, frame.bottom());
    }
    removeOne(m_across, farCorner.x());
    removeOne(m_down, farCorner.y());
}

QRectF MemberBounds::frame() const
{
    return m_left.empty() ? QRectF()
                          : QRectF(QPointF(*m_left.begin(), *m_top.begin()),
                                   QPointF(*m_right.rbegin(), *m_bottom.rbegin()));
}

QSizeF MemberBounds::reach() const
{
    return m_across.empty() ? QSizeF(0, 0)
                            : QSizeF(*m_across.rbegin(), *m_down.rbegin()).expandedTo(QSizeF(0, 0));
}

} // namespace Halvane::Corvex::Designer
