// SPDX-License-Identifier: MIT
#include "elements/ElementsFactory.h"

#include "corvex/common/LocalizationHelper.h"

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

//! Opens the protected constructor of an element class to the factory.
template<class Class>
DesignerObject *make(QObject *parent)
{
    struct Made : public Class
    {
        explicit Made(QObject *owner)
            : Class(owner)
        { }
    };
    return new Made(parent);
}

//! All that the plug-in brings. The base names are the stems of identifiers in saved projects.
constexpr struct
{
    const char *className;
    const char *baseName;
    const char *displayName;
    DesignerObject *(*make)(QObject *parent);
} elementClasses[] = {
    {"Action", "action", "Action", &make<Action>},
    {"AlarmOutput", "alarmOutput", "Alarm Output", &make<AlarmOutput>},
    {"AnalogInput", "analogInput", "Analog Input", &make<AnalogInput>},
    {"BACnetService", "bacNetService", "BACnet Service", &make<BACnetService>},
    {"Button", "button", "Button", &make<Button>},
    {"CANBusDevice", "canBusDevice", "CAN Bus Device", &make<CANBusDevice>},
    {"CheckButton", "checkButton", "Check Button", &make<CheckButton>},
    {"DataLogging", "dataLogging", "Data Logging", &make<DataLogging>},
    {"DigitalInputOutput", "digitalInputOutput", "Digital Input/Output", &make<DigitalInputOutput>},
    {"EthernetPort", "ethernetPort", "Ethernet Port", &make<EthernetPort>},
    {"I2CBus", "i2cBus", "I2C Bus", &make<I2CBus>},
    {"Image", "image", "Image", &make<Image>},
    {"LogicBuilder", "logicBuilder", "Logic Builder", &make<LogicBuilder>},
    {"ModbusCommands", "modbusCommands", "Modbus Commands", &make<ModbusCommands>},
    {"NumberSpinner", "numberSpinner", "Number Spinner", &make<NumberSpinner>},
    {"PropertyTrigger", "propertyTrigger", "Property Trigger", &make<PropertyTrigger>},
    {"PwmOutput", "pwmOutput", "PWM Output", &make<PwmOutput>},
    {"RS485COMPort", "rs485ComPort", "RS485 COM Port", &make<RS485COMPort>},
    {"Rectangle", "rectangle", "Rectangle", &make<Rectangle>},
    {"SPICommunication", "spiCommunication", "SPI Communication", &make<SPICommunication>},
    {"SPIPort", "spiPort", "SPI Port", &make<SPIPort>},
    {"ScreenLoader", "screenLoader", "Screen Loader", &make<ScreenLoader>},
    {"SerialCOMPort", "serialComPort", "Serial COM Port", &make<SerialCOMPort>},
    {"Text", "text", "Text", &make<Text>},
    {"ThermistorInput", "thermistorInput", "Thermistor Input", &make<ThermistorInput>},
    {"ThermocoupleInput", "thermocoupleInput", "Thermocouple Input", &make<ThermocoupleInput>},
};

} // namespace

DesignerObject *ElementsFactory::createObject(const QString &className, QObject *parent)
{
    const auto entry =
        std::find_if(std::begin(elementClasses), std::end(elementClasses),
                     [&](const auto &element) { return className == QLatin1StringView(element.className); });
    return entry == std::end(elementClasses) ? nullptr : entry->make(parent);
}

GraphicsItem *ElementsFactory::createGraphicsItem(const QString &className, DesignerObject *object)
{
    if (className == GraphicsText::kindName()) {
        return new GraphicsText(object);
    }
    return className == GraphicsImage::kindName() ? new GraphicsImage(object) : nullptr;
}

PropertyEditor *ElementsFactory::createEditor(const QString &, QWidget *)
{
    return nullptr;
}

Template *ElementsFactory::createTemplate(const QString &, QObject *)
{
    return nullptr;
}

Wizard *ElementsFactory::createWizard(const QString &)
{
    return nullptr;
}

QStringList ElementsFactory::objectNames() const
{
    QStringList names;
    for (const auto &element : elementClasses) {
        names.append(QString::fromLatin1(element.className));
    }
    return names;
}

QMap<QString, QString> ElementsFactory::classBaseNames() const
{
    QMap<QString, QString> names;
    for (const auto &element : elementClasses) {
        names.insert(QString::fromLatin1(element.className), QString::fromLatin1(element.baseName));
    }
    return names;
}

QMap<QString, QString> ElementsFactory::classDisplayNames() const
{
    QMap<QString, QString> names;
    for (const auto &element : elementClasses) {
        names.insert(QString::fromLatin1(element.className),
                     Common::LocalizationHelper::coreString(QString::fromLatin1(element.displayName)));
    }
    return names;
}

QStringList ElementsFactory::creatableNames() const
{
    return objectNames();
}

QStringList ElementsFactory::graphicsItemNames() const
{
    return {GraphicsImage::kindName(), GraphicsText::kindName()};
}

QStringList ElementsFactory::editorNames() const
{
    return {};
}

QStringList ElementsFactory::templateNames() const
{
    return {};
}

QStringList ElementsFactory::wizardNames() const
{
    return {};
}

} // namespace Halvane::Corvex::Elements
