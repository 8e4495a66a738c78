// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QFlags>
#include <QLineF>
#include <QList>
#include <QRectF>

#include <vector>

namespace Halvane::Corvex::Designer {

//! What the canvas draws while something snaps or is measured, in scene coordinates.
struct CORVEX_EXPORT SnapMarks
{
    QList<QLineF> lines;     //!< through common edges and middles
    QList<QLineF> distances; //!< horizontal or vertical; each is drawn with its length as a figure

    bool isEmpty() const { return lines.isEmpty() && distances.isEmpty(); }
    friend bool operator==(const SnapMarks &, const SnapMarks &) = default;

    //! The free space between two areas, or between their edges on the same sides if they overlap.
    static SnapMarks between(const QRectF &from, const QRectF &to);
};

//! What a user has set up for snapping on one screen.
struct SnapGuides
{
    QList<double> vertical;   //!< the x of the user's own guides
    QList<double> horizontal; //!< their y
    double grid = 0;          //!< the distance of the lines of the grid; 0 for none

    friend bool operator==(const SnapGuides &, const SnapGuides &) = default;
};

/*! Where an area snaps while the mouse drags it: to edges and middles of other areas, to the user's own
    guides, to places where gaps between neighbours become equal, and to a grid.

    Built once at the start of a gesture, in O(n log n). A query takes O(log n) for each distinct place within
    the tolerance. All coordinates are those of the scene.
*/
class CORVEX_EXPORT SnapLines
{
public:
    struct Targets
    {
        QRectF screen;
        QList<QRectF> siblings;
        SnapGuides own;
    };
    //! \a moved is the size of an area that moves as a whole; gaps need it.
    explicit SnapLines(const Targets &targets, const QSizeF &moved = {});

    enum Edge { Low = 1, Middle = 2, High = 4, All = Low | Middle | High };
    Q_DECLARE_FLAGS(Edges, Edge)
    //! The edges that snap, in each direction: Low is the left or the upper one. Gaps count only for All.
    struct Moving
    {
        Edges across = All;
        Edges down = All;
    };
    //! The way that the area must move to snap. 0 in a direction in which nothing is within the tolerance.
    QPointF shiftFor(const QRectF &area, Moving moving, double tolerance) const;
    //! What the area is in line with, to within half a pixel.
    SnapMarks marksFor(const QRectF &area, Moving moving) const;

private:
    struct Span
    {
        double low = 0;
        double high = 0;

        double length() const { return high - low; }
        double middle() const { return (low + high) / 2; }
        bool overlaps(const Span &other) const { return low < other.high && other.low < high; }
        Span common(const Span &other) const;
    };
    //! An area, along the axis and across it.
    struct Box
    {
        Span along;
        Span across;
    };
    struct Line
    {
        double place;
        Span reach; //!< across the axis
    };
    //! A place for the low edge of the area that makes a gap equal to another.
    struct Gap
    {
        enum Kind { Before, Between, After };
        double place;
        Span reach; //!< the area must overlap it across the axis
        Kind kind;
        int first; //!< the neighbours, in the order of the axis
        int second;
        int farthest = 0; //!< the gap with the largest reach among those at this place up to this one
    };
    //! One direction.
    struct Axis
    {
        std::vector<Box> boxes;
        std::vector<Line> lines; //!< by place, each place once
        std::vector<Gap> gaps;   //!< by place, then by the low end of the reach
        double origin = 0;
        double grid = 0;

        void addLines(const Box &box);
        void finish(const Box &screen, const QList<double> &guides, double moved);
        void findGaps(double moved);
        const Line *lineNear(double place) const;
        const Gap *gapNear(double place, const Span &across, double tolerance) const;
        const Gap *gapAt(std::vector<Gap>::const_iterator first, std::vector<Gap>::const_iterator last,
                         const Span &across) const;
        double shiftFor(const Box &area, Edges edges, double tolerance) const;
        void mark(const Box &area, Edges edges, bool isAcross, SnapMarks &marks) const;
    };
    static Box boxOf(const QRectF &area, bool isAcross);
    static std::vector<int> nextNeighbours(const std::vector<Box> &boxes);
    static std::vector<double> placesOf(const Span &span, Edges edges);

    Axis m_across;
    Axis m_down;
};

} // namespace Halvane::Corvex::Designer
