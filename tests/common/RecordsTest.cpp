// SPDX-License-Identifier: MIT
#include "corvex/common/BACDeviceInfo.h"
#include "corvex/common/ConfigurationInfo.h"
#include "corvex/common/EnumHelper.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Common;

TEST(EnumHelper, ChannelWords)
{
    EXPECT_EQ(EnumHelper::inputOutputTypeNames().join(u' '),
              u"UNUSED INPUT OUTPUT COMTYPE RECEIVE SEND DIRECTION UNAVAILABLE CSPIN"_s);
    bool ok = false;
    EXPECT_EQ(EnumHelper::toInputOutputType(u"CSPIN", &ok), EnumHelper::CSPIN);
    EXPECT_TRUE(ok);
    for (const QStringView bad : {u"", u"input", u" INPUT", u"1"}) {
        EXPECT_EQ(EnumHelper::toInputOutputType(bad, &ok), EnumHelper::UNUSED);
        EXPECT_FALSE(ok) << bad.toString().toStdString();
    }
}

TEST(EnumHelper, EveryVariableTypeHasAText)
{
    const QMetaEnum types = EnumHelper::metaEnum(u"VariableType"_s);
    for (int i = 0; i < types.keyCount(); ++i)
        EXPECT_FALSE(EnumHelper::getVariableTypeNames().value(QString::fromLatin1(types.key(i))).isEmpty());
    EXPECT_EQ(EnumHelper::getVariableTypeNames().size(), types.keyCount());
    EXPECT_FALSE(EnumHelper::metaEnum(u"NoSuchType"_s).isValid());
}

TEST(EnumHelper, BACnetTables)
{
    // Numbers on both sides of each gap of the standard.
    const struct
    {
        int number;
        QString name;
    } properties[] = {
        {0, u"acked-transitions"_s},
        {7, u"alarm-values"_s},
        {9, u"all-writes-successful"_s},
        {17, u"notification-class"_s},
        {19, u"controlled-variable-reference"_s},
        {28, u"description"_s},
        {62, u"max-apdu-length-accepted"_s},
        {77, u"object-name"_s},
        {79, u"object-type"_s},
        {81, u"out-of-service"_s},
        {85, u"present-value"_s},
        {94, u"proportional-constant-units"_s},
        {96, u"protocol-object-types-supported"_s},
        {104, u"relinquish-default"_s},
        {106, u"resolution"_s},
        {117, u"units"_s},
        {155, u"database-revision"_s},
        {193, u"align-intervals"_s},
        {195, u"interval-offset"_s},
        {197, u"logging-type"_s},
        {202, u"restart-notification-recipients"_s},
        {215, u"full-duty-baseline"_s},
        {218, u"requested-shed-level"_s},
        {222, u"state-description"_s},
        {226, u"door-alarm-state"_s},
        {235, u"secured-status"_s},
        {244, u"absentee-limit"_s},
        {311, u"user-information-reference"_s},
        {317, u"user-name"_s},
        {323, u"global-identifier"_s},
        {326, u"verification-time"_s},
        {371, u"property-list"_s},
        {399, u"apdu-length"_s},
        {427, u"network-type"_s},
        {465, u"group-id"_s},
        {467, u"group-mode"_s},
        {507, u"device-uuid"_s},
    };
    for (const auto &row : properties)
        EXPECT_EQ(EnumHelper::getBACnetPropIDToNames().value(row.number), row.name) << row.number;
    for (const int gap : {8, 18, 80, 95, 105, 194, 198, 216, 223, 236, 312, 324, 466, 508})
        EXPECT_FALSE(EnumHelper::getBACnetPropIDToNames().contains(gap)) << gap;
    EXPECT_EQ(EnumHelper::getBACnetObjIDToNames().value(8), u"device"_s);
    EXPECT_EQ(EnumHelper::getBACnetObjIDToNames().value(19), u"multi-state-value"_s);
    EXPECT_EQ(EnumHelper::getBACnetObjIDToNames().value(56), u"network-port"_s);
    EXPECT_EQ(EnumHelper::getBACnetObjIDToNames().size(), 63);
    EXPECT_EQ(EnumHelper::getBACnetPropIDToNames().size(), 477);
    // No name stands twice: the tables by name hold as many entries as those by number.
    EXPECT_EQ(EnumHelper::getBACnetPropertyTypeNames().size(), EnumHelper::getBACnetPropIDToNames().size());
    EXPECT_EQ(EnumHelper::getBacnetObjectTypeNames().size(), EnumHelper::getBACnetObjIDToNames().size());
    EXPECT_EQ(EnumHelper::getBacnetObjectTypeNames().value(u"analog-input"_s), u"Analog Input"_s);
    EXPECT_EQ(EnumHelper::getBACnetPropertyTypeNames().value(u"bacnet-ipv6-udp-port"_s),
              u"BACnet IPv6 UDP Port"_s);
    EXPECT_EQ(EnumHelper::getBACnetDataTypeNames().value(u"octet-string"_s), u"Octet String"_s);
}

TEST(ConfigurationInfo, ValidNeedsASizeAndABrightness)
{
    const struct
    {
        QSize size;
        int brightness;
        bool valid;
    } rows[] = {
        {{1, 1}, 0, true},       {{480, 272}, 100, true}, {{480, 272}, 101, false},
        {{480, 272}, -1, false}, {{0, 272}, 50, false},   {{480, -1}, 50, false},
    };
    EXPECT_FALSE(ConfigurationInfo().isValid());
    for (const auto &row : rows) {
        ConfigurationInfo info;
        info.setDisplaySize(row.size);
        info.setDisplayBrightness(row.brightness);
        EXPECT_EQ(info.isValid(), row.valid);
        EXPECT_NE(info, ConfigurationInfo());
    }
}

TEST(BACDeviceInfo, TextForm)
{
    const BACDeviceInfo empty;
    EXPECT_EQ(empty.toString(),
              u"apduTimeout: 0; description: ; location: ; modelName: ; numberOfApduRetries: 0; "
              "objectName: ; vendorIdentifier: 0; vendorName: ;"_s);
    BACDeviceInfo info;
    info.setObjectName(u"Boiler; \"1\": ü"_s);
    info.setVendorIdentifier(65535);
    info.setApduTimeout(3000);
    for (const BACDeviceInfo &record : {empty, info}) {
        bool ok = false;
        EXPECT_EQ(BACDeviceInfo(record.toString(), &ok), record);
        EXPECT_TRUE(ok);
    }
    const QString text = info.toString();
    const QString bad[] = {u""_s,
                           u";"_s,
                           u"apduTimeout: 0;"_s,
                           text.chopped(1),
                           text + u" x: 1;"_s,
                           text + u" apduTimeout: 3000;"_s,
                           QString(text).replace(u"65535"_s, u"65536"_s),
                           QString(text).replace(u"3000"_s, u"-1"_s),
                           QString(text).replace(u"3000"_s, u""_s),
                           QString(text).replace(u"location: ;"_s, u"location: ?;"_s)};
    for (const QString &other : bad) {
        bool ok = true;
        EXPECT_EQ(BACDeviceInfo(other, &ok), empty);
        EXPECT_FALSE(ok) << other.toStdString();
    }
}
