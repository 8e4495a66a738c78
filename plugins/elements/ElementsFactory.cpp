// SPDX-License-Identifier: MIT
#include "elements/ElementsFactory.h"

#include "elements/editors/ConditionEditor.h"
#include "elements/editors/TimeEditors.h"
#include "elements/function/Action.h"
#include "elements/function/Button.h"
#include "elements/function/CheckButton.h"
#include "elements/function/DataLogging.h"
#include "elements/function/LogicBuilder.h"
#include "elements/function/NumberSpinner.h"
#include "elements/function/PropertyTrigger.h"
#include "elements/function/ScreenLoader.h"
#include "elements/hardware/Channels.h"
#include "elements/hardware/Communication.h"
#include "elements/hardware/Ports.h"
#include "elements/visual/GraphicsFilled.h"
#include "elements/visual/GraphicsImage.h"
#include "elements/visual/GraphicsText.h"
#include "elements/visual/Image.h"
#include "elements/visual/Rectangle.h"
#include "elements/visual/Text.h"

#include <algorithm>
#include <iterator>

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! The base names are the stems of identifiers in saved projects.
constexpr ClassRow classes[] = {
    {.className = "Action",
     .make = &makeObject<Action>,
     .baseName = "action",
     .displayName = "Action",
     .description = "Values that are set in one step when a trigger runs the action."},
    {.className = "AlarmOutput",
     .make = &makeObject<AlarmOutput>,
     .baseName = "alarmOutput",
     .displayName = "Alarm Output",
     .description = "An alarm output of the device, which is on or off."},
    {.className = "AnalogInput",
     .make = &makeObject<AnalogInput>,
     .baseName = "analogInput",
     .displayName = "Analog Input",
     .description = "An analog input of the device, with the range of its voltage."},
    {.className = "BACnetService",
     .make = &makeObject<BACnetService>,
     .baseName = "bacNetService",
     .displayName = "BACnet Service",
     .description = "Offers BACnet objects to the network, and communicates with other BACnet devices."},
    {.className = "Button",
     .make = &makeObject<Button>,
     .baseName = "button",
     .displayName = "Button",
     .description = "Makes assignments when the operator touches a visual element, and changes its look "
                    "while it is touched."},
    {.className = "CANBusDevice",
     .make = &makeObject<CANBusDevice>,
     .baseName = "canBusDevice",
     .displayName = "CAN Bus Device",
     .description = "A CAN port of the device."},
    {.className = "CheckButton",
     .make = &makeObject<CheckButton>,
     .baseName = "checkButton",
     .displayName = "Check Button",
     .description =
         "Switches a boolean variable when the operator touches a visual element, and shows its value."},
    {.className = "DataLogging",
     .make = &makeObject<DataLogging>,
     .baseName = "dataLogging",
     .displayName = "Data Logging",
     .description = "Records the value of a log variable while its screen is shown; the first sample is "
                    "taken each time the screen appears, after the start delay of the log."},
    {.className = "DigitalInputOutput",
     .make = &makeObject<DigitalInputOutput>,
     .baseName = "digitalInputOutput",
     .displayName = "Digital Input/Output",
     .description =
         "A digital channel of the device; the configuration decides whether it is an input or an output."},
    {.className = "EthernetPort",
     .make = &makeObject<EthernetPort>,
     .baseName = "ethernetPort",
     .displayName = "Ethernet Port",
     .description = "An Ethernet port of the device."},
    {.className = "I2CBus",
     .make = &makeObject<I2CBus>,
     .baseName = "i2cBus",
     .displayName = "I2C Bus",
     .description = "An I2C bus of the device."},
    {.className = "Image",
     .make = &makeObject<Image>,
     .baseName = "image",
     .displayName = "Image",
     .description = "Shows an image of the project."},
    {.className = "LogicBuilder",
     .make = &makeObject<LogicBuilder>,
     .baseName = "logicBuilder",
     .displayName = "Logic Builder",
     .description = "Makes assignments while conditions are true and its screen is shown. Rules have no "
                    "delays; the controller that writes the variables provides them."},
    {.className = "ModbusCommands",
     .make = &makeObject<ModbusCommands>,
     .baseName = "modbusCommands",
     .displayName = "Modbus Commands",
     .description = "Sends Modbus commands, each when an element starts it."},
    {.className = "NumberSpinner",
     .make = &makeObject<NumberSpinner>,
     .baseName = "numberSpinner",
     .displayName = "Number Spinner",
     .description =
         "Lets the operator enter a number: touching one of two visual elements steps a number variable up "
         "or down."},
    {.className = "PropertyTrigger",
     .make = &makeObject<PropertyTrigger>,
     .baseName = "propertyTrigger",
     .displayName = "Property Trigger",
     .description = "Runs actions when a value has changed and a condition is true, while its screen is "
                    "shown."},
    {.className = "PwmOutput",
     .make = &makeObject<PwmOutput>,
     .baseName = "pwmOutput",
     .displayName = "PWM Output",
     .description = "A PWM output of the device, whose value is the duty cycle in percent."},
    {.className = "RS485COMPort",
     .make = &makeObject<RS485COMPort>,
     .baseName = "rs485ComPort",
     .displayName = "RS485 COM Port",
     .description = "The RS485 port of the device, which answers Modbus requests."},
    {.className = "Rectangle",
     .make = &makeObject<Rectangle>,
     .baseName = "rectangle",
     .displayName = "Rectangle",
     .description = "A rectangle with a color, a border and rounded corners."},
    {.className = "SPICommunication",
     .make = &makeObject<SPICommunication>,
     .baseName = "spiCommunication",
     .displayName = "SPI Communication",
     .description = "Sends values over the SPI port of the device."},
    {.className = "SPIPort",
     .make = &makeObject<SPIPort>,
     .baseName = "spiPort",
     .displayName = "SPI Port",
     .description = "An SPI port of the device."},
    {.className = "ScreenLoader",
     .make = &makeObject<ScreenLoader>,
     .baseName = "screenLoader",
     .displayName = "Screen Loader",
     .description = "Shows another screen when the operator touches a visual element."},
    {.className = "SerialCOMPort",
     .make = &makeObject<SerialCOMPort>,
     .baseName = "serialComPort",
     .displayName = "Serial COM Port",
     .description = "A serial port of the device, which answers Modbus requests."},
    {.className = "Text",
     .make = &makeObject<Text>,
     .baseName = "text",
     .displayName = "Text",
     .description = "A text, which can follow variables."},
    {.className = "ThermistorInput",
     .make = &makeObject<ThermistorInput>,
     .baseName = "thermistorInput",
     .displayName = "Thermistor Input",
     .description = "An input of the device that measures a temperature with a thermistor."},
    {.className = "ThermocoupleInput",
     .make = &makeObject<ThermocoupleInput>,
     .baseName = "thermocoupleInput",
     .displayName = "Thermocouple Input",
     .description = "An input of the device that measures a temperature with a thermocouple."},
};

constexpr ItemRow items[] = {
    {"GraphicsFilled", &makeItem<GraphicsFilled>},
    {"GraphicsImage", &makeItem<GraphicsImage>},
    {"GraphicsText", &makeItem<GraphicsText>},
};

//! An editor for properties of elements.
struct EditorRow
{
    const char *name;
    PropertyEditor *(*make)(QWidget *parent);
};

template<class Editor>
PropertyEditor *makeEditor(QWidget *parent)
{
    return new Editor(parent);
}

constexpr EditorRow editors[] = {
    {"ConditionEditor", &makeEditor<ConditionEditor>},
    {"RepeatTimerEditor", &makeEditor<RepeatTimerEditor>},
    {"StartDelayEditor", &makeEditor<StartDelayEditor>},
};

} // namespace

ElementsFactory::ElementsFactory()
    : TableFactory(classes, items)
{ }

PropertyEditor *ElementsFactory::createEditor(const QString &editorName, QWidget *parent)
{
    const auto row = std::ranges::find_if(
        editors, [&](const EditorRow &known) { return editorName == QLatin1StringView(known.name); });
    return row == std::end(editors) ? nullptr : row->make(parent);
}

QStringList ElementsFactory::editorNames() const
{
    QStringList names;
    for (const EditorRow &row : editors) {
        names.append(QString::fromLatin1(row.name));
    }
    return names;
}

} // namespace Halvane::Corvex::Elements
