// SPDX-License-Identifier: MIT
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/hardware/HardwareConfigurations.h"

#include "ProjectFixture.h"
#include "support/FullDisk.h"

#include <QAction>
#include <QIcon>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using ProjectTest = Test::ProjectFixture;

TEST_F(ProjectTest, ASavedProjectReloadsAndSavesTheSameBytes)
{
    const auto project = makeProject(u"Pumps %1 {2}"_s);
    EXPECT_FALSE(project->saveFile()) << "there is no file yet";
    ASSERT_TRUE(project->createFile(path())) << qPrintable(project->fileError());
    const QString file = path(u"Pumps %1 {2}/Pumps %1 {2}.kdproj"_s);
    EXPECT_EQ(project->fullFilePath(), file);
    EXPECT_FALSE(read(file).contains("\"variables\"")) << "empty lists are left out";
    EXPECT_TRUE(project->convertToString(true, true).contains("\"variables\""_L1));

    add(*project, project->variables(), u"NumberVariable"_s, u"speed10"_s);
    add(*project, project->variables(), u"NumberVariable"_s, u"speed2"_s);
    addImage(*project, u"b.png"_s);
    ASSERT_TRUE(project->saveFile());
    const QByteArray bytes = read(file);

    const auto loaded = makeEmptyProject();
    ASSERT_TRUE(loaded->loadFile(file)) << qPrintable(loaded->fileError());
    EXPECT_TRUE(loaded->readNotes().isEmpty());
    EXPECT_EQ(loaded->getIdName(), u"Pumps %1 {2}"_s);
    EXPECT_EQ(loaded->variables()->listItemNames(), QStringList({u"speed2"_s, u"speed10"_s}));
    EXPECT_EQ(loaded->configurationObject()->getIdName(), u"VTR 50-K"_s);
    EXPECT_EQ(loaded->screens()->getListItemAtIndex(0)->project(), loaded.get());
    EXPECT_EQ(loaded->buildTag(), u"Pumps %1 {2}-4.0.0"_s);
    EXPECT_EQ(loaded->designerVersion()->valueString(), u"4.0.0"_s);
    ASSERT_TRUE(loaded->saveFile());
    EXPECT_EQ(read(file), bytes);
    EXPECT_EQ(filesIn(path()),
              QStringList({u"Pumps %1 {2}/Images/b.png"_s, u"Pumps %1 {2}/Pumps %1 {2}.kdproj"_s}));
}

TEST_F(ProjectTest, OnlyNamesValidOnEverySystemBecomeFiles)
{
    const QString longest(248, u'p');
    for (const QString &name : {u"%1"_s, u"a.b {c}"_s, u"P\u00fcmpe"_s, u"aux_1"_s, longest}) {
        const auto project = makeProject(name);
        EXPECT_TRUE(project->idProperty()->isValid()) << qPrintable(project->idProperty()->errorString());
        EXPECT_TRUE(project->createFile(path())) << qPrintable(project->fileError());
    }
    const QTemporaryDir untouched;
    for (const QString &name :
         {u"p"_s, u"say \"hi\""_s, u"a<b"_s, u"two\nlines"_s, u"\U0001F4A7 pumps"_s, u"../out"_s, u".."_s,
          u".pumps"_s, u"AUX"_s, u"com1.x"_s, QString(longest + u'p')}) {
        const auto project = makeProject(name);
        EXPECT_FALSE(project->idProperty()->isValid()) << qPrintable(name);
        EXPECT_EQ(project->getIdName(), name) << "a bad name is kept and marked";
        EXPECT_FALSE(project->createFile(untouched.path())) << qPrintable(name);
        EXPECT_FALSE(project->fileError().isEmpty()) << qPrintable(name);
    }
    EXPECT_TRUE(QDir(untouched.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));

    const auto twice = makeProject(u"%1"_s);
    EXPECT_FALSE(twice->createFile(path())) << "nothing that is there is written over";
    const auto incomplete = makeEmptyProject(u"Incomplete"_s);
    EXPECT_FALSE(incomplete->createFile(path()));
    EXPECT_TRUE(incomplete->fileError().contains(u"configuration"_s)) << qPrintable(incomplete->fileError());
    EXPECT_FALSE(QFileInfo::exists(path(u"Incomplete"_s)));
    EXPECT_TRUE(incomplete->version()->valueString().isEmpty());
}

TEST_F(ProjectTest, LoadingReplacesAllContents)
{
    const auto source = makeProject();
    ASSERT_TRUE(source->createFile(path()));
    QByteArray bytes = read(source->fullFilePath());
    const QString file = path(u"Other/Other.kdproj"_s);
    write(file, bytes.replace(source->version()->valueString().toUtf8(), ""));

    const auto project = makeProject(u"Before"_s);
    add(*project, project->variables(), u"NumberVariable"_s, u"stale"_s);
    project->changePropertyValue(project->defaultScreen(), u"objectId: Main; scopeType: Project;"_s);
    ASSERT_TRUE(project->loadFile(file)) << qPrintable(project->fileError());
    EXPECT_EQ(project->variables()->listItemCount(), 0);
    EXPECT_EQ(project->screens()->listItemNames(), QStringList(u"Main"_s));
    EXPECT_EQ(project->defaultScreen()->valueString(), source->defaultScreen()->valueString());
    EXPECT_EQ(project->buildTag(), u"Pumps-4.0.0"_s) << "an empty version asks for a build tag";
    EXPECT_EQ(project->subPath(), u"Other"_s) << "the file stays where it is, whatever the project is called";

    write(file, bytes.replace("name=\"version\" value=\"\"", "name=\"version\" value=\"as it stands\""));
    ASSERT_TRUE(project->loadFile(file));
    EXPECT_EQ(project->version()->valueString(), u"as it stands"_s);
    ASSERT_TRUE(project->saveFile());
    EXPECT_EQ(read(file).count("as it stands"), 1);
}

TEST_F(ProjectTest, AnUnreadableFileIsReportedAndNeverWritten)
{
    const auto source = makeProject();
    ASSERT_TRUE(source->createFile(path()));
    const QByteArray good = read(source->fullFilePath());
    const struct
    {
        const char *what;
        QByteArray bytes;
    } cases[] = {
        {"empty", ""},
        {"no XML", "screen 1"},
        {"cut off", good.first(good.size() / 2)},
        {"another root", QByteArray(good).replace("Project>", "Screen>")},
        {"not UTF-8", QByteArray(good).replace("Pumps", "P\xfcmps")},
    };
    const QString file = path(u"Bad/Bad.kdproj"_s);
    for (const auto &[what, bytes] : cases) {
        write(file, bytes);
        const auto project = makeProject();
        EXPECT_FALSE(project->loadFile(file)) << what;
        EXPECT_TRUE(project->fileError().startsWith(file + u':')) << what << qPrintable(project->fileError());
        EXPECT_FALSE(project->saveFile()) << what;
        EXPECT_EQ(read(file), bytes) << what;
    }
    const auto project = makeProject(u"Kept"_s);
    EXPECT_FALSE(project->loadFile(path(u"missing.kdproj"_s)));
    EXPECT_FALSE(project->loadFile(path()));
    EXPECT_EQ(project->getIdName(), u"Kept"_s) << "nothing was read";
}

TEST_F(ProjectTest, ObjectsOfUnknownClassesAreWrittenBack)
{
    const auto source = makeProject();
    add(*source, source->variables(), u"NumberVariable"_s, u"speed"_s);
    ASSERT_TRUE(source->createFile(path()));
    const QString file = source->fullFilePath();
    const QByteArray bytes = read(file).replace("NumberVariable>", "RobotVariable>");
    write(file, bytes);

    const auto project = makeEmptyProject();
    ASSERT_TRUE(project->loadFile(file));
    ASSERT_EQ(project->readNotes().size(), 1);
    EXPECT_EQ(project->readNotes().front().kind, ReadNote::Kept);
    EXPECT_EQ(project->variables()->listItemCount(), 0);
    ASSERT_TRUE(project->saveFile());
    EXPECT_EQ(read(file), bytes) << "a list is no empty list while it keeps something";

    const auto other = makeProject(u"Other"_s);
    ASSERT_TRUE(other->createFile(path()));
    const QByteArray otherBytes = read(other->fullFilePath());
    ASSERT_TRUE(project->loadFile(other->fullFilePath()));
    ASSERT_TRUE(project->saveFile());
    EXPECT_EQ(read(other->fullFilePath()), otherBytes) << "what one file kept gets into no other";
}

TEST_F(ProjectTest, AFullDiskLeavesTheOldFileUnchanged)
{
    const auto project = makeProject();
    ASSERT_TRUE(project->createFile(path()));
    const QStringList files = filesIn(path());
    const QByteArray bytes = read(project->fullFilePath());
    project->changePropertyValue(project->designerVersion(), u"3.0"_s);
    for (int i = 0; i < 100; ++i) {
        add(*project, project->variables(), u"NumberVariable"_s, u"v%1"_s.arg(i));
    }
    {
        const FullDisk disk(rlim_t(bytes.size()) + 1000);
        EXPECT_FALSE(project->saveFile());
        EXPECT_FALSE(project->fileError().isEmpty());
        EXPECT_EQ(project->designerVersion()->valueString(), u"3.0"_s);
        EXPECT_FALSE(project->createFileCopy(path(), u"Copy"_s));
        EXPECT_FALSE(makeProject(QString(200, u'x'))->createFile(path(u"nowhere"_s)));
    }
    EXPECT_EQ(filesIn(path()), files);
    EXPECT_EQ(read(project->fullFilePath()), bytes);
    EXPECT_TRUE(project->saveFile());
}

TEST_F(ProjectTest, TwoConcurrentSavesLeaveACompleteFile)
{
    const auto project = makeProject();
    for (int i = 0; i < 200; ++i) {
        add(*project, project->variables(), u"NumberVariable"_s, u"v%1"_s.arg(i));
    }
    ASSERT_TRUE(project->createFile(path()));
    const QByteArray bytes = read(project->fullFilePath());
    const pid_t child = fork();
    for (int i = 0; i < 20; ++i) {
        const bool saved = project->saveFile();
        if (child == 0 && !saved) {
            _exit(1);
        }
        EXPECT_TRUE(saved);
        EXPECT_EQ(read(project->fullFilePath()), bytes);
    }
    if (child == 0) {
        _exit(0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(read(project->fullFilePath()), bytes);
    EXPECT_EQ(filesIn(path()).size(), 1) << "no draft is left";
}

TEST_F(ProjectTest, ACopyHasEverythingAndReplacesNothing)
{
    const auto project = makeProject();
    ASSERT_TRUE(project->createFile(path()));
    addImage(*project, u"a.png"_s);
    add(*project, project->imageResources(), u"ImageResource"_s, u"missing.png"_s);
    write(path(u"Pumps/Preview.png"_s), "picture");
    write(path(u"Pumps/Images/nobody's.png"_s), "not of the project");
    QDir().mkdir(path(u"copies"_s));

    ASSERT_TRUE(project->createFileCopy(path(u"copies"_s))) << qPrintable(project->fileError());
    ASSERT_TRUE(project->createFileCopy(path(u"copies"_s), u"Fans"_s)) << qPrintable(project->fileError());
    EXPECT_EQ(filesIn(path(u"copies"_s)),
              QStringList({u"Fans/Fans.kdproj"_s, u"Fans/Images/a.png"_s, u"Fans/Preview.png"_s,
                           u"Pumps/Images/a.png"_s, u"Pumps/Preview.png"_s, u"Pumps/Pumps.kdproj"_s}));
    const auto fans = makeEmptyProject();
    ASSERT_TRUE(fans->loadFile(path(u"copies/Fans/Fans.kdproj"_s)));
    EXPECT_EQ(fans->getIdName(), u"Fans"_s);
    EXPECT_EQ(fans->buildTag(), u"Fans-4.0.0"_s);
    EXPECT_EQ(project->getIdName(), u"Pumps"_s);

    EXPECT_FALSE(project->createFileCopy(path(u"copies"_s), u"Fans"_s));
    EXPECT_FALSE(project->createFileCopy(path(u"copies"_s), u"../Fans"_s));
    EXPECT_FALSE(project->createFileCopy(path(u"nowhere"_s)));
    EXPECT_EQ(filesIn(path(u"copies"_s)).size(), 6);
}

TEST_F(ProjectTest, OnlyTheProjectsOwnFilesAreRenamedAndDeleted)
{
    const auto project = makeProject();
    ASSERT_TRUE(project->createFile(path()));
    ImageResource *image = addImage(*project, u"a.png"_s);
    write(path(u"Pumps/notes.txt"_s), "the user's");

    ASSERT_TRUE(project->renameFile(u"Pumps"_s, u"Fans"_s)) << qPrintable(project->fileError());
    EXPECT_EQ(image->filePath(), path(u"Fans/Images/a.png"_s));
    EXPECT_TRUE(image->isValid());
    project->setIdName(u"Fans"_s);
    ASSERT_TRUE(project->deleteFile()) << qPrintable(project->fileError());
    EXPECT_EQ(filesIn(path()), QStringList(u"Fans/notes.txt"_s));
    EXPECT_FALSE(QFileInfo::exists(path(u"Fans/Images"_s)));
    EXPECT_FALSE(project->deleteFile());
}

TEST_F(ProjectTest, NameAndVersionAreFoundWithoutReadingTheRest)
{
    const auto project = makeProject();
    ASSERT_TRUE(project->createFile(path()));
    const QByteArray bytes = read(project->fullFilePath());
    const struct
    {
        const char *what;
        QByteArray bytes;
        bool isProject;
    } cases[] = {
        {"whole", bytes, true},
        {"nothing good behind them", bytes.first(bytes.indexOf("configuration")) + "\"<<<", true},
        {"without a version",
         "<Project><Properties><Property name='id' value='name: P;'/></Properties></Project>", true},
        {"cut off before", bytes.first(bytes.indexOf("version\" value")), false},
        {"another root", "<Screen><Properties><Property name='id' value='name: P;'/></Properties></Screen>",
         false},
        {"empty", "", false},
    };
    const QString file = path(u"probe.kdproj"_s);
    for (const auto &[what, content, isProject] : cases) {
        write(file, content);
        QString id;
        QString version;
        EXPECT_EQ(Project::getFileIdAndVersion(file, &id, &version), isProject) << what;
        EXPECT_EQ(id.contains(u"name: P"_s), isProject) << what;
        EXPECT_EQ(version, Project::getFileVersion(file)) << what;
    }
    EXPECT_EQ(Project::getFileVersion(project->fullFilePath()), project->version()->valueString());
    EXPECT_EQ(Project::getFileVersion(path(u"missing"_s)), QString());
}

TEST_F(ProjectTest, ScreensFollowTheConfiguration)
{
    const auto project = makeProject();
    DesignerObject *upright = add(*project, project->screens(), u"Screen"_s, u"Upright"_s);
    upright->changePropertyValue(upright->getProperty(u"orientation"), u"270"_s);
    const auto sizes = [&project] {
        QStringList texts;
        for (const DesignerObject *screen : project->screens()->listItems()) {
            texts.append(screen->getProperty(u"size")->valueString());
        }
        return texts;
    };
    EXPECT_EQ(sizes(), QStringList({u"height: 272; width: 480;"_s, u"height: 480; width: 272;"_s}));

    Configuration *old = project->configurationObject();
    auto *large = make<Configuration>(u"Configuration"_s, u"Large"_s);
    large->changePropertyValue(large->screenSize(), u"height: 800; width: 1280;"_s);
    ASSERT_TRUE(project->changePropertyObjectValue(project->configuration(), large));
    const QStringList expected{u"height: 800; width: 1280;"_s, u"height: 1280; width: 800;"_s};
    EXPECT_EQ(sizes(), expected);
    old->changePropertyValue(old->screenSize(), u"height: 1; width: 1;"_s);
    EXPECT_EQ(sizes(), expected) << "the old configuration has no say any more";
    delete old;
    large->changePropertyValue(large->screenSize(), u"height: 600; width: 800;"_s);
    EXPECT_EQ(sizes(), QStringList({u"height: 600; width: 800;"_s, u"height: 800; width: 600;"_s}));
}

TEST_F(ProjectTest, TheConfigurationIsUpdatedFromTheInstalledModel)
{
    const auto project = makeProject();
    EXPECT_FALSE(project->updateConfiguration());
    EXPECT_EQ(project->fileError(), u"No configuration can be found."_s);

    auto *installed = make<Configuration>(u"Configuration"_s, u"VTR 50-K"_s);
    installed->changePropertyValue(installed->screenSize(), u"height: 600; width: 1024;"_s);
    QDir().mkdir(path(u"Configurations"_s));
    ASSERT_TRUE(installed->createFile(path(u"Configurations"_s)));
    delete installed;
    ASSERT_TRUE(HardwareConfigurations::createInstance(path()));
    EXPECT_TRUE(project->updateConfiguration()) << qPrintable(project->fileError());
    EXPECT_EQ(project->screens()->getListItemAtIndex(0)->getProperty(u"size")->valueString(),
              u"height: 600; width: 1024;"_s);
}

TEST_F(ProjectTest, ScreensAndTheDefaultScreenAreChecked)
{
    const auto project = makeProject();
    EXPECT_TRUE(project->defaultScreen()->isValid());
    project->changePropertyValue(project->defaultScreen(), u"objectId: Other; scopeType: Project;"_s);
    EXPECT_EQ(project->defaultScreen()->errorString(), u"Cannot find screen \"Other\" in the project."_s);
    add(*project, project->screens(), u"Screen"_s, u"Other"_s);
    EXPECT_TRUE(project->defaultScreen()->isValid());
    const QList<DesignerObject *> screens = project->screens()->listItems();
    for (DesignerObject *screen : screens) {
        delete project->takeListPropertyItem(project->screens(), screen);
    }
    EXPECT_FALSE(project->defaultScreen()->isValid());
    EXPECT_EQ(project->screens()->errorString(), u"At least one screen is required."_s);
}

TEST_F(ProjectTest, UniqueNamesAreUniqueEverywhere)
{
    const auto project = makeProject();
    DesignerObject *first = add(*project, project->screens(), u"Screen"_s, u"x1"_s);
    DesignerObject *second = add(*project, project->variables(), u"NumberVariable"_s, u"x2"_s);
    add(*project, project->variables(), u"NumberVariable"_s, u"x4"_s);
    EXPECT_EQ(project->generateUniqueName(u"x"_s), u"x3"_s);
    EXPECT_EQ(project->generateUniqueName(u"%1"_s), u"%11"_s);
    const std::unique_ptr<DesignerObject> taken(project->takeListPropertyItem(project->variables(), second));
    EXPECT_EQ(project->generateUniqueName(u"x"_s), u"x2"_s);
    first->setIdName(u"y"_s);
    EXPECT_EQ(project->generateUniqueName(u"x"_s), u"x1"_s);

    write(path(u"Pumps/a"_s), "");
    write(path(u"Pumps1/a"_s), "");
    EXPECT_EQ(Project::generateUniqueName(path(), u"Fans"_s), u"Fans"_s);
    EXPECT_EQ(Project::generateUniqueName(path(), u"Pumps"_s), u"Pumps2"_s);
}

TEST_F(ProjectTest, ANewHistoryBeginsWithEachFile)
{
    const auto project = makeProject();
    QAction *undo = project->createUndoAction();
    QAction *redo = project->createRedoAction();
    EXPECT_EQ(undo, project->createUndoAction());
    EXPECT_FALSE(undo->isEnabled());
    EXPECT_FALSE(undo->icon().isNull() || redo->icon().isNull());
    const auto edit = [&project] { project->undoStack()->QUndoStack::push(new QUndoCommand); };
    edit();
    EXPECT_TRUE(undo->isEnabled());
    undo->trigger();
    EXPECT_TRUE(redo->isEnabled() && !undo->isEnabled());

    edit();
    ASSERT_TRUE(project->createFile(path()));
    EXPECT_EQ(project->undoStack()->count(), 0);
    edit();
    ASSERT_TRUE(project->saveFile());
    EXPECT_EQ(project->undoStack()->count(), 0);
    edit();
    ASSERT_TRUE(project->loadFile(project->fullFilePath()));
    EXPECT_FALSE(undo->isEnabled());
}

} // namespace Halvane::Corvex::Designer
