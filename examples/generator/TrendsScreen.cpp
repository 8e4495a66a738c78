// SPDX-License-Identifier: MIT
#include "PanelScreen.h"
#include "PumpStationScreens.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

using namespace PanelStyle;

namespace {

// The plot: 2.4 pixels for each per cent, 100 per cent at the top.
constexpr int plotLeft = 80;
constexpr int plotWidth = 488;
constexpr int plotBottom = 360;

void drawSamples(PanelScreen &screen)
{
    // Where the points stand on the drawing board; on the device they follow the log, the newest at the
    // right.
    constexpr int levels[] = {34, 41, 49, 56, 62, 68, 71, 66, 58, 51};
    constexpr int count = int(std::size(levels));
    constexpr int size = 12;
    for (int i = 0; i < count; ++i) {
        const int x = plotLeft + (i + 1) * plotWidth / (count + 1) - size / 2;
        const int y = plotBottom - levels[i] * 12 / 5 - size / 2;
        screen
            .rectangle(QByteArray("sample").append(QByteArray::number(i + 1)), {x, y, size, size},
                       plain(accent, size / 2))
            .bind("yBinding", QByteArray("354 - max(0, getValueAt(levelLog, #)) * 2.4")
                                  .replace("#", QByteArray::number(count - 1 - i)));
    }
}

void drawStatistics(PanelScreen &screen)
{
    constexpr struct
    {
        const char *name;
        const char *title;
        QRgb color;
        int level; //!< on the drawing board
        const char *place;
    } lines[] = {
        {"maximum", "Maximum", alarm, 71, "359 - getLogMax(levelLog) * 2.4"},
        {"average", "Average", running, 56, "359 - getLogAvg(levelLog) * 2.4"},
        {"minimum", "Minimum", warning, 34, "359 - getLogMin(levelLog) * 2.4"},
    };
    screen.card("statisticsCard", {608, 64, 176, 352}, "Statistics");
    for (int i = 0; i < int(std::size(lines)); ++i) {
        const QByteArray name(lines[i].name);
        const int y = 112 + i * 40;
        screen
            .rectangle(name + "Line", {plotLeft, plotBottom - 1 - lines[i].level * 12 / 5, plotWidth, 2},
                       plain(lines[i].color))
            .bind("yBinding", lines[i].place);
        screen.rectangle(name + "Swatch", {624, y + 11, 24, 2}, plain(lines[i].color));
        screen.text(name + "Text", {660, y, 108, 24}, lines[i].title, label);
    }
    screen.text("memoryText", {624, 248, 144, 24}, "Log memory", label);
    screen.rectangle("memoryTrack", {624, 284, 144, 4}, plain(cardBorder, 2));
    screen.rectangle("memoryMark", {624, 276, 8, 20}, plain(accent, 2))
        .bind("xBinding", "624 + min(136, floor(getLogCount(levelLog) * 0.136))");
    screen.text("nowText", {624, 328, 144, 24}, "Level now", label);
    screen.text("nowValue", {624, 356, 144, 40}, "62.5 %", large)
        .bind("textBinding", "concat(wellLevel, ' %')");
}

} // namespace

void PumpStationScreens::drawTrends(PanelScreen &screen)
{
    screen.card("plotCard", {16, 64, 576, 352}, "Wet well level, last ten samples");
    screen.image("plot", {32, 104, 544, 296}, "trend.png");
    drawStatistics(screen);
    drawSamples(screen);
    screen.function("DataLogging", "levelLogging").link("variable", "levelLog");
    screen.logic("sampling", {{"wellLevel >= 0", "levelLog = wellLevel"}});
}

} // namespace Halvane::Corvex::Examples
