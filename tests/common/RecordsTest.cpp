// SPDX-License-Identifier: MIT
#include "corvex/common/BACDeviceInfo.h"
#include "corvex/common/EnumHelper.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Common;

TEST(EnumHelper, BACnetTables)
{
    // Numbers on both sides of each gap in the standard.
    const QString properties =
        u"0=acked-transitions 7=alarm-values 9=all-writes-successful 17=notification-class "
        "19=controlled-variable-reference 28=description 62=max-apdu-length-accepted 77=object-name "
        "79=object-type 81=out-of-service 85=present-value 94=proportional-constant-units "
        "96=protocol-object-types-supported 104=relinquish-default 106=resolution 117=units "
        "155=database-revision 193=align-intervals 195=interval-offset 197=logging-type "
        "202=restart-notification-recipients 215=full-duty-baseline 218=requested-shed-level "
        "222=state-description 226=door-alarm-state 235=secured-status 244=absentee-limit "
        "311=user-information-reference 317=user-name 323=global-identifier 326=verification-time "
        "371=property-list 399=apdu-length 427=network-type 465=group-id 467=group-mode "
        "507=device-uuid"_s;
    for (const QString &row : properties.split(u' ')) {
        const int number = row.section(u'=', 0, 0).toInt();
        EXPECT_EQ(EnumHelper::getBACnetPropIDToNames().value(number), row.section(u'=', 1)) << number;
    }
    for (const int gap : {8, 18, 80, 95, 105, 194, 198, 216, 223, 236, 312, 324, 466, 508}) {
        EXPECT_FALSE(EnumHelper::getBACnetPropIDToNames().contains(gap)) << gap;
    }
    EXPECT_EQ(EnumHelper::getBACnetObjIDToNames().value(8), u"device"_s);
    EXPECT_EQ(EnumHelper::getBACnetObjIDToNames().value(19), u"multi-state-value"_s);
    EXPECT_EQ(EnumHelper::getBACnetObjIDToNames().value(56), u"network-port"_s);
    EXPECT_EQ(EnumHelper::getBACnetObjIDToNames().size(), 63);
    EXPECT_EQ(EnumHelper::getBACnetPropIDToNames().size(), 477);
    // Names are unique: the tables by name have as many entries as those by number.
    EXPECT_EQ(EnumHelper::getBACnetPropertyTypeNames().size(), EnumHelper::getBACnetPropIDToNames().size());
    EXPECT_EQ(EnumHelper::getBacnetObjectTypeNames().size(), EnumHelper::getBACnetObjIDToNames().size());
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
                           text.chopped(1),
                           text + u" x: 1;"_s,
                           QString(text).replace(u"65535"_s, u"65536"_s),
                           QString(text).replace(u"3000"_s, u"-1"_s),
                           QString(text).replace(u"location: ;"_s, u"location: ?;"_s)};
    for (const QString &other : bad) {
        bool ok = true;
        EXPECT_EQ(BACDeviceInfo(other, &ok), empty);
        EXPECT_FALSE(ok) << other.toStdString();
    }
}
