// SPDX-License-Identifier: MIT
#include "corvex/hardware/Configuration.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/StringsFile.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/core/properties/ShapeProperties.h"
#include "corvex/hardware/ConfigurationRules.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr int storedFlags = StoredFlag;
constexpr int plainFlags = StoredFlag | EditableFlag;
constexpr int deviceFlags = StoredFlag | EditableFlag | StateFlag;

template<bool (*rule)(const QString &, QString &)>
bool byText(const DesignerProperty *property, QString &error)
{
    return rule(property->valueString(), error);
}

const Configuration *configurationOf(const DesignerProperty *property)
{
    const DesignerObject *owner = property->parentObject();
    return owner && owner->isKindOfClass(u"Configuration"_s) ? static_cast<const Configuration *>(owner)
                                                             : nullptr;
}

bool isOn(const SharedProperty &property)
{
    return valueAs<BooleanProperty>(property);
}

RS485Lines linesOf(const Configuration *configuration)
{
    if (!configuration) {
        return {};
    }
    return {isOn(configuration->enableRS485()), configuration->sharesRS485Pins(),
            ChannelList(configuration->serialRS485Ports()->valueString())};
}

template<bool (*rule)(const QString &, const RS485Lines &, QString &)>
bool besideRS485(const DesignerProperty *property, QString &error)
{
    return rule(property->valueString(), linesOf(configurationOf(property)), error);
}

bool serialRS485Ports(const DesignerProperty *property, QString &error)
{
    const Configuration *configuration = configurationOf(property);
    if (!configuration) {
        error = Common::LocalizationHelper::coreString(u"No valid configuration can be found."_s);
        return false;
    }
    return ConfigurationRules::serialRS485Ports(
        linesOf(configuration), ChannelList(configuration->pwmOutputs()->valueString()),
        ChannelList(configuration->digitalInputOutputs()->valueString()), error);
}

template<SharedProperty (Configuration::*enabled)() const>
bool password(const DesignerProperty *property, QString &error)
{
    const Configuration *configuration = configurationOf(property);
    return ConfigurationRules::password(property->valueString(),
                                        configuration && isOn((configuration->*enabled)()), error);
}

//! A row for a property that keeps an invalid value and marks it.
template<class Property, class Value>
PropertyRow device(int rank, const char *id, const char *title, const Value &initialValue,
                   int flags = deviceFlags)
{
    return row<Property>(id, title, initialValue).rank(rank).flags(flags).allowInvalid();
}

PropertyRow channels(int rank, const char *id, const char *title, const char *editor)
{
    return device<StringProperty>(rank, id, title, QString()).editor(editor);
}

} // namespace

QString Configuration::baseName() const
{
    return u"Configuration"_s;
}

QString Configuration::displayName() const
{
    return Common::LocalizationHelper::coreString(u"Configuration"_s);
}

QString Configuration::createFileName() const
{
    return u"config.xml"_s;
}

QString Configuration::createSubPath() const
{
    return getIdName();
}

ObjectView *Configuration::createGraphicsItem()
{
    return nullptr;
}

bool Configuration::initializeProperties()
{
    using Rules = ConfigurationRules;
    static const PropertyTable table{
        row<IdentifierProperty>("id", "Device Model", IdentifierInfo())
            .description("The device model for which the project is made.")
            .rank(0)
            .flags(deviceFlags)
            .editor("DeviceModelEditor"),
        device<IntegerProperty>(10, "displayBrightness", "Display Brightness", 100)
            .description("The brightness of the display, in percent.")
            .parameter("minimum", 0)
            .parameter("maximum", 100)
            .parameter("suffix", u"%"_s)
            .parameter("showSlider", true)
            .validator(byText<Rules::displayBrightness>),
        device<SizeProperty>(11, "screenSize", "Device Screen Size", QSizeF(0, 0))
            .description("The width and the height of the display, in pixels.")
            .editor("ScreenSizeEditor")
            .parameter("noArrows", true)
            .validator(byText<Rules::screenSize>),
        device<IntegerProperty>(12, "colorDepth", "Color Depth", 32, storedFlags)
            .description("The number of bits with which the display stores the color of a pixel."),
        channels(13, "analogInputs", "Analog Input Channels", "ReadOnlyLineEditor")
            .description("The use of each analog input: INPUT or UNUSED.")
            .example("INPUT, UNUSED")
            .validator(byText<Rules::analogInputs>),
        channels(14, "alarmOutputs", "Alarm Output Channels", "ReadOnlyLineEditor")
            .description("The use of each alarm output: OUTPUT or UNUSED.")
            .example("OUTPUT, UNUSED")
            .validator(byText<Rules::alarmOutputs>),
        device<StringProperty>(15, "pwmFrequency", "PWM Output Frequency", QString(), plainFlags)
            .description("The frequency of each PWM output, in hertz.")
            .example("1000, 1000"),
        channels(16, "pwmOutputs", "PWM Output Channels", "ReadOnlyLineEditor")
            .description("The use of each PWM output: OUTPUT or UNUSED, or RECEIVE, SEND or DIRECTION if "
                         "RS485 shares its line.")
            .example("OUTPUT, UNUSED")
            .validator(besideRS485<Rules::pwmOutputs>),
        channels(17, "serialCOMPorts", "Serial COM Ports", "SerialCOMPortsEditor")
            .example("COMTYPE, UNUSED")
            .description("       VTR38K does not have dedicated RS485 port.Hardware extension is need to "
                         "support this feature.\n\n       Enable RS485 and choose the PWM/Digital channel to "
                         "start using this feature.")
            .validator(byText<Rules::serialCOMPorts>),
        channels(18, "canbusPorts", "CAN Bus Ports", "ReadOnlyLineEditor")
            .description("The use of each CAN port: COMTYPE or UNUSED.")
            .example("COMTYPE, UNUSED"),
        channels(19, "digitalInputOutputs", "Digital Input/Output Channels", "DigitalIOEditor")
            .description("The use of each digital channel: INPUT, OUTPUT or UNUSED, or DIRECTION if RS485 "
                         "shares its line.")
            .example("INPUT, OUTPUT, UNUSED")
            .hidden()
            .validator(besideRS485<Rules::digitalInputOutputs>),
        device<BooleanProperty>(20, "enableRS485", "Enable RS485", false)
            .description("Whether the device communicates over RS485."),
        channels(21, "serialRS485Ports", "RS485 Channel settings", "SerialRS485Editor")
            .description("The use of each line of the RS485 port: RECEIVE, SEND, DIRECTION or UNUSED.")
            .example("RECEIVE, SEND, DIRECTION, UNUSED")
            .hidden()
            .validator(Designer::serialRS485Ports),
        device<BooleanProperty>(22, "enableSPIChipSelect", "Enable SPI CS", false)
            .description("Whether a digital channel selects the chip for SPI."),
        channels(23, "SPIChipSelect", "SPI CS settings", "SPIChipSelectEditor")
            .description("The digital channels, in which CSPIN marks the one that selects the chip for SPI.")
            .example("UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, CSPIN")
            .hidden(),
        device<BooleanProperty>(24, "enablePassword", "Enable Retrieve Password", false)
            .description("Whether the device asks for a password before the project is retrieved from it."),
        device<StringProperty>(25, "password", "Password :", QString())
            .description("The password for retrieving the project from the device.")
            .example("secret")
            .editor("ProjectPasswordEditor")
            .hidden()
            .validator(Designer::password<&Configuration::enablePassword>),
        device<BooleanProperty>(26, "enableUpload", "Enable Upload Password", false)
            .description("Whether the device asks for a password before a project is loaded onto it."),
        device<StringProperty>(27, "uploadPassword", "Password :", QString())
            .description("The password for loading a project onto the device.")
            .example("secret")
            .editor("ProjectPasswordEditor")
            .hidden()
            .validator(Designer::password<&Configuration::enableUpload>),
        row<StringProperty>("compatibleModels", "Compatible Models", QString())
            .description("The other device models that can run the project.")
            .example("VTR 50-S|VTR 70-CE")
            .rank(28)
            .flags(plainFlags)
            .editor("CompatibleModelsEditor"),
        device<StringProperty>(29, "description", "Description", QString(), storedFlags)
            .description("What the device model offers, in a few words."),
        device<StringProperty>(30, "url", "URL", QString(), storedFlags)
            .description("The web page about the device model."),
    };
    return FileObject::initializeProperties() && addProperties(table);
}

SharedProperty Configuration::at(Place place) const
{
    return properties().value(place);
}

bool Configuration::isOn(Place place) const
{
    return Designer::isOn(at(place));
}

bool Configuration::sharesRS485Pins() const
{
    return getIdName() == "VTR 50-K"_L1;
}

QStringList Configuration::allCompatibleModels() const
{
    QStringList models{getIdName()};
    for (const QString &entry : textOf(CompatibleModels).split(u'|')) {
        const QString model = entry.trimmed();
        if (!model.isEmpty()) {
            models.append(model);
        }
    }
    return models;
}

std::optional<int> Configuration::ethernetPorts() const
{
    const QString path = u"%1/Ports.strings"_s.arg(folderPath());
    Common::StringsFile table;
    if (folderPath().isEmpty() || !QFileInfo(path).isFile() || !table.load(path)) {
        return std::nullopt;
    }
    bool ok = false;
    const int count = Common::LocalizationHelper::localizedString(table, u"ETHERNET"_s).toInt(&ok);
    return ok ? std::optional(count) : std::nullopt;
}

void Configuration::finishReading()
{
    FileObject::finishReading();
    m_isLoaded = true;
    // Lists that are empty in the file were not changed, so nothing has updated their visibility yet.
    updateVisibility(nullptr);
    localize();
}

void Configuration::afterFileFieldsChanged()
{
    localize();
}

//! Translates description and address into the user's language, if the folder of the model contains texts for
//! it.
void Configuration::localize()
{
    using Common::LocalizationHelper;
    if (!m_isLoaded || folderPath().isEmpty()) {
        return;
    }
    const QString locale = LocalizationHelper::currentLocale();
    for (const QString &name : {locale, locale.section(u'_', 0, 0)}) {
        const QString path = u"%1/Localizations/%2/Localizable.strings"_s.arg(folderPath(), name);
        if (name.isEmpty() || !QFileInfo(path).isFile()) {
            continue;
        }
        Common::StringsFile table;
        QString error;
        if (!table.load(path, &error)) {
            qWarning("%s", qUtf8Printable(error));
        }
        for (const auto &[key, place] :
             {std::pair(u"LOCALIZED_DESCRIPTION"_s, Description), std::pair(u"LOCALIZED_URL"_s, Url)}) {
            const QString text = LocalizationHelper::localizedString(table, key);
            if (text != key) {
                write(place, text);
            }
        }
        return;
    }
}

} // namespace Halvane::Corvex::Designer
