// SPDX-License-Identifier: MIT
#include "PumpStation.h"

#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include "PanelScreen.h"
#include "PumpStationScreens.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

namespace {

using Info = GeneralDataInfo;

constexpr struct
{
    const char *className;
    const char *name;
    const char *value;
    bool isPersistent = false;
} variables[] = {
    // The process. Levels are per cent of the well, flows m3/h, pressures bar, temperatures degrees Celsius.
    {"NumberVariable", "wellLevel", "62.5"},
    {"NumberVariable", "inflow", "118.0"},
    {"NumberVariable", "flow", "132.5"},
    {"NumberVariable", "pressure", "4.25"},
    {"NumberVariable", "motorTemperature", "54.5"},
    // Set points.
    {"NumberVariable", "startLevel", "70", true},
    {"NumberVariable", "stopLevel", "30", true},
    {"NumberVariable", "alarmLevel", "90", true},
    {"NumberVariable", "pumpSpeed", "1450", true},
    // The pumps.
    {"NumberVariable", "pump1Hours", "3120", true},
    {"NumberVariable", "pump2Hours", "2874", true},
    {"BooleanVariable", "pump1Running", "true"},
    {"BooleanVariable", "pump2Running", "false"},
    {"BooleanVariable", "pump1Fault", "false"},
    {"BooleanVariable", "pump2Fault", "false"},
    {"ColorVariable", "pump1Color", "#FF2E8B57"},
    {"ColorVariable", "pump2Color", "#FF8A97A3"},
    // The operation of the station.
    {"BooleanVariable", "autoMode", "true", true},
    {"BooleanVariable", "remoteControl", "false", true},
    {"StringVariable", "stationName", "Pump Station North", true},
    {"StringVariable", "operatorName", " j. berg ", true},
    {"StringVariable", "valveState", "FULLY_OPEN"},
    // Alarms.
    {"BooleanVariable", "highLevel", "false"},
    {"BooleanVariable", "motorHot", "false"},
    {"BooleanVariable", "alarmActive", "false"},
    {"BooleanVariable", "acknowledged", "false"},
    {"StringVariable", "lastEvent", "Pump 1 started"},
};

constexpr struct
{
    const char *map;
    int address;
    const char *variable;
    Info::DataType type;
} registers[] = {
    {"coilMap", 1, "pump1Running", Info::BooleanData},
    {"coilMap", 2, "pump2Running", Info::BooleanData},
    {"coilMap", 3, "autoMode", Info::BooleanData},
    {"coilMap", 4, "remoteControl", Info::BooleanData},
    {"discreteInputMap", 10001, "highLevel", Info::BooleanData},
    {"discreteInputMap", 10002, "pump1Fault", Info::BooleanData},
    {"discreteInputMap", 10003, "pump2Fault", Info::BooleanData},
    {"inputRegMap", 30001, "wellLevel", Info::NumberData},
    {"inputRegMap", 30002, "flow", Info::NumberData},
    {"inputRegMap", 30003, "pressure", Info::NumberData},
    {"inputRegMap", 30004, "pump1Hours", Info::NumberData},
    {"inputRegMap", 30005, "pump2Hours", Info::NumberData},
    {"inputRegMap", 30006, "inflow", Info::NumberData},
    {"holdingRegMap", 40001, "startLevel", Info::NumberData},
    {"holdingRegMap", 40002, "stopLevel", Info::NumberData},
    {"holdingRegMap", 40003, "pumpSpeed", Info::NumberData},
    {"virtualStringMap", 5000, "lastEvent", Info::StringData},
    {"virtualStringMap", 5001, "valveState", Info::StringData},
};

constexpr struct
{
    const char *name;
    void (*draw)(PanelScreen &screen);
} screens[] = {
    {"Overview", &PumpStationScreens::drawOverview},
    {"Trends", &PumpStationScreens::drawTrends},
    {"Alarms", &PumpStationScreens::drawAlarms},
    {"Settings", &PumpStationScreens::drawSettings},
};

QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

PumpStation::PumpStation()
    : m_builder(u"PumpStation"_s)
{ }

std::unique_ptr<Project> PumpStation::build()
{
    m_builder.setModel(u"VTR 70-CE"_s);
    for (const QString &image :
         {u"logo.svg"_s, u"pump.png"_s, u"gauge.png"_s, u"trend.png"_s, u"plus.png"_s, u"minus.png"_s}) {
        m_builder.addImage(image);
    }
    addVariables();
    mapRegisters();
    addNetworks();
    addSavedSettings();
    drawScreens();
    m_builder.link(&m_builder.project(), "defaultScreen", u"Overview"_s);
    return m_builder.takeProject();
}

void PumpStation::addVariables()
{
    for (const auto &[className, name, value, isPersistent] : variables) {
        DesignerObject *variable = m_builder.addVariable(utf8(className), utf8(name), utf8(value));
        if (isPersistent) {
            m_builder.set(variable, "persistent", u"true"_s);
        }
    }
    DesignerObject *log = m_builder.addVariable(u"LogVariable"_s, u"levelLog"_s);
    m_builder.set(log, "maxDataPoints", u"1000"_s);
}

void PumpStation::mapRegisters()
{
    DesignerObject *mapping = m_builder.addVariable(u"MappingVariable"_s, u"registerMap"_s);
    QMap<QByteArray, GeneralDataList> maps;
    for (const auto &[map, address, variable, type] : registers) {
        maps[map].append(Info::ConstantValue, Info::IntegerData, QString::number(address));
        maps[map].append(Info::VariableValue, type, utf8(variable));
    }
    for (const auto &[map, terms] : maps.asKeyValueRange()) {
        m_builder.set(mapping, map, terms.toString());
    }
}

void PumpStation::addSavedSettings()
{
    DesignerObject *saved = m_builder.addVariable(u"AutoSettingVariable"_s, u"savedLook"_s);
    m_builder.set(saved, "typeOfObject", u"Rectangle"_s);
    m_builder.set(saved, "value",
                  m_builder.expression(GeneralDataList::GeneralExpression,
                                       u"Overview.topBar.color Settings.topBar.color"));
}

void PumpStation::drawScreens()
{
    // Create all screens before their contents, because their frames link to each other.
    QList<Screen *> made;
    for (const auto &screen : screens) {
        made.append(m_builder.addScreen(utf8(screen.name)));
        m_builder.set(made.last(), "color", PanelScreen::colorText(PanelStyle::background));
    }
    for (size_t i = 0; i < std::size(screens); ++i) {
        PanelScreen screen(m_builder, made.at(qsizetype(i)));
        PumpStationScreens::drawFrame(screen, screens[i].name);
        screens[i].draw(screen);
    }
}

} // namespace Halvane::Corvex::Examples
