// SPDX-License-Identifier: MIT
#include "PanelScreen.h"
#include "PumpStationScreens.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

using namespace PanelStyle;

namespace {

//! The well as a bar of segments that light up as the water rises, with marks for the set points beside it.
void drawWell(PanelScreen &screen)
{
    constexpr struct
    {
        const char *name;
        const char *condition;
        QRgb color;
    } segments[] = {
        {"segment1", "wellLevel >= 8", water},    {"segment2", "wellLevel >= 25", water},
        {"segment3", "wellLevel >= 42", water},   {"segment4", "wellLevel >= 58", water},
        {"segment5", "wellLevel >= 75", warning}, {"segment6", "wellLevel >= 92", alarm},
    };
    constexpr int pitch = 36;

    screen.card("wellCard", {16, 64, 240, 352}, "Wet well");
    screen.openGroup("well", {56, 108});
    screen.rectangle("wellWall", {0, 0, 96, 228}, tankFace);
    screen.openGroup("levelBar", {8, 8});
    for (int i = 0; i < int(std::size(segments)); ++i) {
        screen
            .rectangle(segments[i].name, {0, (int(std::size(segments)) - 1 - i) * pitch, 80, 32},
                       plain(segments[i].color, 2))
            .bind("visibleBinding", segments[i].condition);
    }
    screen.closeGroup();
    screen.closeGroup();
    // 212 pixels from 0 to 100 per cent, the bottom at 328.
    screen.rectangle("levelMark", {156, 194, 32, 4}, plain(ink)).bind("yBinding", "326 - wellLevel * 2.12");
    screen.rectangle("startMark", {156, 178, 20, 2}, plain(warning))
        .bind("yBinding", "327 - startLevel * 2.12");
    screen.text("startText", {180, 168, 60, 20}, "Start", small).bind("yBinding", "318 - startLevel * 2.12");
    screen.rectangle("stopMark", {156, 263, 20, 2}, plain(running))
        .bind("yBinding", "327 - stopLevel * 2.12");
    screen.text("stopText", {180, 254, 60, 20}, "Stop", small).bind("yBinding", "318 - stopLevel * 2.12");
    screen.text("levelText", {32, 340, 208, 40}, "62.5 %", large)
        .bind("textBinding", "concat(wellLevel, ' %')");
    screen.text("inflowText", {32, 384, 96, 24}, "Inflow", label);
    screen.text("inflowValue", {128, 384, 112, 24}, "118 m\u00b3/h", value)
        .bind("textBinding", "concat(inflow, ' m\u00b3/h')");
}

//! What is said of each pump with its number put in for "#".
QByteArray numbered(const char *text, int number)
{
    return QByteArray(text).replace("#", QByteArray::number(number));
}

void drawPump(PanelScreen &screen, int number, int top)
{
    const auto of = [number](const char *text) { return numbered(text, number); };
    screen.image(of("pump#Picture"), {288, top, 64, 64}, "pump.png");
    screen.text(of("pump#Name"), {368, top, 104, 28}, of("Pump #"), valueLeft);
    screen.text(of("pump#State"), {368, top + 32, 144, 28}, number == 1 ? "RUNNING" : "STOPPED", valueLeft)
        .bind("textBinding", of("pump#Running ? 'RUNNING' : 'STOPPED'"))
        .bind("colorBinding", of("pump#Lamp.color"));
    screen.rectangle(of("pump#Lamp"), {488, top + 2, 24, 24}, lampFace)
        .bind("colorBinding", of("pump#Color"));
    screen
        .text(of("pump#Time"), {288, top + 68, 224, 24}, number == 1 ? "Run time 3120 h" : "Run time 2874 h",
              label)
        .bind("textBinding", of("concat('Run time ', pump#Hours, ' h')"));
    screen.pictureButton(of("startPump#"), {288, top + 96, 104, 40}, "start.png",
                         of("pump#Running = true; lastEvent = 'Pump # started by hand'"));
    screen.pictureButton(of("stopPump#"), {408, top + 96, 104, 40}, "stop.png",
                         of("pump#Running = false; lastEvent = 'Pump # stopped by hand'"));
}

void drawDischarge(PanelScreen &screen)
{
    screen.card("dischargeCard", {544, 64, 240, 352}, "Discharge");
    screen.image("gauge", {576, 100, 176, 176}, "gauge.png");
    // The needle turns about its lower end, 240 degrees for 10 bar.
    screen.rectangle("needle", {662, 120, 4, 68}, plain(alarm, 2))
        .set("transformOrigin", u"Bottom"_s)
        .bind("rotationBinding", "max(-120, min(120, pressure * 24 - 120))");
    screen.rectangle("hub", {656, 180, 16, 16}, plain(ink, 8));
    screen.text("pressureText", {608, 236, 112, 28}, "4.25 bar", centered)
        .bind("textBinding", "concat(subString(pressure, 0, 4), ' bar')");
    screen.text("flowText", {560, 296, 80, 24}, "Flow", label);
    screen.text("flowValue", {640, 296, 128, 24}, "132.5 m\u00b3/h", value)
        .bind("textBinding", "concat(subString(flow, 0, 5), ' m\u00b3/h')");
    screen.text("valveText", {560, 324, 80, 24}, "Valve", label);
    screen.text("valveValue", {640, 324, 128, 24}, "fully open", value)
        .bind("textBinding", "replace(toLowerCase(valveState), '_', ' ')");
    screen.text("motorText", {560, 352, 80, 24}, "Motor", label);
    screen.text("motorValue", {640, 352, 128, 24}, "54.5 \u00b0C", value)
        .bind("textBinding", "concat(subString(motorTemperature, 0, 4), ' \u00b0C')");
    screen.text("operatorText", {560, 380, 80, 24}, "Operator", label);
    screen.text("operatorValue", {640, 380, 128, 24}, "J. BERG", value)
        .bind("textBinding", "toUpperCase(trim(operatorName))");
}

void addPumpColors(PanelScreen &screen)
{
    screen.logic("pumpColors", {
                                   {"pump1Running == false", "pump1Color = #FF8A97A3"},
                                   {"pump1Running", "pump1Color = #FF2E8B57"},
                                   {"pump1Fault", "pump1Color = #FFC62828"},
                                   {"pump2Running == false", "pump2Color = #FF8A97A3"},
                                   {"pump2Running", "pump2Color = #FF2E8B57"},
                                   {"pump2Fault", "pump2Color = #FFC62828"},
                               });
}

//! The channels of the device. Inputs speak only while they deliver something: 0 is a broken wire.
void addChannels(PanelScreen &screen)
{
    screen.channel("AnalogInput", "levelInput", 1);
    screen.channel("AnalogInput", "pressureInput", 2);
    screen.channel("ThermistorInput", "motorInput", 1);
    screen.channel("DigitalInputOutput", "pump1FaultInput", 1);
    screen.channel("DigitalInputOutput", "pump2FaultInput", 2);
    screen.channel("DigitalInputOutput", "pump1Output", 5).bind("initValue", "pump1Running");
    screen.channel("DigitalInputOutput", "pump2Output", 6).bind("initValue", "pump2Running");
    screen.channel("PwmOutput", "speedOutput", 1)
        .bind("initValue", "pump1Running ? min(100, round(sqrt(pumpSpeed / 2900) * 100)) : 0");
    screen.logic("readInputs", {
                                   {"levelInput.value > 0", "wellLevel = levelInput.value"},
                                   {"pressureInput.value > 0", "pressure = pressureInput.value"},
                                   {"motorInput.value > 0", "motorTemperature = motorInput.value"},
                                   {"pump1FaultInput.value", "pump1Fault = true"},
                                   {"pump2FaultInput.value", "pump2Fault = true"},
                               });
}

} // namespace

void PumpStationScreens::drawOverview(PanelScreen &screen)
{
    drawWell(screen);
    screen.card("pumpCard", {272, 64, 256, 352}, "Pumps");
    drawPump(screen, 1, 108);
    screen.rectangle("pumpDivider", {288, 256, 224, 1}, plain(cardBorder));
    drawPump(screen, 2, 268);
    drawDischarge(screen);
    addPumpColors(screen);
    addChannels(screen);
    screen.filter("pumpElements", {"pump1Picture", "pump1Name", "pump1State", "pump1Lamp", "pump2Picture",
                                   "pump2Name", "pump2State", "pump2Lamp"});
    screen.filter("instruments", {"well", "gauge", "needle", "hub"});
}

} // namespace Halvane::Corvex::Examples
