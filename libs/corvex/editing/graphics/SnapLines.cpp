// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/SnapLines.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Halvane::Corvex::Designer {

namespace {

//! Places that differ less are the same.
constexpr double tiny = 1e-6;
//! Positions are whole pixels, but middles may be between two of them.
constexpr double halfPixel = 0.5 + tiny;

QLineF lineAt(bool isAcross, double place, double low, double high)
{
    return isAcross ? QLineF(place, low, place, high) : QLineF(low, place, high, place);
}

//! A line along the axis.
QLineF distance(bool isAcross, double from, double to, double across)
{
    return isAcross ? QLineF(from, across, to, across) : QLineF(across, from, across, to);
}

//! The newest of overlapping ranges, by a tree over the elementary intervals between all ends.
class NewestRange
{
public:
    explicit NewestRange(std::vector<double> ends)
        : m_ends(std::move(ends))
    {
        std::ranges::sort(m_ends);
        m_ends.erase(std::unique(m_ends.begin(), m_ends.end()), m_ends.end());
        m_covering.assign(2 * m_ends.size(), -1);
        m_below.assign(2 * m_ends.size(), -1);
    }

    //! Values must grow from call to call.
    void add(double low, double high, int value)
    {
        forNodes(low, high, [&](size_t node) { m_covering[node] = m_below[node] = value; });
        for (const size_t leaf : leaves(low, high)) {
            for (size_t node = leaf / 2; node > 0; node /= 2) {
                m_below[node] = std::max({m_below[2 * node], m_below[2 * node + 1], m_covering[node]});
            }
        }
    }

    //! The largest value of a range that overlaps; -1 if there is none.
    int newest(double low, double high) const
    {
        int found = -1;
        forNodes(low, high, [&](size_t node) { found = std::max(found, m_below[node]); });
        for (const size_t leaf : leaves(low, high)) {
            for (size_t node = leaf / 2; node > 0; node /= 2) {
                found = std::max(found, m_covering[node]);
            }
        }
        return found;
    }

private:
    size_t leafOf(double end) const
    {
        return m_ends.size() + size_t(std::ranges::lower_bound(m_ends, end) - m_ends.begin());
    }

    std::vector<size_t> leaves(double low, double high) const
    {
        const size_t first = leafOf(low);
        const size_t last = leafOf(high);
        return first < last ? std::vector<size_t>{first, last - 1} : std::vector<size_t>();
    }

    template<class Visitor>
    void forNodes(double low, double high, const Visitor &visit) const
    {
        size_t first = leafOf(low);
        size_t last = leafOf(high);
        for (; first < last; first /= 2, last /= 2) {
            if (first % 2 == 1) {
                visit(first++);
            }
            if (last % 2 == 1) {
                visit(--last);
            }
        }
    }

    std::vector<double> m_ends;
    std::vector<int> m_covering; //!< the newest range that covers all of a node
    std::vector<int> m_below;    //!< the newest range in a node
};

void markDistance(SnapMarks &marks, bool isAcross, double from, double to, double across)
{
    if (std::abs(to - from) > tiny) {
        marks.distances.append(distance(isAcross, from, to, across));
    }
}

} // namespace

SnapLines::Span SnapLines::Span::common(const Span &other) const
{
    return {std::max(low, other.low), std::min(high, other.high)};
}

SnapLines::Box SnapLines::boxOf(const QRectF &area, bool isAcross)
{
    const Span across{area.left(), area.right()};
    const Span down{area.top(), area.bottom()};
    return isAcross ? Box{across, down} : Box{down, across};
}

std::vector<double> SnapLines::placesOf(const Span &span, Edges edges)
{
    std::vector<double> places;
    if (edges.testFlag(Low)) {
        places.push_back(span.low);
    }
    if (edges.testFlag(Middle)) {
        places.push_back(span.middle());
    }
    if (edges.testFlag(High)) {
        places.push_back(span.high);
    }
    return places;
}

SnapLines::SnapLines(const Targets &targets, const QSizeF &moved)
{
    for (const bool isAcross : {true, false}) {
        Axis &axis = isAcross ? m_across : m_down;
        axis.boxes.reserve(size_t(targets.siblings.size()));
        for (const QRectF &area : targets.siblings) {
            axis.boxes.push_back(boxOf(area, isAcross));
        }
        axis.grid = targets.own.grid;
        axis.finish(boxOf(targets.screen, isAcross), isAcross ? targets.own.vertical : targets.own.horizontal,
                    isAcross ? moved.width() : moved.height());
    }
}

void SnapLines::Axis::addLines(const Box &box)
{
    for (const double place : placesOf(box.along, All)) {
        lines.push_back({place, box.across});
    }
}

void SnapLines::Axis::finish(const Box &screen, const QList<double> &guides, double moved)
{
    origin = screen.along.low;
    lines.reserve(3 * boxes.size() + 3 + size_t(guides.size()));
    for (const Box &box : boxes) {
        addLines(box);
    }
    addLines(screen);
    for (const double guide : guides) {
        lines.push_back({guide, screen.across});
    }
    std::ranges::sort(lines, {}, &Line::place);
    auto last = lines.begin();
    for (const Line &line : lines) {
        if (line.place - last->place > tiny) {
            *++last = line;
        } else {
            last->reach = {std::min(last->reach.low, line.reach.low),
                           std::max(last->reach.high, line.reach.high)};
        }
    }
    lines.erase(last + 1, lines.end());
    if (moved > 0) {
        findGaps(moved);
    }
}

//! For each box the index of the nearest one after it that overlaps it across the axis; -1 if there is none.
std::vector<int> SnapLines::nextNeighbours(const std::vector<Box> &boxes)
{
    std::vector<double> ends;
    for (const Box &box : boxes) {
        ends.push_back(box.across.low);
        ends.push_back(box.across.high);
    }
    NewestRange seen(std::move(ends));
    std::vector<int> byLow(boxes.size());
    std::iota(byLow.begin(), byLow.end(), 0);
    std::vector<int> byHigh = byLow;
    std::ranges::sort(byLow, std::greater(), [&](int box) { return boxes[size_t(box)].along.low; });
    std::ranges::sort(byHigh, std::greater(), [&](int box) { return boxes[size_t(box)].along.high; });
    std::vector<int> next(boxes.size(), -1);
    size_t added = 0;
    for (const int index : byHigh) {
        const Box &box = boxes[size_t(index)];
        // From the far end towards this box, so that the newest one is the nearest.
        for (; added < byLow.size(); ++added) {
            const Box &other = boxes[size_t(byLow[added])];
            if (other.along.low < box.along.high) {
                break;
            }
            seen.add(other.across.low, other.across.high, int(added));
        }
        const int newest = seen.newest(box.across.low, box.across.high);
        next[size_t(index)] = newest < 0 ? -1 : byLow[size_t(newest)];
    }
    return next;
}

void SnapLines::Axis::findGaps(double moved)
{
    const std::vector<int> next = nextNeighbours(boxes);
    for (size_t index = 0; index < boxes.size(); ++index) {
        if (next[index] < 0) {
            continue;
        }
        const int first = int(index);
        const int second = next[index];
        const Box &before = boxes[index];
        const Box &after = boxes[size_t(second)];
        const double gap = after.along.low - before.along.high;
        if (gap <= tiny) {
            continue;
        }
        gaps.push_back({before.along.low - gap - moved, before.across, Gap::Before, first, second});
        gaps.push_back({after.along.high + gap, after.across, Gap::After, first, second});
        if (gap > moved) {
            gaps.push_back({before.along.high + (gap - moved) / 2, before.across.common(after.across),
                            Gap::Between, first, second});
        }
    }
    std::ranges::sort(gaps, [](const Gap &a, const Gap &b) {
        return a.place != b.place ? a.place < b.place : a.reach.low < b.reach.low;
    });
    for (size_t index = 0; index < gaps.size(); ++index) {
        const bool isFirst = index == 0 || gaps[index - 1].place != gaps[index].place;
        const int farthest = isFirst ? int(index) : gaps[index - 1].farthest;
        const bool isFarther = gaps[index].reach.high > gaps[size_t(farthest)].reach.high;
        gaps[index].farthest = isFarther ? int(index) : farthest;
    }
}

const SnapLines::Line *SnapLines::Axis::lineNear(double place) const
{
    const auto after = std::ranges::lower_bound(lines, place, {}, &Line::place);
    if (after == lines.begin()) {
        return after == lines.end() ? nullptr : &*after;
    }
    const auto before = std::prev(after);
    return after == lines.end() || place - before->place <= after->place - place ? &*before : &*after;
}

//! One of the gaps of a place whose reach overlaps; null if there is none.
const SnapLines::Gap *SnapLines::Axis::gapAt(std::vector<Gap>::const_iterator first,
                                             std::vector<Gap>::const_iterator last, const Span &across) const
{
    const auto end =
        std::ranges::lower_bound(first, last, across.high, {}, [](const Gap &gap) { return gap.reach.low; });
    if (end == first) {
        return nullptr;
    }
    const Gap &farthest = gaps[size_t(std::prev(end)->farthest)];
    return farthest.reach.high > across.low ? &farthest : nullptr;
}

const SnapLines::Gap *SnapLines::Axis::gapNear(double place, const Span &across, double tolerance) const
{
    const auto start = std::ranges::lower_bound(gaps, place, {}, &Gap::place);
    const Gap *above = nullptr;
    for (auto first = start; !above && first != gaps.end() && first->place - place <= tolerance;) {
        const auto last = std::ranges::upper_bound(first, gaps.end(), first->place, {}, &Gap::place);
        above = gapAt(first, last, across);
        first = last;
    }
    const Gap *below = nullptr;
    for (auto last = start; !below && last != gaps.begin() && place - std::prev(last)->place <= tolerance;) {
        const auto first =
            std::ranges::lower_bound(gaps.begin(), last, std::prev(last)->place, {}, &Gap::place);
        below = gapAt(first, last, across);
        last = first;
    }
    if (!above || !below) {
        return above ? above : below;
    }
    return above->place - place < place - below->place ? above : below;
}

double SnapLines::Axis::shiftFor(const Box &area, Edges edges, double tolerance) const
{
    double shift = 0;
    double least = tolerance + tiny;
    const auto take = [&](double candidate) {
        if (std::abs(candidate) < least) {
            shift = candidate;
            least = std::abs(candidate);
        }
    };
    const std::vector<double> places = placesOf(area.along, edges);
    for (const double place : places) {
        if (const Line *line = lineNear(place)) {
            take(line->place - place);
        }
    }
    if (edges == All) {
        if (const Gap *gap = gapNear(area.along.low, area.across, tolerance)) {
            take(gap->place - area.along.low);
        }
    }
    // Everything else is more useful than the grid, whose lines are everywhere.
    if (least > tolerance && grid > 0 && !places.empty()) {
        const double place = places.front() - origin;
        take(std::round(place / grid) * grid - place);
    }
    return shift;
}

void SnapLines::Axis::mark(const Box &area, Edges edges, bool isAcross, SnapMarks &marks) const
{
    for (const double place : placesOf(area.along, edges)) {
        const Line *line = lineNear(place);
        if (line && std::abs(line->place - place) <= halfPixel) {
            marks.lines.append(lineAt(isAcross, line->place, std::min(line->reach.low, area.across.low),
                                      std::max(line->reach.high, area.across.high)));
        }
    }
    const Gap *gap = edges == All ? gapNear(area.along.low, area.across, halfPixel) : nullptr;
    if (!gap) {
        return;
    }
    const Box &first = boxes[size_t(gap->first)];
    const Box &second = boxes[size_t(gap->second)];
    const double betweenThem = first.across.common(second.across).middle();
    const double besideFirst = first.across.common(area.across).middle();
    const double besideSecond = second.across.common(area.across).middle();
    switch (gap->kind) {
    case Gap::Before:
        markDistance(marks, isAcross, area.along.high, first.along.low, besideFirst);
        markDistance(marks, isAcross, first.along.high, second.along.low, betweenThem);
        break;
    case Gap::Between:
        markDistance(marks, isAcross, first.along.high, area.along.low, besideFirst);
        markDistance(marks, isAcross, area.along.high, second.along.low, besideSecond);
        break;
    case Gap::After:
        markDistance(marks, isAcross, first.along.high, second.along.low, betweenThem);
        markDistance(marks, isAcross, second.along.high, area.along.low, besideSecond);
        break;
    }
}

QPointF SnapLines::shiftFor(const QRectF &area, Moving moving, double tolerance) const
{
    return {m_across.shiftFor(boxOf(area, true), moving.across, tolerance),
            m_down.shiftFor(boxOf(area, false), moving.down, tolerance)};
}

SnapMarks SnapLines::marksFor(const QRectF &area, Moving moving) const
{
    SnapMarks marks;
    m_across.mark(boxOf(area, true), moving.across, true, marks);
    m_down.mark(boxOf(area, false), moving.down, false, marks);
    return marks;
}

SnapMarks SnapMarks::between(const QRectF &from, const QRectF &to)
{
    SnapMarks marks;
    const bool overlaps = from.intersects(to);
    for (const bool isAcross : {true, false}) {
        const auto low = [isAcross](const QRectF &area) { return isAcross ? area.left() : area.top(); };
        const auto high = [isAcross](const QRectF &area) { return isAcross ? area.right() : area.bottom(); };
        const auto crossLow = [isAcross](const QRectF &area) { return isAcross ? area.top() : area.left(); };
        const auto crossHigh = [isAcross](const QRectF &area) {
            return isAcross ? area.bottom() : area.right();
        };
        const double commonLow = std::max(crossLow(from), crossLow(to));
        const double commonHigh = std::min(crossHigh(from), crossHigh(to));
        const bool areBeside = commonLow < commonHigh;
        const double across =
            areBeside ? (commonLow + commonHigh) / 2 : (crossLow(from) + crossHigh(from)) / 2;
        // Without a common part, a line leads from the other area to the figure.
        const auto measure = [&](double start, double end) {
            markDistance(marks, isAcross, start, end, across);
            if (!areBeside) {
                const double near = across < crossLow(to) ? crossLow(to) : crossHigh(to);
                marks.lines.append(lineAt(isAcross, end, std::min(across, near), std::max(across, near)));
            }
        };
        if (high(to) <= low(from)) {
            measure(low(from), high(to));
        } else if (high(from) <= low(to)) {
            measure(high(from), low(to));
        } else if (overlaps) {
            measure(low(from), low(to));
            measure(high(from), high(to));
        }
    }
    return marks;
}

} // namespace Halvane::Corvex::Designer
