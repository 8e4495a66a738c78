// SPDX-License-Identifier: MIT
#include "corvex/variables/BACnetDevice.h"

#include "corvex/common/BACDeviceInfo.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/EnumProperty.h"
#include "corvex/core/properties/ValidationError.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Instance 4194303, the highest, means "any device".
constexpr int largestDevice = 4194302;
constexpr int largestNumber = 65535;
//! The default UDP port of BACnet, 0xBAC0.
constexpr int usualPort = 47808;

constexpr auto passwordDescription =
    "    Password feature enabled for upgrade device software and Log download feature to work on BACnet "
    "protocol.\n    The password set here is matched with the one input by the user to use this feature "
    "using Layout Studio.";

PropertyRow numberRow(const char *id, const char *title, int initial, int maximum)
{
    return row<IntegerProperty>(id, title, initial)
        .allowInvalid()
        .parameter("minimum", 0)
        .parameter("maximum", maximum);
}

PropertyRow switchRow(const char *id, const char *title, bool initial)
{
    return row<BooleanProperty>(id, title, initial).allowInvalid();
}

PropertyRow textRow(const char *id, const char *title, const QString &initial = {})
{
    return row<StringProperty>(id, title, initial).allowInvalid();
}

bool isOn(const SharedProperty &property)
{
    return valueAs<BooleanProperty>(property);
}

bool validatePassword(const DesignerProperty *property, QString &error)
{
    const auto *device = static_cast<const BACnetDevice *>(property->parentObject());
    return !device || !isOn(device->pwdEnabled()) || !property->valueString().isEmpty()
           || ValidationError::set(error, "Empty Password is Not Allowed");
}

} // namespace

bool BACnetDevice::initializeProperties()
{
    static const PropertyTable table{
        fixedPersistence(false),
        numberRow("objIdentifier", "Device Identifier", 0, largestDevice)
            .description("The instance number by which other BACnet devices address the device.")
            .rank(12),
        enumRow("bacnetType", "BACnet Type", "BACnetType")
            .description("The network of the device: BACnet/IP, or BACnet MS/TP on a serial line.")
            .rank(13),
        numberRow("netNumber", "Network Number", 0, largestNumber)
            .description(
                "The number of the BACnet network to which the device belongs; 0 is the local network.")
            .rank(14),
        numberRow("portNumber", "Port Number", usualPort, largestNumber)
            .description("The UDP port on which the device communicates over BACnet/IP.")
            .example("47809")
            .rank(15),
        switchRow("isLocal", "Local Host", true)
            .description("Whether the device is this panel, and not another device in the network.")
            .rank(16),
        switchRow("isFixed", "Static Address", true)
            .description("Whether the other device has a fixed IP address.")
            .rank(17)
            .hidden(),
        textRow("macAddress", "MAC Address")
            .description("The MS/TP address of the other device.")
            .example("12")
            .rank(18)
            .editor("MACAddressEditor")
            .hidden(),
        textRow("ethernetIP", "Ethernet IP")
            .description("The IP address of the other device.")
            .example("192.168.0.20")
            .rank(19)
            .editor("NetworkAddressEditor")
            .hidden(),
        textRow("reqProps", "Device Properties", Common::BACDeviceInfo().toString())
            .description(
                "The name, description, location, vendor and timeouts of the device for the BACnet network.")
            .example("apduTimeout: 3000; description: ; location: ; modelName: ; numberOfApduRetries: 3; "
                     "objectName: ; vendorIdentifier: 0; vendorName: ;")
            .rank(20)
            .editor("BACDeviceEditor")
            .hidden(),
        switchRow("upgradable", "Device Sofware Upgrade Enable", false)
            .description("Whether the software of the panel can be upgraded over BACnet.")
            .rank(21),
        switchRow("logDownloadable", "Log Download Enable", false)
            .description("Whether the logs of the panel can be downloaded over BACnet.")
            .rank(22),
        switchRow("pwdEnabled", "Password enabled", false).rank(23).hidden().description(passwordDescription),
        textRow("password", "Password :")
            .description("The password for upgrading the software and downloading logs.")
            .example("secret")
            .rank(24)
            .editor("ProjectPasswordEditor")
            .hidden()
            .validator(&validatePassword),
    };
    if (!DeviceVariable::initializeProperties() || !addProperties(table)) {
        return false;
    }
    m_bacnetType = getProperty(u"bacnetType");
    m_isLocal = getProperty(u"isLocal");
    m_isFixed = getProperty(u"isFixed");
    m_macAddress = getProperty(u"macAddress");
    m_ethernetIP = getProperty(u"ethernetIP");
    m_reqProps = getProperty(u"reqProps");
    m_upgradable = getProperty(u"upgradable");
    m_logDownloadable = getProperty(u"logDownloadable");
    m_pwdEnabled = getProperty(u"pwdEnabled");
    m_password = getProperty(u"password");
    return true;
}

void BACnetDevice::afterPropertyChanged(const DesignerProperty *property, const QString &previousValue)
{
    DeviceVariable::afterPropertyChanged(property, previousValue);
    if (property == m_bacnetType || property == m_isFixed || property == m_isLocal || property == m_upgradable
        || property == m_logDownloadable || property == m_pwdEnabled) {
        showDependents();
    }
    if (property == m_pwdEnabled && !disabledValidation()) {
        // The switch determines whether the password may be empty.
        m_password->validate();
        updateValidity();
    }
}

void BACnetDevice::showDependents()
{
    const bool isRemote = !isOn(m_isLocal);
    const bool usesIP = m_bacnetType->valueString() == "BACnetIP"_L1;
    const bool offersAccess = isOn(m_upgradable) || isOn(m_logDownloadable);
    const auto show = [](const SharedProperty &property, bool visible) {
        property->setEditorParameter(u"visible"_s, visible);
    };
    show(m_isFixed, isRemote && usesIP);
    show(m_macAddress, isRemote && !usesIP);
    show(m_ethernetIP, isRemote && usesIP && isOn(m_isFixed));
    show(m_reqProps, isRemote);
    show(m_pwdEnabled, offersAccess);
    show(m_password, offersAccess && isOn(m_pwdEnabled));
}

} // namespace Halvane::Corvex::Designer
