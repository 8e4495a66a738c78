// SPDX-License-Identifier: MIT
#include "corvex/common/BACDeviceInfo.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/project/Project.h"
#include "corvex/runtime/RuntimeConfiguration.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/variables/BACnetPropertyList.h"
#include "corvex/variables/CanParameterMap.h"

#include "support/Model.h"

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

class RuntimeConfigurationTest : public testing::Test
{
protected:
    using Texts = QList<std::pair<QString, QString>>;

    RuntimeConfigurationTest()
    {
        DesignerFactory::createInstance(QCoreApplication::applicationDirPath());
        project.reset(make<Project>(u"Project"_s, u"Pump Station"_s));
        project->changePropertyObjectValue(project->configuration(), make(u"Configuration"_s, u"VTR"_s));
    }

    void addVariable(const QString &className, const QString &name, const Texts &texts)
    {
        DesignerObject *variable = make(className, name);
        ASSERT_TRUE(project->addListPropertyItem(project->variables(), variable));
        for (const auto &[id, text] : texts) {
            variable->changePropertyValue(variable->getProperty(id), text);
        }
    }

    void configure(const QString &id, const QString &text)
    {
        DesignerObject *device = project->configuration()->objectValue();
        device->changePropertyValue(device->getProperty(id), text);
    }

    const RuntimeConfiguration &collected()
    {
        QString error;
        EXPECT_TRUE(configuration.collect(*project, &error)) << qPrintable(error);
        return configuration;
    }

    QVariantMap record(const QString &key)
    {
        return collected().configMap().value(u"variables"_s).toMap().value(key).toMap();
    }

    static QVariantMap record(bool isPersistent, int type, const QVariant &value)
    {
        return {{u"persistent"_s, isPersistent}, {u"type"_s, type}, {u"value"_s, value}};
    }

    std::unique_ptr<Project> project;
    RuntimeConfiguration configuration;
};

QString engineController(const QList<CanParameter> &parameters, int priority = 3)
{
    CanParameterMap map;
    map.setPgn(61444);
    map.setPriority(priority);
    for (const CanParameter &parameter : parameters) {
        map.append(parameter);
    }
    return map.toTerms().toString();
}

} // namespace

TEST_F(RuntimeConfigurationTest, VariablesAreStoredUnderTheirNames)
{
    addVariable(u"NumberVariable"_s, u"speed"_s, {{u"value"_s, u"1450"_s}, {u"persistent"_s, u"true"_s}});
    addVariable(u"NumberVariable"_s, u"level"_s, {{u"value"_s, u"62.5"_s}});
    addVariable(u"NumberVariable"_s, u"broken"_s, {{u"value"_s, u"much"_s}});
    addVariable(u"BooleanVariable"_s, u"running"_s, {{u"value"_s, u"true"_s}});
    addVariable(u"StringVariable"_s, u"station"_s, {{u"value"_s, u"Nord \u00e4"_s}});
    addVariable(u"ColorVariable"_s, u"lamp"_s, {{u"value"_s, u"#FF2E8B57"_s}});
    addVariable(u"FtpVariable"_s, u"upload"_s, {{u"host"_s, u"files.example"_s}});
    addVariable(
        u"AutoSettingVariable"_s, u"look"_s,
        {{u"typeOfObject"_s, u"Rectangle"_s}, {u"value"_s, u"<0308Main.box.color><0308Main.b.color>"_s}});
    for (const QString &elsewhere :
         {u"MappingVariable"_s, u"LogVariable"_s, u"CANVariable"_s, u"BACnetDevice"_s, u"BACnetObject"_s}) {
        addVariable(elsewhere, u"not"_s + elsewhere, {});
    }
    const QVariantMap expected{
        {u"speed"_s, record(true, 2, 1450)},
        {u"level"_s, record(false, 3, 62.5F)},
        {u"broken"_s, record(false, 2, QVariant())},
        {u"running"_s, record(false, 1, true)},
        {u"station"_s, record(false, 4, u"Nord \u00e4"_s)},
        {u"lamp"_s, record(false, 6, QColor(0x2E, 0x8B, 0x57))},
        {u"upload"_s, record(true, 7, QVariant())},
        {u"Rectangle.look"_s, record(false, 10, u"<0308Main.box.color><0308Main.b.color>"_s)},
    };
    const QVariantMap variables = collected().configMap().value(u"variables"_s).toMap();
    EXPECT_EQ(variables.keys(), expected.keys());
    EXPECT_EQ(variables, expected);
}

TEST_F(RuntimeConfigurationTest, TheDeviceStartsWithTheDefaultScreen)
{
    EXPECT_EQ(collected().configMap().value(u"defaultScreen"_s), QVariant(QString()));
    for (const QString &name : {u"Main"_s, u"Trends"_s}) {
        ASSERT_TRUE(project->addListPropertyItem(project->screens(), make(u"Screen"_s, name)));
    }
    EXPECT_EQ(collected().configMap().value(u"defaultScreen"_s), QVariant(u"qml_Main"_s));
    project->changePropertyValue(project->defaultScreen(),
                                 ObjectLinkInfo(u"Trends"_s, u"Project"_s, u"Screen"_s).toString());
    EXPECT_EQ(collected().configMap().value(u"defaultScreen"_s), QVariant(u"qml_Trends"_s));
    project->updateBuildVersion();
    EXPECT_EQ(collected().configMap().value(u"version"_s), QVariant(project->version()->valueString()));
    EXPECT_EQ(configuration.configMap().keys(),
              QStringList({u"comControlPassword"_s, u"defaultScreen"_s, u"reintializePassword"_s,
                           u"retreivePassword"_s, u"uploadPassword"_s, u"variables"_s, u"version"_s}));
}

TEST_F(RuntimeConfigurationTest, RequiredPasswordsAreHashed)
{
    const auto password = [this](const QString &key) {
        return collected().configMap().value(key).toString();
    };
    configure(u"password"_s, u"secret42"_s);
    configure(u"uploadPassword"_s, u"secret42"_s);
    EXPECT_EQ(password(u"retreivePassword"_s), QString());
    configure(u"enablePassword"_s, u"true"_s);
    configure(u"password"_s, u"secret42"_s);
    const QString hash = password(u"retreivePassword"_s);
    EXPECT_TRUE(hash.startsWith(u"$argon2id$v=19$"_s)) << qPrintable(hash);
    EXPECT_EQ(password(u"retreivePassword"_s), hash) << "two builds agree";
    EXPECT_EQ(password(u"uploadPassword"_s), QString());
    configure(u"enableUpload"_s, u"true"_s);
    configure(u"uploadPassword"_s, {});
    EXPECT_FALSE(password(u"uploadPassword"_s).isEmpty()) << "what is to ask never stands open";
    configure(u"uploadPassword"_s, u"secret42"_s);
    EXPECT_FALSE(password(u"uploadPassword"_s).isEmpty());
    EXPECT_NE(password(u"uploadPassword"_s), hash) << "that the two are the same is nobody's business";
    project->setIdName(u"Other Station"_s);
    EXPECT_NE(password(u"retreivePassword"_s), hash);
}

TEST_F(RuntimeConfigurationTest, CanVariablesOfOneGroupShareItsRecord)
{
    addVariable(u"CANVariable"_s, u"engine"_s,
                {{u"parameterMap"_s, engineController({{190, u"rpm"_s, 4, 1, 16, 0, 0, 8031.875, 0.125},
                                                       {899, {}, 1, 1, 4, 0, 0, 15, 1}})}});
    addVariable(u"CANVariable"_s, u"torque"_s,
                {{u"parameterMap"_s, engineController({{513, u"%"_s, 3, 1, 8, -125, -125, 125, 1}}, 6)}});
    addVariable(u"CANVariable"_s, u"unfinished"_s, {});
    const QVariantMap group{
        {u"pgn"_s, u"61444"_s},
        {u"priority"_s, u"3"_s},
        {u"sourceAddress"_s, u"0"_s},
        {u"dataCount"_s, u"3"_s},
        {u"idSPN|engine,1"_s, u"190"_s},
        {u"units|engine,1"_s, u"rpm"_s},
        {u"posByte|engine,1"_s, u"4"_s},
        {u"posBit|engine,1"_s, u"1"_s},
        {u"size|engine,1"_s, u"16"_s},
        {u"offset|engine,1"_s, u"0"_s},
        {u"rangeMin|engine,1"_s, u"0"_s},
        {u"rangeMax|engine,1"_s, u"8031.875"_s},
        {u"scaling|engine,1"_s, u"0.125"_s},
    };
    const QVariantMap can = collected().canMap();
    EXPECT_EQ(can.value(u"canIdInfo"_s),
              QVariant(QVariantMap{{u"217056256"_s, u"61444,0"_s}, {u"418382848"_s, u"61444,0"_s}}));
    const QVariantMap groups = can.value(u"pgnInfo"_s).toMap();
    EXPECT_EQ(groups.keys(), QStringList(u"61444,0"_s));
    const QVariantMap written = groups.value(u"61444,0"_s).toMap();
    for (auto entry = group.cbegin(); entry != group.cend(); ++entry) {
        EXPECT_EQ(written.value(entry.key()), entry.value()) << qPrintable(entry.key());
    }
    EXPECT_EQ(written.size(), 4 + 3 * 9);
    EXPECT_EQ(written.value(u"offset|torque,1"_s), QVariant(u"-125"_s));
}

TEST_F(RuntimeConfigurationTest, BACnetDevicesAndObjects)
{
    Common::BACDeviceInfo wanted;
    wanted.setObjectName(u"Boiler; 1"_s);
    wanted.setVendorIdentifier(260);
    addVariable(u"BACnetDevice"_s, u"boiler"_s,
                {{u"isLocal"_s, u"false"_s},
                 {u"objIdentifier"_s, u"17"_s},
                 {u"bacnetType"_s, u"BACnetMSTP"_s},
                 {u"macAddress"_s, u"0A"_s},
                 {u"reqProps"_s, wanted.toString()}});
    addVariable(u"BACnetDevice"_s, u"panel"_s, {{u"objIdentifier"_s, u"1234"_s}, {u"netNumber"_s, u"2"_s}});
    BACnetPropertyList properties;
    properties.append(
        {85, u"real"_s, {GeneralDataInfo::VariableValue, GeneralDataInfo::NumberData, u"level"_s}});
    properties.append(
        {28, u"character-string"_s, {GeneralDataInfo::ConstantValue, GeneralDataInfo::StringData, u"a;b"_s}});
    addVariable(u"BACnetObject"_s, u"levelObject"_s,
                {{u"objectID"_s, u"2,7"_s},
                 {u"bacnetObjName"_s, u"Level; well: 1"_s},
                 {u"properties"_s, properties.toTerms().toString()}});
    addVariable(u"BACnetObject"_s, u"unfinished"_s, {});
    const QVariantMap expected{
        {u"objId"_s, 1234},
        {u"bcType"_s, u"BACnetIP"_s},
        {u"netNum"_s, 2},
        {u"portNum"_s, 47808},
        {u"isLocal"_s, true},
        {u"isFixed"_s, true},
        {u"macAdd"_s, QString()},
        {u"ethrIP"_s, QString()},
        {u"objId|panel"_s, 1234},
        {u"objId|boiler"_s, 17},
        {u"bcType|boiler"_s, u"BACnetMSTP"_s},
        {u"isLocal|boiler"_s, false},
        {u"macAdd|boiler"_s, u"0A"_s},
        {u"objectName|boiler"_s, u"Boiler; 1"_s},
        {u"vendorIdentifier|boiler"_s, 260},
    };
    const QVariantMap devices = collected().bacnetMap().value(u"bacDevMap"_s).toMap();
    for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry) {
        EXPECT_EQ(devices.value(entry.key()), entry.value()) << qPrintable(entry.key());
    }
    EXPECT_EQ(devices.size(), 8 + 2 * (8 + 8));
    const QString term = properties.entries().last().source.toString();
    const QVariantMap objects{
        {u"levelObject"_s, u"present-value:real:0406level;description:character-string:%1;objectID:2,7;"
                           "objName:Level%3B well%3A 1"_s.replace(u"%1"_s, term)},
        {u"unfinished"_s, u";objectID:0,0;objName:"_s},
    };
    EXPECT_EQ(configuration.bacnetMap().value(u"bacObjMap"_s), QVariant(objects));
}

TEST_F(RuntimeConfigurationTest, WritesThreeFilesOrReportsWhyNot)
{
    addVariable(u"NumberVariable"_s, u"level"_s, {{u"value"_s, u"62.5"_s}});
    addVariable(u"StringVariable"_s, u"level10"_s, {{u"value"_s, u"x"_s}});
    addVariable(u"NumberVariable"_s, u"level9"_s, {{u"value"_s, u"y"_s}});
    // Two variables with the same name are a problem, but the file must remain readable.
    addVariable(u"NumberVariable"_s, u"level2"_s, {{u"value"_s, u"2"_s}});
    DesignerObject *twin = project->getItemInListProperty(u"variables"_s, u"level2"_s);
    twin->setIdName(u"level9"_s);
    ASSERT_EQ(twin->getIdName(), u"level9"_s);
    QTemporaryDir folder;
    QString error;
    ASSERT_TRUE(collected().write(folder.path(), &error)) << qPrintable(error);
    const std::pair<QString, QVariantMap> files[] = {{u"canConfig.kdrc"_s, configuration.canMap()},
                                                     {u"bacConfig.kdrc"_s, configuration.bacnetMap()},
                                                     {u"config.kdrc"_s, configuration.configMap()}};
    for (const auto &[name, map] : files) {
        bool ok = false;
        EXPECT_EQ(Common::FileHelper::fileToVariant(folder.filePath(name), &ok), QVariant(map));
        EXPECT_TRUE(ok) << qPrintable(name);
    }
    // The variables are written one at a time.
    const QString whole = folder.filePath(u"whole"_s);
    ASSERT_TRUE(Common::FileHelper::variantToFile(configuration.configMap(), whole, false));
    EXPECT_EQ(Common::FileHelper::md5(folder.filePath(u"config.kdrc"_s)), Common::FileHelper::md5(whole));
    EXPECT_FALSE(configuration.write(folder.filePath(u"missing"_s), &error));
    EXPECT_TRUE(error.contains(u"canConfig.kdrc"_s)) << qPrintable(error);
}

} // namespace Halvane::Corvex::Designer
