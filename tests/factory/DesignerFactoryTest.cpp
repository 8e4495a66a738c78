// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/factory/CoreFactory.h"
#include "corvex/templates/Template.h"
#include "corvex/widgets/IconSet.h"

#include <QCoreApplication>
#include <QDir>

#include <gmock/gmock.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Collects warnings.
class Warnings
{
public:
    Warnings()
    {
        s_texts.clear();
        m_previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { s_texts.append(text); });
    }
    ~Warnings() { qInstallMessageHandler(m_previous); }

    static inline QStringList s_texts;

private:
    QtMessageHandler m_previous;
};

//! Lists one class in the three tables, configured by the test.
class OneClassFactory : public CoreFactory
{
public:
    QStringList names, bases, displays, creatables, editors;

    QStringList objectNames() const override { return names; }
    QMap<QString, QString> classBaseNames() const override { return toMap(bases); }
    QMap<QString, QString> classDisplayNames() const override { return toMap(displays); }
    QStringList creatableNames() const override { return creatables; }
    QStringList graphicsItemNames() const override { return {}; }
    QStringList editorNames() const override { return editors; }
    QStringList templateNames() const override { return {}; }
    QStringList wizardNames() const override { return {}; }

private:
    QMap<QString, QString> toMap(const QStringList &values) const
    {
        QMap<QString, QString> map;
        for (qsizetype i = 0; i < values.size(); ++i) {
            map.insert(names.value(i, u"Extra%1"_s.arg(i)), values.at(i));
        }
        return map;
    }
};

} // namespace

TEST(DesignerFactoryTest, AnInstanceNeedsAPathAndHasTheLibrarysClasses)
{
    EXPECT_FALSE(DesignerFactory::createInstance(u"/no/such/path"_s));
    ASSERT_TRUE(DesignerFactory::createInstance(QCoreApplication::applicationDirPath()));
    const DesignerFactory *factory = DesignerFactory::instance();
    EXPECT_EQ(factory->baseNameForClass(u"FunctionElement"_s), u"functionElememnt"_s);
    EXPECT_EQ(factory->classNameForBase(u"autoSaveVariable"_s), u"AutoSettingVariable"_s);
    EXPECT_EQ(factory->displayNameForClass(u"MappingVariable"_s), u"Modbus Map Variable"_s);
    EXPECT_EQ(factory->classNameForDisplay(u"FTP Variable"_s), u"FtpVariable"_s);
    for (const QString &name : factory->creatableNames()) {
        const std::unique_ptr<DesignerObject> object(factory->createObject(name));
        ASSERT_TRUE(object) << qPrintable(name);
        EXPECT_EQ(object->className(), name);
        EXPECT_EQ(object->parent(), QCoreApplication::instance());
        EXPECT_FALSE(object->getIdName().isEmpty()) << qPrintable(name);
    }
    const std::unique_ptr<Template> made(factory->createTemplate(u"ElementTemplate"_s));
    EXPECT_TRUE(made);
    EXPECT_EQ(factory->getObjectIcon(u"Robot"_s).deviceIndependentSize(), QSizeF(16, 16)) << "a letter";
    for (const QString &name : factory->objectNames() + factory->creatableNames()) {
        EXPECT_FALSE(IconSet::objectIcon({name}).isNull()) << qPrintable(name);
    }

    const Warnings warnings;
    EXPECT_FALSE(factory->createObject({}));
    EXPECT_FALSE(factory->createObject(u"Robot"_s));
    EXPECT_FALSE(factory->createGraphicsItem(u"GraphicsRectangle"_s, nullptr));
    EXPECT_FALSE(factory->createTemplate(u"Robot"_s));
    EXPECT_EQ(Warnings::s_texts, QStringList({u"Failed to create designer object \"\"."_s,
                                              u"Failed to create designer object \"Robot\"."_s,
                                              u"Failed to create graphics item \"GraphicsRectangle\"."_s,
                                              u"Failed to create template \"Robot\"."_s}));
}

TEST(DesignerFactoryTest, FactoriesWithBadOrTakenNamesAreRefused)
{
    const struct
    {
        QStringList names;
        QStringList bases;
        QStringList displays;
        QString warning;
    } cases[] = {
        {{u"Robot"_s}, {u"robot"_s}, {u"Robot"_s}, {}},
        {{u"Robot"_s},
         {u"robot"_s, u"robot2"_s},
         {u"Robot"_s},
         u"Mismatch items (class: 1, base: 2, display: 1)"_s},
        {{u"Screen"_s},
         {u"robot"_s},
         {u"Robot"_s},
         u"Class name 'Screen', base name 'robot', display name 'Robot' already exist."_s},
        {{u"Robot"_s},
         {u"screen"_s},
         {u"Robot"_s},
         u"Class name 'Robot', base name 'screen', display name 'Robot' already exist."_s},
    };
    for (const auto &[names, bases, displays, warning] : cases) {
        DesignerFactory::createInstance(QCoreApplication::applicationDirPath());
        OneClassFactory factory;
        factory.names = names;
        factory.bases = bases;
        factory.displays = displays;
        const Warnings warnings;
        EXPECT_EQ(DesignerFactory::instance()->registerFactory(&factory), warning.isEmpty());
        EXPECT_EQ(Warnings::s_texts, warning.isEmpty() ? QStringList() : QStringList(warning));
    }
    DesignerFactory::createInstance(QCoreApplication::applicationDirPath());
    OneClassFactory thief;
    thief.creatables = {u"Screen"_s};
    thief.editors = {u"ColorEditor"_s};
    const Warnings warnings;
    EXPECT_TRUE(DesignerFactory::instance()->registerFactory(&thief));
    EXPECT_EQ(Warnings::s_texts, QStringList({u"Unrecognized object \"Screen\"."_s,
                                              u"Unrecognized property editor \"ColorEditor\"."_s}));
}

TEST(DesignerFactoryTest, PluginsThatCannotBeUsedAreRefusedByName)
{
    const QDir plugins(QStringLiteral(CORVEX_PLUGIN_HOME "/Plugins/DesignerObjects"));
    QFile broken(plugins.filePath(u"broken.so"_s));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no library");
    broken.close();
    const Warnings warnings;
    EXPECT_TRUE(DesignerFactory::createInstance(QStringLiteral(CORVEX_PLUGIN_HOME)));
    const QStringList errors = DesignerFactory::instance()->pluginErrors();
    const QString throwing = plugins.filePath(u"ThrowingPlugin.so"_s);
    const QString foreign = plugins.filePath(u"ForeignPlugin.so"_s);
    EXPECT_THAT(errors,
                testing::UnorderedElementsAre(u"Failed to load plugin from "_s + broken.fileName(),
                                              u"Failed to load plugin from "_s + foreign,
                                              u"Failed to load plugin ThrowingPlugin from "_s + throwing));
    EXPECT_THAT(Warnings::s_texts, testing::Contains(u"An exception was thrown: no licence"_s));
    EXPECT_FALSE(qEnvironmentVariableIsSet("CORVEX_TEST_FOREIGN_CODE")) << "nothing of it has run";
}

TEST(DesignerFactoryTest, AnExceptionInAFactoryOnlyEndsTheCall)
{
    struct : OneClassFactory
    {
        QStringList wizardNames() const override
        {
            return throwsNames ? throw std::runtime_error("no names") : QStringList{u"RobotWizard"_s};
        }
        DesignerObject *createObject(const QString &, QObject *) override { throw 5; }
        Wizard *createWizard(const QString &) override { throw std::runtime_error("no wizard"); }
        bool throwsNames = true;
    } factory;
    factory.names = factory.bases = factory.displays = factory.creatables = {u"Robot"_s};
    DesignerFactory::createInstance(QCoreApplication::applicationDirPath());
    DesignerFactory *designer = DesignerFactory::instance();
    const Warnings warnings;
    EXPECT_FALSE(designer->registerFactory(&factory));
    EXPECT_FALSE(designer->objectNames().contains(u"Robot"_s)) << "nothing is left of it";
    factory.throwsNames = false;
    EXPECT_TRUE(designer->registerFactory(&factory));
    EXPECT_FALSE(designer->createObject(u"Robot"_s));
    EXPECT_FALSE(designer->createWizard(u"RobotWizard"_s));
    EXPECT_EQ(Warnings::s_texts,
              QStringList(
                  {u"An exception was thrown: no names"_s, u"Failed to create designer object \"Robot\"."_s,
                   u"An exception of an unknown kind was thrown."_s,
                   u"Failed to create wizard \"RobotWizard\"."_s, u"An exception was thrown: no wizard"_s}));
}

} // namespace Halvane::Corvex::Designer
