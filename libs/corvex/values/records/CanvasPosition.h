// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QPointF>

namespace Halvane::Corvex::Designer {

//! The positions of the pointer and of the canvas centre, in scene coordinates.
class CORVEX_EXPORT CanvasPosition
{
public:
    CanvasPosition() = default;
    CanvasPosition(const QPointF &current, const QPointF &center, bool valid)
        : m_current(current)
        , m_center(center)
        , m_valid(valid)
    { }

    const QPointF &current() const { return m_current; }
    void setCurrent(const QPointF &current) { m_current = current; }
    const QPointF &center() const { return m_center; }
    void setCenter(const QPointF &center) { m_center = center; }
    bool valid() const { return m_valid; }
    void setValid(bool valid) { m_valid = valid; }

    friend bool operator==(const CanvasPosition &, const CanvasPosition &) = default;

private:
    QPointF m_current;
    QPointF m_center;
    bool m_valid = false;
};

} // namespace Halvane::Corvex::Designer
