// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/SnapLines.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace Halvane::Corvex::Designer {

namespace {

constexpr QRectF screen(0, 0, 800, 480);
constexpr double tolerance = 6;

} // namespace

TEST(SnapLinesTest, SnapsToTheNearestLine)
{
    SnapGuides own{{333}, {222}, 0};
    const SnapLines lines({screen, {{100, 100, 50, 40}, {300, 100, 60, 40}}, own}, {20, 20});
    constexpr struct
    {
        QRectF area;
        QPointF shift;
    } cases[] = {
        {{153, 200, 20, 20}, {-3, 2}},  // right edge of a sibling; the guide below
        {{77, 96, 20, 20}, {3, 4}},     // right to its left; tops
        {{320, 300, 20, 20}, {0, 0}},   // middles already in line
        {{394, 233, 20, 20}, {-4, -3}}, // the middle of the screen
        {{775, -4, 20, 20}, {5, 4}},    // edges of the screen
        {{326, 350, 20, 20}, {-3, 0}},  // its middle to the nearer guide, not to the sibling's
        {{500, 350, 20, 20}, {0, 0}},
    };
    for (const auto &[area, shift] : cases) {
        EXPECT_EQ(lines.shiftFor(area, {}, tolerance), shift) << area.x() << ' ' << area.y();
    }
    EXPECT_EQ(lines.shiftFor({153, 200, 20, 20}, {SnapLines::High, {}}, tolerance), QPointF());

    // A line reaches over everything that is on it.
    const SnapMarks marks = lines.marksFor({150, 100, 20, 20}, {SnapLines::Low, SnapLines::Low});
    EXPECT_EQ(marks.lines, (QList<QLineF>{{150, 100, 150, 140}, {100, 100, 360, 100}}));

    const SnapLines grid({screen, {{103, 103, 50, 50}}, {{}, {}, 10}}, {20, 20});
    EXPECT_EQ(grid.shiftFor({308, 102, 20, 20}, {}, tolerance), QPointF(2, 1)) << "a sibling wins";
}

TEST(SnapLinesTest, GapsBecomeEqual)
{
    const QRectF first(100, 100, 50, 40);
    const QRectF second(180, 110, 50, 40);
    const SnapLines lines({{-1000, -1000, 5000, 5000}, {first, second, {600, 90, 50, 40}}, {}}, {40, 33});
    const auto shiftOf = [&lines](double x, double y) {
        return lines.shiftFor({x, y, 40, 33}, {SnapLines::All, {}}, tolerance).x();
    };
    EXPECT_EQ(shiftOf(263, 104), -3) << "after both";
    EXPECT_EQ(shiftOf(28, 104), 2) << "before both";
    EXPECT_EQ(shiftOf(394, 104), 1) << "between";
    EXPECT_EQ(shiftOf(263, 300), 0) << "not beside them";
    const SnapMarks marks = lines.marksFor({260, 120, 40, 33}, {SnapLines::All, {}});
    EXPECT_EQ(marks.distances, (QList<QLineF>{{150, 125, 180, 125}, {230, 135, 260, 135}}));
}

// The fast search finds what a plain one finds.
TEST(SnapLinesTest, NeighboursAreTheNearest)
{
    QRandomGenerator random(7);
    for (int round = 0; round < 50; ++round) {
        QList<QRectF> areas;
        for (int i = 0; i < 30; ++i) {
            areas.append(QRectF(random.bounded(2000), random.bounded(300), 1 + random.bounded(60),
                                1 + random.bounded(60)));
        }
        const SnapLines lines({{-9000, -9000, 1, 1}, areas, {}}, {1, 1});
        for (const QRectF &area : std::as_const(areas)) {
            const QRectF *next = nullptr;
            for (const QRectF &other : std::as_const(areas)) {
                if (other.left() >= area.right() && other.top() < area.bottom() && area.top() < other.bottom()
                    && (!next || other.left() < next->left())) {
                    next = &other;
                }
            }
            const double gap = next ? next->left() - area.right() : 0;
            if (gap > 0) {
                const QRectF before(area.left() - gap - 1, area.top(), 1, area.height());
                const SnapMarks marks = lines.marksFor(before, {SnapLines::All, {}});
                ASSERT_EQ(marks.distances.size(), 2) << round;
            }
        }
    }
}

TEST(SnapLinesTest, MeasuresDistances)
{
    const QRectF area(100, 100, 50, 40);
    const auto distances = [&area](const QRectF &to) { return SnapMarks::between(area, to).distances; };
    EXPECT_EQ(distances({200, 120, 10, 50}), (QList<QLineF>{{150, 130, 200, 130}}));
    EXPECT_EQ(distances({0, 0, 60, 60}), (QList<QLineF>{{100, 120, 60, 120}, {125, 100, 125, 60}}));
    EXPECT_EQ(distances({90, 80, 100, 100}).size(), 4) << "around it";
    EXPECT_TRUE(distances(area).isEmpty());
}

} // namespace Halvane::Corvex::Designer
