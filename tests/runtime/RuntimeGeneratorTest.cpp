// SPDX-License-Identifier: MIT
#include "corvex/common/zip/ZipHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/runtime/RuntimeGenerator.h"

#include "support/Model.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

class RuntimeGeneratorTest : public testing::Test
{
protected:
    RuntimeGeneratorTest()
    {
        DesignerFactory::createInstance(QCoreApplication::applicationDirPath());
        project.reset(make<Project>(u"Project"_s, u"Pump %1 Station"_s));
        project->changePropertyObjectValue(project->configuration(), make(u"Configuration"_s, u"VTR"_s));
        addScreen(u"Main"_s);
        addScreen(u"Trends"_s);
    }

    ~RuntimeGeneratorTest() override { generator.removeBuildFolder(); }

    void addScreen(const QString &name)
    {
        EXPECT_TRUE(project->addListPropertyItem(project->screens(), make(u"Screen"_s, name)));
    }

    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QByteArray read(const QString &name) const
    {
        return bytesOf(generator.buildFolder() + u"/project/"_s + name);
    }

    QStringList files() const
    {
        return QDir(generator.buildFolder() + u"/project"_s).entryList(QDir::Files, QDir::Name);
    }

    void write(const QString &name, const QByteArray &bytes)
    {
        QFile file(resources.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    std::unique_ptr<Project> project;
    RuntimeGenerator generator;
    QTemporaryDir resources;
};

} // namespace

TEST_F(RuntimeGeneratorTest, ABuildContainsScreensProjectAndResources)
{
    write(u"pump.png"_s, "png");
    generator.setResourceFolder(resources.path());
    const QString before = DesignerObject::toString(project.get());
    ASSERT_TRUE(generator.generate(project.get())) << qPrintable(generator.errorString());
    EXPECT_TRUE(QDir::isAbsolutePath(generator.buildFolder()));
    EXPECT_EQ(files(),
              QStringList({u"Project.kdproj.zip"_s, u"bacConfig.kdrc"_s, u"canConfig.kdrc"_s,
                           u"config.kdrc"_s, u"pump.png"_s, u"qml_Main.qml"_s, u"qml_Trends.qml"_s}));
    EXPECT_EQ(Common::ZipHelper::entryNames(generator.buildFolder() + u"/project/Project.kdproj.zip"_s),
              QStringList(u"Project.kdproj"_s));
    const QByteArray qml = read(u"qml_Main.qml"_s);
    EXPECT_TRUE(
        qml.startsWith("import QtQuick 1.1\r\nimport RuntimeObjects 2.0\r\nScreen {\r\n\tid: qml_Main\r\n"));
    EXPECT_EQ(qml.count('\n'), qml.count("\r\n"));
    EXPECT_EQ(DesignerObject::toString(project.get()), before) << "the project keeps its name";
}

TEST_F(RuntimeGeneratorTest, TheZippedProjectEqualsASaveUnderAnotherName)
{
    project->generateRuntimeFiles();
    const QString folder = project->runtimeGenerator().buildFolder() + u"/project"_s;
    ASSERT_TRUE(Common::ZipHelper::unzip(folder + u"/Project.kdproj.zip"_s, folder));
    const std::unique_ptr<DesignerObject> copy(DesignerObject::createCopy(project.get(), false));
    copy->setIdName(u"Project"_s);
    const QString saved = resources.filePath(u"saved"_s);
    ASSERT_TRUE(DesignerObject::saveToFile(copy.get(), saved));
    EXPECT_EQ(bytesOf(folder + u"/Project.kdproj"_s), bytesOf(saved)) << "an empty version is filled in both";
    project->runtimeGenerator().removeBuildFolder();
}

TEST_F(RuntimeGeneratorTest, TwoBuildsHaveTheSameBytesInDifferentFolders)
{
    ASSERT_TRUE(generator.generate(project.get()));
    const QString first = generator.buildFolder();
    const QStringList names = files();
    QList<QByteArray> bytes;
    for (const QString &name : names) {
        bytes.append(read(name));
    }
    ASSERT_TRUE(generator.generate(project.get()));
    EXPECT_NE(generator.buildFolder(), first);
    EXPECT_EQ(files(), names);
    for (qsizetype i = 0; i < names.size(); ++i) {
        EXPECT_EQ(read(names.at(i)), bytes.at(i)) << qPrintable(names.at(i));
    }
    QDir(first).removeRecursively();
}

TEST_F(RuntimeGeneratorTest, LinksOutOfTheProjectAreRefused)
{
    const QString images = resources.filePath(u"Images"_s);
    ASSERT_TRUE(QDir().mkpath(images));
    generator.setResourceFolder(images);
    write(u"shared.png"_s, "png");
    ASSERT_TRUE(QFile::link(u"../shared.png"_s, images + u"/pump.png"_s));
    ASSERT_TRUE(generator.generate(project.get())) << qPrintable(generator.errorString());
    EXPECT_EQ(read(u"pump.png"_s), "png");
    generator.removeBuildFolder();
    ASSERT_TRUE(QFile::link(QCoreApplication::applicationFilePath(), images + u"/secret.png"_s));
    EXPECT_FALSE(generator.generate(project.get()));
    EXPECT_TRUE(generator.errorString().contains(u"secret.png\" is a link to a file outside"_s))
        << qPrintable(generator.errorString());
}

TEST_F(RuntimeGeneratorTest, AFailedBuildLeavesNoFiles)
{
    const auto fails = [this] {
        const bool built = generator.generate(project.get());
        EXPECT_TRUE(generator.buildFolder().isEmpty());
        EXPECT_FALSE(generator.errorString().isEmpty());
        return !built;
    };
    write(u"qml_Main.qml"_s, "a resource that would overwrite a screen");
    generator.setResourceFolder(resources.path());
    EXPECT_TRUE(fails());
    generator.setResourceFolder({});
    addScreen(u"../escape"_s);
    EXPECT_TRUE(fails());
    project->changePropertyObjectValue(project->configuration(), nullptr, true);
    EXPECT_TRUE(fails());
}

} // namespace Halvane::Corvex::Designer
