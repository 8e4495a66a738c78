// SPDX-License-Identifier: MIT
#include "elements/ElementsFactory.h"

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
#include "elements/visual/GraphicsImage.h"
#include "elements/visual/GraphicsText.h"
#include "elements/visual/Image.h"
#include "elements/visual/Rectangle.h"
#include "elements/visual/Text.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! The base names are the stems of identifiers in saved projects.
constexpr ClassRow classes[] = {
    {"Action", &makeObject<Action>, "action", "Action"},
    {"AlarmOutput", &makeObject<AlarmOutput>, "alarmOutput", "Alarm Output"},
    {"AnalogInput", &makeObject<AnalogInput>, "analogInput", "Analog Input"},
    {"BACnetService", &makeObject<BACnetService>, "bacNetService", "BACnet Service"},
    {"Button", &makeObject<Button>, "button", "Button"},
    {"CANBusDevice", &makeObject<CANBusDevice>, "canBusDevice", "CAN Bus Device"},
    {"CheckButton", &makeObject<CheckButton>, "checkButton", "Check Button"},
    {"DataLogging", &makeObject<DataLogging>, "dataLogging", "Data Logging"},
    {"DigitalInputOutput", &makeObject<DigitalInputOutput>, "digitalInputOutput", "Digital Input/Output"},
    {"EthernetPort", &makeObject<EthernetPort>, "ethernetPort", "Ethernet Port"},
    {"I2CBus", &makeObject<I2CBus>, "i2cBus", "I2C Bus"},
    {"Image", &makeObject<Image>, "image", "Image"},
    {"LogicBuilder", &makeObject<LogicBuilder>, "logicBuilder", "Logic Builder"},
    {"ModbusCommands", &makeObject<ModbusCommands>, "modbusCommands", "Modbus Commands"},
    {"NumberSpinner", &makeObject<NumberSpinner>, "numberSpinner", "Number Spinner"},
    {"PropertyTrigger", &makeObject<PropertyTrigger>, "propertyTrigger", "Property Trigger"},
    {"PwmOutput", &makeObject<PwmOutput>, "pwmOutput", "PWM Output"},
    {"RS485COMPort", &makeObject<RS485COMPort>, "rs485ComPort", "RS485 COM Port"},
    {"Rectangle", &makeObject<Rectangle>, "rectangle", "Rectangle"},
    {"SPICommunication", &makeObject<SPICommunication>, "spiCommunication", "SPI Communication"},
    {"SPIPort", &makeObject<SPIPort>, "spiPort", "SPI Port"},
    {"ScreenLoader", &makeObject<ScreenLoader>, "screenLoader", "Screen Loader"},
    {"SerialCOMPort", &makeObject<SerialCOMPort>, "serialComPort", "Serial COM Port"},
    {"Text", &makeObject<Text>, "text", "Text"},
    {"ThermistorInput", &makeObject<ThermistorInput>, "thermistorInput", "Thermistor Input"},
    {"ThermocoupleInput", &makeObject<ThermocoupleInput>, "thermocoupleInput", "Thermocouple Input"},
};

constexpr ItemRow items[] = {
    {"GraphicsImage", &makeItem<GraphicsImage>},
    {"GraphicsText", &makeItem<GraphicsText>},
};

} // namespace

ElementsFactory::ElementsFactory()
    : TableFactory(classes, items)
{ }

} // namespace Halvane::Corvex::Elements
