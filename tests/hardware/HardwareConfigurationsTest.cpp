// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/ChannelList.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

class HardwareConfigurationsTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(DesignerFactory::createInstance(QDir::tempPath())); }
    void TearDown() override { delete HardwareConfigurations::instance(); }

    static QByteArray content(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    //! Below the folder "Configurations".
    void put(const QString &path, const QByteArray &bytes) const
    {
        const QString full = m_folder.filePath(u"Configurations/"_s + path);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(full).path()));
        QFile file(full);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    static QByteArray model(const QByteArray &name, const QByteArray &more = {})
    {
        return "<Configuration><Properties><Property name=\"id\" value=\"name: " + name + ";\"/>" + more
               + "</Properties></Configuration>";
    }
    static QStringList installedModels()
    {
        QStringList names;
        for (const Configuration *configuration :
             HardwareConfigurations::instance()->installed()->configurations()) {
            names.append(configuration->getIdName());
        }
        return names;
    }

    QTemporaryDir m_folder;
};

TEST_F(HardwareConfigurationsTest, RequiresTheFolder)
{
    EXPECT_FALSE(HardwareConfigurations::createInstance(m_folder.filePath(u"missing"_s)));
    EXPECT_FALSE(HardwareConfigurations::createInstance(m_folder.path()));
    EXPECT_FALSE(HardwareConfigurations::instance());
    put(u"VTR 1/config.xml"_s, model("VTR 1"));
    EXPECT_TRUE(HardwareConfigurations::createInstance(m_folder.path()));
    EXPECT_EQ(HardwareConfigurations::instance()->installed()->configurationsPath(),
              m_folder.filePath(u"Configurations"_s));
}

TEST_F(HardwareConfigurationsTest, SkipsFilesThatAreNotModels)
{
    put(u"VTR 10/config.xml"_s, model("VTR 10"));
    put(u"makers/halvane/VTR 2/config.xml"_s, model("VTR 2"));
    put(u"Twin/config.xml"_s, model("VTR 2", "<Property name=\"colorDepth\" value=\"1\"/>"));
    put(u"Cut/config.xml"_s, model("VTR 3").chopped(10));
    put(u"Bomb/config.xml"_s, "<!DOCTYPE a [<!ENTITY b \"c\">]><Configuration/>");
    put(u"Huge/config.xml"_s, model("VTR 4") + QByteArray(2 << 20, ' '));
    put(u"Other/config.xml"_s, "<Screen/>");
    put(u"Empty/config.xml"_s, "");
    put(u"VTR 5/settings.xml"_s, model("VTR 5"));
    ASSERT_TRUE(QFile::link(m_folder.path(), m_folder.filePath(u"Configurations/loop"_s)));
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, m_folder.filePath(u"Configurations/Other/zero config.xml"_s)));
    ASSERT_TRUE(HardwareConfigurations::createInstance(m_folder.path()));
    EXPECT_EQ(installedModels(), (QStringList{u"VTR 2"_s, u"VTR 10"_s}));
    ConfigurationContainer *installed = HardwareConfigurations::instance()->installed();
    EXPECT_EQ(installed->configuration(u"VTR 2"_s)->colorDepth()->valueString(), u"1"_s) << "the first wins";
    EXPECT_EQ(installed->configuration(u"VTR 2"_s)->folderPath(),
              m_folder.filePath(u"Configurations/Twin"_s));

    ASSERT_TRUE(installed->loadDirectory(m_folder.path()));
    EXPECT_EQ(installedModels().size(), 2) << "loading again replaces what was loaded";
}

TEST_F(HardwareConfigurationsTest, FindsAModelForAProject)
{
    const auto listing = [](const QByteArray &models) {
        return "<Property name=\"compatibleModels\" value=\"" + models + "\"/>";
    };
    put(u"a/config.xml"_s, model("VTR 1", listing("VTR old")));
    put(u"b/config.xml"_s, model("VTR 2"));
    put(u"c/config.xml"_s, model("VTR 3"));
    ASSERT_TRUE(HardwareConfigurations::createInstance(m_folder.path()));
    const ConfigurationContainer *installed = HardwareConfigurations::instance()->installed();
    const struct
    {
        QByteArray wanted, compatible;
        QString found, error;
    } rows[] = {
        {"VTR 2", "VTR 3", u"VTR 2"_s, {}},
        {"VTR x", "VTR y | VTR 3 | VTR 2", u"VTR 3"_s, {}},
        {"VTR old", "", u"VTR 1"_s, {}},
        {"VTR %1", "VTR y", {}, u"The device model \"VTR %1\" is not available."_s},
    };
    for (const auto &row : rows) {
        const std::unique_ptr<DesignerObject> wanted(
            DesignerObject::createFromString(QString::fromUtf8(model(row.wanted, listing(row.compatible)))));
        QString error;
        const Configuration *found = installed->match(static_cast<Configuration *>(wanted.get()), &error);
        EXPECT_EQ(found ? found->getIdName() : QString(), row.found) << row.wanted.constData();
        EXPECT_EQ(error, row.error);
    }
    QString error;
    EXPECT_FALSE(installed->match(nullptr, &error));
    EXPECT_EQ(error, u"No valid configuration can be found."_s);
}

TEST_F(HardwareConfigurationsTest, TheInstalledModels)
{
    ASSERT_TRUE(HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA)));
    const QList<Configuration *> models = HardwareConfigurations::instance()->installed()->configurations();
    EXPECT_GE(models.size(), 4);
    int withoutOutputs = 0;
    for (Configuration *configuration : models) {
        EXPECT_TRUE(configuration->isValid()) << qPrintable(configuration->validationErrors().join(u'\n'));
        EXPECT_EQ(configuration->subPath(), configuration->getIdName());
        const QTemporaryDir copies;
        const std::unique_ptr<DesignerObject> read(
            DesignerObject::createFromFile(configuration->fullFilePath()));
        const QString copy = copies.filePath(u"config.xml"_s);
        ASSERT_TRUE(DesignerObject::saveToFile(read.get(), copy));
        EXPECT_EQ(content(copy), content(configuration->fullFilePath())) << qPrintable(read->getIdName());
        const auto outputs = {configuration->alarmOutputs(), configuration->pwmOutputs(),
                              configuration->digitalInputOutputs()};
        withoutOutputs += std::ranges::none_of(outputs, [](const SharedProperty &property) {
            return ChannelList(property->valueString()).contains(Common::EnumHelper::OUTPUT);
        });
    }
    EXPECT_EQ(withoutOutputs, 1);
    EXPECT_TRUE(HardwareConfigurations::instance()->installed()->configuration(u"VTR 50-K"_s));
}

} // namespace

} // namespace Halvane::Corvex::Designer
