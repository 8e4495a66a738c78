// SPDX-License-Identifier: MIT
#include "PanelScreen.h"
#include "PumpStationScreens.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

using namespace PanelStyle;

namespace {

// The area of the plot; each per cent is 3 pixels high.
constexpr int fieldLeft = 80;
constexpr int fieldWidth = 680;
constexpr int fieldBottom = 396;
constexpr int pixelsPerCent = 3;

void drawSamples(PanelScreen &screen)
{
    // The positions of the points in the design. On the device they follow the log, with the newest at the
    // right. If the log is too short for a point, it has the height of the oldest.
    constexpr int levels[] = {41, 56, 71, 62};
    constexpr int count = int(std::size(levels));
    constexpr int size = 16;
    for (int i = 0; i < count; ++i) {
        const int x = fieldLeft + (i + 1) * fieldWidth / (count + 1) - size / 2;
        const int y = fieldBottom - levels[i] * pixelsPerCent - size / 2;
        screen.rectangle("sample" + QByteArray::number(i + 1), {x, y, size, size}, plain(accent, size / 2))
            .bind("yBinding", QByteArray("388 - max(0, getValueAt(levelLog, min(#, "
                                         "max(0, getLogCount(levelLog) - 1)))) * 3")
                                  .replace("#", QByteArray::number(count - 1 - i)));
    }
}

} // namespace

void PumpStationScreens::drawTrends(PanelScreen &screen)
{
    screen.image("plot", {16, 72, 768, 392}, "trend.png");
    screen
        .rectangle("maximumLine", {fieldLeft, fieldBottom - 1 - 71 * pixelsPerCent, fieldWidth, 2},
                   plain(alarm))
        .bind("yBinding", "395 - getLogMax(levelLog) * 3");
    drawSamples(screen);
    screen.function("DataLogging", "levelLogging").link("variable", "levelLog");
    screen.logic("sampling", {{"wellLevel >= 0", "levelLog = wellLevel"}});
}

} // namespace Halvane::Corvex::Examples
