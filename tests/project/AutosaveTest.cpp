// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/zip/ZipHelper.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/files/ProjectAutosave.h"
#include "corvex/project/private/AutosaveRun.h"

#include "ProjectFixture.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

class AutosaveTest : public Test::ProjectFixture
{
protected:
    void SetUp() override
    {
        // The test searches for staging folders, so they must not belong to another program.
        oldTemporary = qgetenv("TMPDIR");
        QDir().mkdir(path(u"temporary"_s));
        qputenv("TMPDIR", path(u"temporary"_s).toLocal8Bit());
        project = makeProject();
        ASSERT_TRUE(project->createFile(path()));
        addImage(*project, u"a.png"_s);
        archive = path(u"Pumps.kdproj.kdasv"_s);
        aside = archive + u".tmp"_s;
    }

    void TearDown() override
    {
        project.reset();
        oldTemporary.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", oldTemporary);
    }

    void edit() { project->undoStack()->QUndoStack::push(new QUndoCommand); }

    //! Starts a run and waits for its end. Returns its error.
    QString run()
    {
        QSignalSpy finished(&project->autosave(), &ProjectAutosave::finished);
        EXPECT_TRUE(project->autosave().run());
        EXPECT_TRUE(finished.wait());
        return finished.at(0).at(0).toString();
    }

    static QStringList stagingFolders()
    {
        return QDir(Common::FileHelper::getStandardTemporatyLocation())
            .entryList({u"CorvexNova-autosave-*"_s}, QDir::Dirs);
    }

    std::unique_ptr<Project> project;
    QString archive;
    QString aside;
    QByteArray oldTemporary;
};

TEST_F(AutosaveTest, TheTimerRunsFromFiveToOneHundredAndTwentyMinutes)
{
    const struct
    {
        QVariant setting;
        int minutes;
    } cases[] = {
        {{}, 0}, {0, 0}, {4, 0}, {5, 5}, {u"30"_s, 30}, {120, 120}, {121, 0}, {-5, 0}, {u"often"_s, 0},
    };
    ProjectAutosave &autosave = project->autosave();
    for (const auto &[setting, minutes] : cases) {
        QSettings settings(u"Halvane"_s, u"Corvex Nova"_s);
        settings.setValue("autoIntervalTime"_L1, setting);
        settings.sync();
        project->startAutoSaveTimer();
        EXPECT_EQ(autosave.interval(), minutes * 60'000) << qPrintable(setting.toString());
        EXPECT_EQ(autosave.timerId() != -1, minutes > 0) << qPrintable(setting.toString());
    }
    QSettings(u"Halvane"_s, u"Corvex Nova"_s).clear();
}

TEST_F(AutosaveTest, AnEditIsSavedOnceNextToTheProjectsFolder)
{
    const QStringList files = filesIn(path(u"Pumps"_s));
    write(path(u"Pumps/Preview.png"_s), "picture");
    ProjectAutosave &autosave = project->autosave();
    EXPECT_FALSE(autosave.run()) << "nothing was edited";
    edit();
    add(*project, project->variables(), u"NumberVariable"_s, u"unsaved"_s);
    QSignalSpy running(&autosave, &ProjectAutosave::runningChanged);
    QSignalSpy finished(&autosave, &ProjectAutosave::finished);
    EXPECT_TRUE(autosave.run());
    EXPECT_TRUE(autosave.isRunning());
    EXPECT_FALSE(autosave.run()) << "one run at a time";
    ASSERT_TRUE(finished.wait());
    EXPECT_EQ(finished.at(0).at(0).toString(), QString());
    EXPECT_EQ(running, QList<QVariantList>({{true}, {false}}));
    EXPECT_FALSE(autosave.run()) << "nothing was edited since";

    EXPECT_EQ(Common::ZipHelper::entryNames(archive),
              QStringList({u"Images/a.png"_s, u"Preview.png"_s, u"Pumps.kdproj"_s}));
    QDir().mkdir(path(u"unpacked"_s));
    ASSERT_TRUE(Common::ZipHelper::unzip(archive, path(u"unpacked"_s)));
    const auto recovered = makeEmptyProject();
    ASSERT_TRUE(recovered->loadFile(path(u"unpacked/Pumps.kdproj"_s)));
    EXPECT_TRUE(recovered->variables()->hasListItem(u"unsaved"_s));
    EXPECT_FALSE(read(project->fullFilePath()).contains("unsaved")) << "the user's own file is left alone";
    EXPECT_EQ(stagingFolders(), QStringList());
    EXPECT_FALSE(QFileInfo::exists(aside));
}

TEST_F(AutosaveTest, AnEditIsNoticedEvenIfTheIndexIsTheSame)
{
    edit();
    EXPECT_EQ(run(), QString());
    project->undoStack()->undo();
    edit();
    EXPECT_EQ(project->undoStack()->index(), 1);
    EXPECT_EQ(run(), QString());

    edit();
    ASSERT_TRUE(project->saveFile());
    EXPECT_FALSE(project->autosave().run()) << "the project is as its file";

    edit();
    QSignalSpy finished(&project->autosave(), &ProjectAutosave::finished);
    ASSERT_TRUE(project->autosave().run());
    QCoreApplication::processEvents();
    edit();
    ASSERT_TRUE(finished.wait());
    EXPECT_EQ(run(), QString()) << "an edit after the project was written is for the next run";
}

TEST_F(AutosaveTest, TheTimerWaitsForTheEndOfAGesture)
{
    ProjectAutosave &autosave = project->autosave();
    QSettings(u"Halvane"_s, u"Corvex Nova"_s).setValue("autoIntervalTime"_L1, 5);
    project->startAutoSaveTimer();
    QSettings(u"Halvane"_s, u"Corvex Nova"_s).clear();
    QTimerEvent event(autosave.timerId());
    ASSERT_TRUE(project->undoStack()->beginGesture(u"Drag"_s));
    project->undoStack()->push(new AddVariable(make(u"StringVariable"_s, u"dragged"_s), project.get()));
    QCoreApplication::sendEvent(&autosave, &event);
    EXPECT_FALSE(autosave.isRunning());
    QSignalSpy finished(&autosave, &ProjectAutosave::finished);
    ASSERT_TRUE(project->undoStack()->commitGesture());
    ASSERT_TRUE(finished.wait());
    EXPECT_TRUE(QFile::exists(archive));
}

TEST_F(AutosaveTest, AnImageThatIsMovedMeanwhileIsNotLeftOut)
{
    Common::Progress progress;
    QString error;
    AutosaveRun run(*project, archive);
    run.onRestart([] {});
    while (run.write(progress, error) == Common::Job::Next::More) { }
    ASSERT_TRUE(QFile::rename(path(u"Pumps/Images/a.png"_s), path(u"Pumps/Images/b.png"_s)));
    EXPECT_FALSE(run.pack(progress, error));
    EXPECT_TRUE(error.contains(u"a.png"_s)) << qPrintable(error);
    EXPECT_FALSE(QFile::exists(archive));
}

TEST_F(AutosaveTest, AFailedRunRestoresTheOldFile)
{
    edit();
    EXPECT_EQ(run(), QString());
    const QByteArray bytes = read(archive);
    DesignerObject *configuration = project->configurationObject();
    project->changePropertyObjectValue(project->configuration(), nullptr);
    QSignalSpy finished(&project->autosave(), &ProjectAutosave::finished);
    for (int i = 0; i < 2; ++i) {
        edit();
        EXPECT_TRUE(project->autosave().run());
        ASSERT_TRUE(finished.wait()) << "without a configuration it cannot be written";
        EXPECT_FALSE(finished.at(i).at(0).toString().isEmpty());
        EXPECT_EQ(read(archive), bytes);
        EXPECT_FALSE(QFileInfo::exists(aside));
        // The state after a crash between the two renames.
        ASSERT_TRUE(QFile::rename(archive, aside));
    }
    EXPECT_FALSE(project->autosave().checkStackIsSame()) << "it is still to be saved";
    EXPECT_EQ(stagingFolders(), QStringList());

    project->changePropertyObjectValue(project->configuration(), configuration);
    EXPECT_EQ(run(), QString());
    EXPECT_FALSE(QFileInfo::exists(aside));
}

TEST_F(AutosaveTest, WhatChangesMeanwhileIsWrittenWholeOrNotAtAll)
{
    for (int i = 0; i < 20; ++i) {
        DesignerObject *variable = add(*project, project->variables(), u"StringVariable"_s, u"v%1"_s.arg(i));
        variable->changePropertyValue(variable->getProperty(u"value"), QString(200'000, u'x'));
    }
    edit();
    QSignalSpy finished(&project->autosave(), &ProjectAutosave::finished);
    ASSERT_TRUE(project->autosave().run());
    QSet<size_t> states;
    for (int i = 0; i < 20 && finished.isEmpty(); ++i) {
        states.insert(qHash(DesignerObject::toString(project.get())));
        QTest::qWait(1);
        delete project->takeListPropertyItem(project->variables(),
                                             project->variables()->getListItemAtIndex(0));
        add(*project, project->variables(), u"StringVariable"_s, u"w%1"_s.arg(i));
    }
    states.insert(qHash(DesignerObject::toString(project.get())));
    ASSERT_TRUE(!finished.isEmpty() || finished.wait());
    EXPECT_EQ(finished.at(0).at(0).toString(), QString());
    QDir().mkdir(path(u"unpacked"_s));
    ASSERT_TRUE(Common::ZipHelper::unzip(archive, path(u"unpacked"_s)));
    const auto recovered = makeEmptyProject();
    ASSERT_TRUE(recovered->loadFile(path(u"unpacked/Pumps.kdproj"_s)));
    EXPECT_TRUE(states.contains(qHash(DesignerObject::toString(recovered.get()))));
}

TEST_F(AutosaveTest, ARunIsCompletedWhenItsProjectGoesUnlessItIsCancelled)
{
    edit();
    ASSERT_TRUE(project->autosave().run());
    project->autosave().cancel();
    EXPECT_FALSE(project->autosave().isRunning());
    EXPECT_FALSE(QFile::exists(archive));
    EXPECT_EQ(stagingFolders(), QStringList());

    ASSERT_TRUE(project->autosave().run()) << "it is still to be saved";
    project.reset();
    EXPECT_EQ(Common::ZipHelper::entryNames(archive).size(), 2);
    EXPECT_EQ(stagingFolders(), QStringList());
}

} // namespace Halvane::Corvex::Designer
