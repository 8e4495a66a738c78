// SPDX-License-Identifier: MIT
#include "corvex/common/ConfigurationInfo.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/ChannelList.h"
#include "corvex/hardware/Configuration.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Halvane::Corvex::Common::ConfigurationInfo;
using Halvane::Corvex::Common::LocalizationHelper;

namespace Halvane::Corvex::Designer {

namespace {

class ConfigurationTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(DesignerFactory::createInstance(QDir::tempPath())); }

    static std::unique_ptr<Configuration> make(const QString &model)
    {
        std::unique_ptr<Configuration> configuration(
            static_cast<Configuration *>(DesignerFactory::instance()->createObject(u"Configuration"_s)));
        configuration->setParent(nullptr);
        configuration->setIdName(model);
        return configuration;
    }
    //! With every channel in use.
    static std::unique_ptr<Configuration> makeBusy(const QString &model)
    {
        auto configuration = make(model);
        set(*configuration, configuration->screenSize(), u"height: 272; width: 480;"_s);
        set(*configuration, configuration->pwmOutputs(), u"OUTPUT, OUTPUT, OUTPUT, OUTPUT"_s);
        set(*configuration, configuration->digitalInputOutputs(),
            u"INPUT, INPUT, INPUT, INPUT, OUTPUT, OUTPUT, OUTPUT, OUTPUT"_s);
        return configuration;
    }
    static void set(Configuration &configuration, const SharedProperty &property, const QString &value)
    {
        ASSERT_TRUE(configuration.changePropertyValue(property, value));
        ASSERT_EQ(property->valueString(), value);
    }
    static bool isVisible(const SharedProperty &property)
    {
        return property->editorParameters().value(u"visible"_s, true).toBool();
    }
};

TEST_F(ConfigurationTest, KeepsInvalidValuesMarked)
{
    const auto configuration = makeBusy(u"VTR 1"_s);
    EXPECT_TRUE(configuration->validate());
    set(*configuration, configuration->displayBrightness(), u"101"_s);
    set(*configuration, configuration->analogInputs(), u"OUTPUT"_s);
    set(*configuration, configuration->enablePassword(), u"true"_s);
    set(*configuration, configuration->enableUpload(), u"true"_s);
    EXPECT_EQ(configuration->validationErrors(),
              (QStringList{
                  u"Display Brightness: The brightness must be between 0% and 100% inclusive."_s,
                  u"Analog Input Channels: \"OUTPUT\" is not a valid analog channel signal type."_s,
                  u"Password :: Empty Password is Not Allowed"_s,
                  u"Password :: Empty Password is Not Allowed"_s,
              }));
    set(*configuration, configuration->password(), u"x"_s);
    set(*configuration, configuration->enableUpload(), u"false"_s);
    EXPECT_EQ(configuration->validationErrors().size(), 2);
}

TEST_F(ConfigurationTest, TheSwitchOfRS485OccupiesAndFreesItsPins)
{
    const QString eight = u"INPUT, INPUT, INPUT, INPUT, OUTPUT, OUTPUT, OUTPUT, "_s;
    const struct
    {
        QString model, pwm, digital;
    } rows[] = {
        {u"VTR 50-K"_s, u"UNUSED, UNUSED, UNUSED, OUTPUT"_s, eight + u"UNUSED"_s},
        {u"VTR 50-k"_s, u"OUTPUT, OUTPUT, OUTPUT, OUTPUT"_s, eight + u"OUTPUT"_s},
    };
    for (const auto &row : rows) {
        const auto configuration = makeBusy(row.model);
        const auto announced = configuration->followingChanges(*configuration->enableRS485(), u"true"_s);
        set(*configuration, configuration->enableRS485(), u"true"_s);
        for (const auto &[property, value] : announced) {
            EXPECT_EQ(property->valueString(), value);
        }
        EXPECT_EQ(configuration->serialRS485Ports()->valueString(), u"RECEIVE, SEND, UNUSED, UNUSED"_s);
        EXPECT_TRUE(isVisible(configuration->serialRS485Ports()));
        EXPECT_EQ(configuration->pwmOutputs()->valueString(), row.pwm);
        EXPECT_EQ(configuration->digitalInputOutputs()->valueString(), row.digital);
        EXPECT_EQ(configuration->validationErrors(),
                  QStringList{u"RS485 Channel settings: Channel for direction is not set."_s});

        set(*configuration, configuration->serialRS485Ports(), u"RECEIVE,SEND,UNUSED,DIRECTION"_s);
        EXPECT_TRUE(configuration->isValid());
        set(*configuration, configuration->pwmOutputs(), u"SEND, UNUSED, UNUSED, OUTPUT"_s);
        set(*configuration, configuration->enableRS485(), u"false"_s);
        EXPECT_EQ(configuration->serialRS485Ports()->valueString(), u"UNUSED, UNUSED, UNUSED, UNUSED"_s);
        EXPECT_FALSE(isVisible(configuration->serialRS485Ports()));
        EXPECT_EQ(configuration->pwmOutputs()->valueString(), u"UNUSED, UNUSED, UNUSED, OUTPUT"_s);
        EXPECT_TRUE(configuration->isValid());
    }
}

TEST_F(ConfigurationTest, SharedPinsAreValidatedAgainAfterRelatedChanges)
{
    const auto configuration = makeBusy(u"VTR 50-K"_s);
    set(*configuration, configuration->enableRS485(), u"true"_s);
    set(*configuration, configuration->serialRS485Ports(), u"RECEIVE, SEND, UNUSED, DIRECTION"_s);
    set(*configuration, configuration->pwmOutputs(), u"OUTPUT, UNUSED, OUTPUT, UNUSED"_s);
    EXPECT_FALSE(configuration->pwmOutputs()->isValid());
    EXPECT_FALSE(configuration->serialRS485Ports()->isValid());
    set(*configuration, configuration->serialRS485Ports(), u"UNUSED, RECEIVE, SEND, DIRECTION"_s);
    EXPECT_FALSE(configuration->pwmOutputs()->isValid());
    configuration->setIdName(u"VTR 50-S"_s);
    EXPECT_TRUE(configuration->isValid()) << "the pins of that model are not shared";
}

TEST_F(ConfigurationTest, TheSwitchOfChipSelect)
{
    const auto configuration = makeBusy(u"VTR 1"_s);
    EXPECT_FALSE(isVisible(configuration->SPIChipSelect()));
    set(*configuration, configuration->enableSPIChipSelect(), u"true"_s);
    EXPECT_TRUE(isVisible(configuration->SPIChipSelect()));
    EXPECT_EQ(configuration->SPIChipSelect()->valueString(),
              u"UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, UNUSED, CSPIN"_s);
    set(*configuration, configuration->digitalInputOutputs(), u"INPUT, CSPIN"_s);
    set(*configuration, configuration->enableSPIChipSelect(), u"false"_s);
    EXPECT_FALSE(isVisible(configuration->SPIChipSelect()));
    EXPECT_EQ(configuration->digitalInputOutputs()->valueString(), u"INPUT, UNUSED"_s);
    EXPECT_FALSE(ChannelList(configuration->SPIChipSelect()->valueString()).isAnyUsed());
}

TEST_F(ConfigurationTest, AFileIsReadUnchanged)
{
    // Conflicting channels are reported, not changed without notice.
    const auto configuration = makeBusy(u"VTR 50-K"_s);
    set(*configuration, configuration->enableRS485(), u"true"_s);
    set(*configuration, configuration->serialRS485Ports(), u"RECEIVE,SEND, DIRECTION, UNUSED"_s);
    set(*configuration, configuration->pwmOutputs(), u"OUTPUT, OUTPUT, OUTPUT, OUTPUT"_s);
    const QString text = DesignerObject::toString(configuration.get());
    const std::unique_ptr<DesignerObject> copy(DesignerObject::createFromString(text));
    ASSERT_TRUE(copy);
    EXPECT_EQ(DesignerObject::toString(copy.get()), text);
    EXPECT_EQ(copy->validationErrors(), configuration->validationErrors());
    EXPECT_TRUE(isVisible(copy->getProperty(u"serialRS485Ports")));
    EXPECT_TRUE(isVisible(copy->getProperty(u"digitalInputOutputs")));
    EXPECT_FALSE(isVisible(copy->getProperty(u"password")));
    EXPECT_FALSE(isVisible(copy->getProperty(u"alarmOutputs"))) << "the model has none";
}

TEST_F(ConfigurationTest, TheRecordContainsEverything)
{
    const auto configuration = makeBusy(u"VTR 50-K"_s);
    set(*configuration, configuration->enableRS485(), u"true"_s);
    set(*configuration, configuration->enableSPIChipSelect(), u"true"_s);
    set(*configuration, configuration->serialRS485Ports(), u"RECEIVE, SEND, UNUSED, DIRECTION"_s);
    set(*configuration, configuration->pwmOutputs(), u"SEND, UNUSED, UNUSED, OUTPUT"_s);
    set(*configuration, configuration->pwmFrequency(), u"1000, 0.1, 16777216, 0"_s);
    set(*configuration, configuration->serialCOMPorts(), u"COMTYPE, UNAVAILABLE"_s);
    set(*configuration, configuration->canbusPorts(), u"COMTYPE"_s);
    set(*configuration, configuration->displayBrightness(), u"55"_s);
    set(*configuration, configuration->enablePassword(), u"true"_s);
    set(*configuration, configuration->password(), u"a, b|%1"_s);
    set(*configuration, configuration->uploadPassword(), u"not asked for"_s);

    const ConfigurationInfo info = configuration->toConfigurationInfo();
    EXPECT_EQ(info.displayBrightness(), 55);
    EXPECT_EQ(info.displaySize(), QSize(480, 272));
    EXPECT_EQ(info.colorDepth(), 32);
    EXPECT_EQ(info.pwmFrequency(), (QMap<int, float>{{1, 1000.0F}, {2, 0.1F}, {3, 16777216.0F}, {4, 0.0F}}));
    EXPECT_EQ(info.password(), u"a, b|%1"_s);
    EXPECT_TRUE(info.uploadPassword().isEmpty());

    const auto other = make(u"VTR 50-K"_s);
    other->setConfigurationInfo(ConfigurationInfo());
    EXPECT_EQ(other->displayBrightness()->valueString(), u"100"_s);
    other->setConfigurationInfo(info);
    EXPECT_TRUE(other->toConfigurationInfo() == info);
    EXPECT_EQ(other->pwmFrequency()->valueString(), configuration->pwmFrequency()->valueString());
    EXPECT_EQ(other->pwmOutputs()->valueString(), configuration->pwmOutputs()->valueString());

    set(*other, other->pwmFrequency(), u"fast, nan, 5"_s);
    EXPECT_EQ(other->toConfigurationInfo().pwmFrequency(), (QMap<int, float>{{1, 0.F}, {2, 0.F}, {3, 5.F}}));
    set(*other, other->screenSize(), u"height: 100000000000000000000; width: 480;"_s);
    EXPECT_EQ(other->toConfigurationInfo().displaySize(), QSize(480, 1000000000));
}

TEST_F(ConfigurationTest, ANewerModelKeepsTheUsersChannels)
{
    const auto project = makeBusy(u"VTR 1"_s);
    set(*project, project->enableRS485(), u"true"_s);
    const auto model = makeBusy(u"VTR 1"_s);
    set(*model, model->screenSize(), u"height: 800; width: 1280;"_s);
    set(*model, model->pwmOutputs(), u"OUTPUT, OUTPUT, OUTPUT, OUTPUT, OUTPUT"_s);
    set(*model, model->digitalInputOutputs(),
        u"OUTPUT, OUTPUT, OUTPUT, OUTPUT, INPUT, INPUT, INPUT, INPUT"_s);
    const QString digital = project->digitalInputOutputs()->valueString();
    project->updateFrom(*model);
    EXPECT_EQ(project->screenSize()->valueString(), model->screenSize()->valueString());
    EXPECT_EQ(project->pwmOutputs()->valueString(), model->pwmOutputs()->valueString());
    EXPECT_EQ(project->digitalInputOutputs()->valueString(), digital);
    EXPECT_EQ(project->serialRS485Ports()->valueString(), u"RECEIVE, SEND, UNUSED, UNUSED"_s);
}

TEST_F(ConfigurationTest, ShowsTheDescriptionInTheUsersLanguage)
{
    const QTemporaryDir folder;
    const QString before = LocalizationHelper::currentLocale();
    ASSERT_TRUE(make(u"VTR 1"_s)->createFile(folder.path()));
    const QDir model(folder.filePath(u"VTR 1"_s));
    const auto put = [&](const QString &locale, const QByteArray &bytes) {
        ASSERT_TRUE(model.mkpath(u"Localizations/"_s + locale));
        QFile file(model.filePath(u"Localizations/"_s + locale + u"/Localizable.strings"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    };
    put(u"de_DE"_s, "\"LOCALIZED_DESCRIPTION\" = \"Anzeige\"; \"LOCALIZED_URL\" = \"x.de\";");
    put(u"fr"_s, "\"LOCALIZED_DESCRIPTION\" = \"Afficheur\";");
    put(u"it_IT"_s, "\"LOCALIZED_DESCRIPTION\" = ");
    const struct
    {
        QString locale, description, url;
    } rows[] = {
        {u"de_DE"_s, u"Anzeige"_s, u"x.de"_s},
        {u"fr_CA"_s, u"Afficheur"_s, {}}, // from the language
        {u"it_IT"_s, {}, {}},             // cannot be read
        {u"es_ES"_s, {}, {}},
        {u"C"_s, {}, {}},
    };
    for (const auto &row : rows) {
        LocalizationHelper::setCurrentLocale(row.locale);
        const auto loaded = make(u"other"_s);
        ASSERT_TRUE(loaded->loadFile(model.filePath(u"config.xml"_s)));
        EXPECT_EQ(loaded->description()->valueString(), row.description) << qPrintable(row.locale);
        EXPECT_EQ(loaded->url()->valueString(), row.url) << qPrintable(row.locale);
    }
    LocalizationHelper::setCurrentLocale(u"de_DE"_s);
    const auto fresh = make(u"VTR 1"_s);
    fresh->setFileFields(folder.path(), u"VTR 1"_s, u"config.xml"_s);
    EXPECT_EQ(fresh->description()->valueString(), QString()) << "it has not been loaded";
    LocalizationHelper::setCurrentLocale(before);
}

} // namespace

} // namespace Halvane::Corvex::Designer
