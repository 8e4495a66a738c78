// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/GeneralDataList.h"

#include "variables/VariableSupport.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;

namespace {

TEST(FieldbusVariables, ReportMissingValues)
{
    const auto text = [](const QString &value) {
        return GeneralDataInfo(GeneralDataInfo::ConstantValue, GeneralDataInfo::StringData, value).toString();
    };
    EXPECT_EQ(errorOf(u"CANVariable"_s, u"parameterMap", {}), u"At least one SPN required"_s);
    EXPECT_EQ(errorOf(u"CANVariable"_s, u"parameterMap", u"<0000><0000><0000><0000>"_s), u"Empty entry"_s);
    EXPECT_EQ(errorOf(u"BACnetObject"_s, u"properties", {}), u"BACnet Object properties not set"_s);
    EXPECT_EQ(errorOf(u"BACnetObject"_s, u"properties", text(u"units"_s)), u"Incomplete property list."_s);
    EXPECT_EQ(errorOf(u"BACnetObject"_s, u"bacnetObjName", {}), u"BACnet Object name should be provided"_s);
    EXPECT_EQ(errorOf(u"BACnetObject"_s, u"bacnetObjName", u"Pump"_s), QString());
    for (const auto &identifier :
         {u"AI1"_s, u"99999,5000000"_s, u"1"_s, u"-1,2"_s, u"1,2,3"_s, u"1,4194303"_s}) {
        EXPECT_TRUE(errorOf(u"BACnetObject"_s, u"objectID", identifier).startsWith(u"The identifier must"_s));
    }
    EXPECT_EQ(errorOf(u"BACnetObject"_s, u"objectID", u"1023,4194302"_s), QString());
    EXPECT_EQ(errorOf(u"LogVariable"_s, u"interval", u"2999"_s),
              u"interval takes numbers from 3000 to 2147483647, not 2999."_s);
}

TEST(FtpVariable, RequiresAUserIfTheServerDoes)
{
    const auto variable = makeVariable(u"FtpVariable"_s);
    EXPECT_FALSE(variable->toVariant().isValid());
    const struct
    {
        const char *type;
        bool isShown;
    } cases[] = {{"FTP", false}, {"FTPS", true}, {"SFTP", true}, {"FTP", false}};
    for (const auto &[type, shown] : cases) {
        EXPECT_TRUE(change(*variable, u"type", QString::fromLatin1(type)));
        EXPECT_EQ(isShown(*variable, u"user"), shown) << type;
        EXPECT_EQ(isShown(*variable, u"password"), shown) << type;
    }
    EXPECT_FALSE(isShown(*makeVariable(u"FtpVariable"_s), u"user"));
}

TEST(BACnetDevice, ShowsTheFieldsOfItsSwitches)
{
    const QStringList dependents{u"isFixed"_s,  u"macAddress"_s, u"ethernetIP"_s,
                                 u"reqProps"_s, u"pwdEnabled"_s, u"password"_s};
    // Each step changes one property of the same device.
    const struct
    {
        const char *id;
        const char *value;
        const char *shown;
    } steps[] = {
        {"isLocal", "true", ""},
        {"isFixed", "false", ""},
        {"isLocal", "false", "isFixed reqProps"},
        {"isFixed", "true", "isFixed ethernetIP reqProps"},
        {"bacnetType", "BACnetMSTP", "macAddress reqProps"},
        {"bacnetType", "BACnetIP", "isFixed ethernetIP reqProps"},
        {"isLocal", "true", ""},
        {"pwdEnabled", "true", ""},
        {"upgradable", "true", "pwdEnabled password"},
        {"pwdEnabled", "false", "pwdEnabled"},
        {"logDownloadable", "true", "pwdEnabled"},
        {"upgradable", "false", "pwdEnabled"},
        {"pwdEnabled", "true", "pwdEnabled password"},
        {"logDownloadable", "false", ""},
    };
    const auto device = makeVariable(u"BACnetDevice"_s);
    for (const auto &[id, value, expected] : steps) {
        EXPECT_TRUE(change(*device, QString::fromLatin1(id), QString::fromLatin1(value)));
        QStringList shown;
        for (const QString &dependent : dependents) {
            if (isShown(*device, dependent)) {
                shown.append(dependent);
            }
        }
        EXPECT_EQ(shown.join(u' '), QString::fromLatin1(expected)) << id << " " << value;
    }
}

TEST(BACnetDevice, RequiresAPasswordOnceItIsEnabled)
{
    const auto device = makeVariable(u"BACnetDevice"_s);
    EXPECT_TRUE(device->validate());
    change(*device, u"pwdEnabled", u"true"_s);
    EXPECT_FALSE(device->isValid());
    EXPECT_EQ(device->validationErrors(), QStringList(u"Password :: Empty Password is Not Allowed"_s));
    change(*device, u"password", u"secret"_s);
    EXPECT_TRUE(device->isValid());
    change(*device, u"password", {});
    change(*device, u"pwdEnabled", u"false"_s);
    EXPECT_TRUE(device->isValid());

    // Values from a file affect the visibility like edits.
    change(*device, u"upgradable", u"true"_s);
    const std::unique_ptr<DesignerObject> copy(DesignerObject::createCopy(device.get()));
    ASSERT_TRUE(copy);
    EXPECT_TRUE(isShown(static_cast<ProjectVariable &>(*copy), u"pwdEnabled"));
}

} // namespace
