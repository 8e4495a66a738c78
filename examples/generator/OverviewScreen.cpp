// SPDX-License-Identifier: MIT
#include "PanelScreen.h"
#include "PumpStationScreens.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

using namespace PanelStyle;

namespace {

//! The well as a bar of segments. Each segment means that the water has reached the next mark.
void drawWell(PanelScreen &screen)
{
    constexpr struct
    {
        const char *name;
        const char *condition;
        QRgb color;
    } segments[] = {
        {"segment1", "wellLevel > 0", water},
        {"segment2", "wellLevel >= stopLevel", water},
        {"segment3", "wellLevel >= startLevel", warning},
        {"segment4", "wellLevel >= alarmLevel", alarm},
    };
    constexpr int count = int(std::size(segments));
    constexpr int pitch = 64;
    constexpr int height = 60;

    screen.openGroup("well", {80, 96});
    screen.rectangle("wellWall", {0, 0, 128, count * pitch + 12}, tankFace);
    screen.openGroup("levelBar", {8, 8});
    for (int i = 0; i < count; ++i) {
        screen
            .rectangle(segments[i].name, {0, (count - 1 - i) * pitch, 112, height},
                       plain(segments[i].color, 2))
            .bind("visibleBinding", segments[i].condition);
    }
    screen.closeGroup();
    screen.closeGroup();
    screen.text("levelText", {32, 392, 224, 48}, "Well 62.5 %", large)
        .bind("textBinding", "wellLevel")
        .set("decimals", u"1"_s)
        .set("prefix", u"Well "_s)
        .set("suffix", u" %"_s);
}

//! The text for a pump, with its number for "#".
QByteArray numbered(const char *text, int number)
{
    return QByteArray(text).replace("#", QByteArray::number(number));
}

//! Touching the picture switches the pump manually.
void drawPump(PanelScreen &screen, int number, int top, bool isRunning)
{
    const auto of = [number](const char *text) { return numbered(text, number); };
    const QByteArray picture = of("pump#Picture");
    screen.image(picture, {288, top, 96, 96}, "pump.png");
    screen
        .text(of("pump#State"), {400, top + 32, 136, 32}, isRunning ? of("Pump # on") : of("Pump # off"),
              label)
        .bind("textBinding", of("pump#Running ? 'Pump # on' : 'Pump # off'"))
        .bind("colorBinding", of("pump#Color"));
    screen.function("CheckButton", of("pump#Switch"))
        .link("visualElement", picture)
        .set("checkedState", PanelScreen::state({{picture, "opacity", u"100"_s}}))
        .set("uncheckedState", PanelScreen::state({{picture, "opacity", u"60"_s}}))
        .link("variable", of("pump#Running"));
}

void drawDischarge(PanelScreen &screen)
{
    screen.image("gauge", {568, 96, 176, 176}, "gauge.png");
    // The needle rotates about its lower end, 240 degrees for 10 bar.
    screen.rectangle("needle", {654, 116, 4, 68}, plain(alarm, 2))
        .set("transformOrigin", u"Bottom"_s)
        .bind("rotationBinding", "max(-120, min(120, pressure * 24 - 120))");
    screen.text("pressureText", {568, 288, 176, 40}, "4.25 bar", large)
        .bind("textBinding", "pressure")
        .set("decimals", u"2"_s)
        .set("suffix", u" bar"_s);
    screen.text("flowText", {552, 344, 208, 32}, "Flow 132.5 m\u00b3/h", centered)
        .bind("textBinding", "flow")
        .set("decimals", u"1"_s)
        .set("prefix", u"Flow "_s)
        .set("suffix", u" m\u00b3/h"_s);
}

//! The channels of the device. Inputs only count while they deliver a signal: 0 is a broken wire.
void addChannels(PanelScreen &screen)
{
    screen.channel("AnalogInput", "levelInput", 1);
    screen.channel("ThermistorInput", "motorInput", 1);
    screen.channel("DigitalInputOutput", "pump1Output", 5).bind("initValue", "pump1Running");
    screen.channel("PwmOutput", "speedOutput", 1)
        .bind("initValue", "pump1Running ? min(100, round(sqrt(pumpSpeed / 2900) * 100)) : 0");
    screen.logic("overviewRules", {
                                      {"levelInput.value > 0", "wellLevel = levelInput.value"},
                                      {"motorInput.value > 0", "motorTemperature = motorInput.value"},
                                      {"pump1Running", "pump1Color = #FF2E8B57"},
                                      {"pump1Running == false", "pump1Color = #FF8A97A3"},
                                      {"pump1Fault", "pump1Color = #FFC62828"},
                                      {"pump2Running", "pump2Color = #FF2E8B57"},
                                      {"pump2Running == false", "pump2Color = #FF8A97A3"},
                                      {"pump2Fault", "pump2Color = #FFC62828"},
                                  });
}

} // namespace

void PumpStationScreens::drawOverview(PanelScreen &screen)
{
    drawWell(screen);
    drawPump(screen, 1, 104, true);
    drawPump(screen, 2, 256, false);
    drawDischarge(screen);
    addChannels(screen);
    screen.filter("pumps", {"pump1Picture", "pump1State", "pump2Picture", "pump2State"});
}

} // namespace Halvane::Corvex::Examples
