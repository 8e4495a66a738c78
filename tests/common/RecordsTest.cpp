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
