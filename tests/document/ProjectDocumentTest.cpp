// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemList.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/commands/RenameProject.h"
#include "corvex/editing/commands/images/AddImage.h"
#include "corvex/editing/commands/images/AddImageFromData.h"
#include "corvex/editing/commands/images/DeleteImage.h"
#include "corvex/editing/commands/images/RenameImage.h"
#include "corvex/editing/commands/images/ReplaceImage.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/project/files/ProjectAutosave.h"

#include "project/ProjectFixture.h"

#include <QEventLoop>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::Job;

class ProjectDocumentTest : public Test::ProjectFixture
{
protected:
    void SetUp() override
    {
        std::unique_ptr<Project> made = makeProject();
        ASSERT_TRUE(made->createFile(path()));
        add(*made, made->variables(), u"StringVariable"_s, u"level"_s);
        ASSERT_TRUE(made->saveFile());
        file = made->fullFilePath();
        open(std::move(made));
    }

    void open(std::unique_ptr<Project> made)
    {
        document = std::make_unique<ProjectDocument>(std::move(made));
        changedByOthers = std::make_unique<QSignalSpy>(document.get(), &ProjectDocument::changedByOthers);
    }
    void openAgain()
    {
        document.reset();
        std::unique_ptr<Project> loaded = makeEmptyProject();
        ASSERT_TRUE(loaded->loadFile(file));
        open(std::move(loaded));
    }
    SharedProperty level() const
    {
        return document->project().variables()->getListItem(u"level"_s)->getProperty(u"value");
    }
    bool describe(const QString &text) { return document->push(new ChangeProperty(level(), text, true)); }
    bool addVariable(const QString &name)
    {
        return document->push(new AddVariable(make(u"StringVariable"_s, name), &document->project()));
    }
    bool renameTo(const QString &name)
    {
        return document->push(new RenameProject(&document->project(), name));
    }
    bool autosave() const
    {
        QSignalSpy finished(&document->project().autosave(), &ProjectAutosave::finished);
        return document->project().autosave().run() && (!finished.isEmpty() || finished.wait());
    }
    //! Opens the project as a crash at this moment would leave it.
    void crash(const QString &openedPath = u"Pumps/Pumps.kdproj"_s)
    {
        auto left = std::make_unique<QTemporaryDir>();
        for (const QString &name : filesIn(path())) {
            write(left->filePath(name), read(path(name)));
        }
        document.reset();
        folder.swap(*left);
        file = path(openedPath);
        openAgain();
    }
    QStringList archives() const { return QDir(path()).entryList({u"*.kdasv*"_s}, QDir::Files); }
    QString text() const { return DesignerObject::toString(&document->project()); }
    static Job::Outcome outcomeOf(Job &job)
    {
        QSignalSpy finished(&job, &Job::finished);
        EXPECT_TRUE(!job.isRunning() || finished.wait());
        return job.outcome();
    }

    QString file;
    std::unique_ptr<ProjectDocument> document;
    std::unique_ptr<QSignalSpy> changedByOthers;
};

TEST_F(ProjectDocumentTest, AGestureIsOneStepOrNone)
{
    ProjectHistory &history = document->history();
    const QSignalSpy modified(document.get(), &ProjectDocument::modifiedChanged);
    const QString first = text();
    EXPECT_FALSE(document->commitGesture());
    ASSERT_TRUE(document->beginGesture(u"Drag"_s));
    EXPECT_FALSE(document->beginGesture(u"Turn"_s));
    EXPECT_EQ(document->errorString(), u"\"Drag\" is not finished yet. Finish or cancel it first."_s);
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(describe(QString::number(i)));
    }
    EXPECT_TRUE(document->isModified());
    EXPECT_FALSE(history.canUndo() || history.canRedo());
    for (const bool isRefused : {document->undo(), document->redo(), document->save()}) {
        EXPECT_FALSE(isRefused);
    }
    ASSERT_TRUE(addVariable(u"a"_s) && describe(u"last"_s));
    ASSERT_TRUE(document->commitGesture());
    EXPECT_EQ(history.count(), 1);
    EXPECT_EQ(history.undoText(), u"Drag"_s);
    const QString last = text();
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), first);
    ASSERT_TRUE(document->redo());
    EXPECT_EQ(text(), last);
    ASSERT_TRUE(document->undo());

    // A rollback even keeps the redo steps.
    ASSERT_TRUE(document->beginGesture(u"Wheel"_s));
    ASSERT_TRUE(describe(u"x"_s) && addVariable(u"level2"_s) && describe(u"y"_s));
    document->select({document->project().variables()->getListItem(u"level2"_s)});
    ASSERT_TRUE(document->rollBackGesture());
    EXPECT_EQ(text(), first);
    EXPECT_EQ(document->selection(), QList<DesignerObject *>());
    EXPECT_EQ(history.redoText(), u"Drag"_s);
    EXPECT_FALSE(document->isModified());
    ASSERT_TRUE(document->beginGesture(u"Nothing"_s));
    ASSERT_TRUE(document->commitGesture());
    EXPECT_EQ(history.redoText(), u"Drag"_s);
    EXPECT_EQ(modified.size(), 6);
}

TEST_F(ProjectDocumentTest, AReceiverOfAnUndoMayPush)
{
    ASSERT_TRUE(describe(u"first"_s));
    bool isPushed = false;
    QObject::connect(&document->project(), &Project::userModified, document.get(), [&] {
        if (!std::exchange(isPushed, true)) {
            EXPECT_TRUE(describe(u"instead"_s)); // deletes the command that was undone
        }
    });
    document->undo();
    EXPECT_TRUE(isPushed);
    EXPECT_EQ(level()->valueString(), u"instead"_s);
    EXPECT_TRUE(document->undo());
    EXPECT_EQ(level()->valueString(), QString());
}

TEST_F(ProjectDocumentTest, ARunIsOneStepForWhateverEndsIt)
{
    ProjectHistory &history = document->history();
    const auto nudge = [this](const QString &text) {
        return document->pushInRun(u"Nudge"_s, new ChangeProperty(level(), text, false));
    };
    DesignerObject *other = document->project().screens()->getListItemAtIndex(0);
    const std::function<bool()> ends[] = {
        [&] {
            return document->push(new AddVariable(make(u"StringVariable"_s, u"a"_s), &document->project()))
                   && document->undo();
        },
        [&] { return document->save(); },
        [&] { return document->select({other}), true; },
        [&] { return document->beginGesture(u"Drag"_s) && document->commitGesture(); },
        [&] { return document->build() != nullptr; },
        [&] { return QTest::qWaitFor([this] { return !document->project().undoStack()->isInRun(); }); },
    };
    document->setRunPause(50);
    for (const auto &end : ends) {
        const int before = history.position();
        ASSERT_TRUE(nudge(u"%1.1"_s.arg(before)) && nudge(u"%1.2"_s.arg(before))
                    && nudge(u"%1.3"_s.arg(before)));
        EXPECT_TRUE(document->isModified());
        EXPECT_TRUE(history.canUndo());
        EXPECT_EQ(history.undoText(), u"Nudge"_s);
        ASSERT_TRUE(end()) << qPrintable(document->errorString());
        EXPECT_EQ(history.position(), before + 1);
        EXPECT_EQ(history.undoText(), u"Nudge"_s);
    }
    const QString before = text();
    ASSERT_TRUE(nudge(u"x"_s) && nudge(u"y"_s));
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
    EXPECT_EQ(history.redoText(), u"Nudge"_s);
}

TEST_F(ProjectDocumentTest, OldHistoriesAreDroppedAndLoadingDropsAll)
{
    ProjectHistory &history = document->history();
    history.setMostEarlierSteps(5);
    for (int save = 0; save < 4; ++save) {
        for (int i = 0; i < 4; ++i) {
            ASSERT_TRUE(describe(u"%1.%2"_s.arg(QString::number(save), QString::number(i))));
        }
        ASSERT_TRUE(document->save());
    }
    EXPECT_EQ(history.count(), 8) << "the last history, and no more than five steps before it";
    ASSERT_TRUE(history.goTo(0));
    EXPECT_EQ(level()->valueString(), u"1.3"_s);
    EXPECT_FALSE(document->undo());
    EXPECT_EQ(history.savedPosition(), 8);
    ASSERT_TRUE(describe(u"other"_s));
    EXPECT_EQ(history.savedPosition(), -1) << "nothing leads to the saved state any more";
    EXPECT_FALSE(document->project().undoStack()->isSaved());
    ASSERT_TRUE(document->reload());
    EXPECT_EQ(history.count(), 0);
    EXPECT_EQ(level()->valueString(), u"3.3"_s);
    EXPECT_FALSE(document->isModified());
}

TEST_F(ProjectDocumentTest, ASaveThatCannotKeepFilesDropsTheHistory)
{
    addImage(document->project(), u"a.png"_s);
    ASSERT_TRUE(document->save());
    const QString image = path(u"Pumps/Images/a.png"_s);
    const auto deleteImage = [this] {
        return document->push(new DeleteImage(document->project().imageResources()->getListItem(u"a.png"_s)));
    };
    ASSERT_TRUE(deleteImage() && document->save());
    EXPECT_FALSE(QFile::exists(image));
    ASSERT_TRUE(document->undo());
    EXPECT_TRUE(QFile::exists(image));
    ASSERT_TRUE(document->redo());

    ASSERT_TRUE(document->undo() && document->save() && deleteImage());
    openAgain(); // whose store has no folder yet
    EXPECT_TRUE(QFile::exists(image)) << "that was not saved";
    ASSERT_TRUE(deleteImage());
    QSignalSpy forgotten(&document->history(), &ProjectHistory::forgotten);
    qputenv("TMPDIR", file.toLocal8Bit()); // not a folder
    EXPECT_TRUE(document->save());
    qunsetenv("TMPDIR");
    EXPECT_FALSE(QFile::exists(image));
    EXPECT_EQ(document->history().count(), 0);
    EXPECT_FALSE(document->isModified());
    ASSERT_TRUE(forgotten.wait());
    EXPECT_FALSE(forgotten.constFirst().constFirst().toString().isEmpty());
    EXPECT_TRUE(describe(u"goes on"_s) && document->undo());
}

TEST_F(ProjectDocumentTest, AStepWhoseFilesAreGoneStaysDoneAndSavesSucceed)
{
    addImage(document->project(), u"a.png"_s);
    ASSERT_TRUE(document->save());
    const QString images = path(u"Pumps/Images/"_s);
    const auto image = [this](const QString &name) {
        return document->project().imageResources()->getListItem(name);
    };
    const auto replaceA = [&] {
        QImage picture(3, 3, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        EXPECT_TRUE(picture.save(path(u"new.png"_s)));
        return document->push(new ReplaceImage(image(u"a.png"_s), path(u"new.png"_s), u"a.png"_s));
    };
    const auto rename = [&](const QString &from, const QString &to) {
        return document->push(new RenameImage(image(from), to));
    };
    const QByteArray old = read(images + u"a.png"_s);
    ASSERT_TRUE(replaceA() && rename(u"a.png"_s, u"b.png"_s));
    const QByteArray replaced = read(images + u"b.png"_s);
    ASSERT_TRUE(QDir(path(u"Pumps/.corvex-edit"_s)).removeRecursively());
    ASSERT_TRUE(document->undo()) << qPrintable(document->errorString());
    EXPECT_TRUE(image(u"a.png"_s)->isValid());
    for (const bool isSaved : {false, true}) {
        ASSERT_TRUE(!isSaved || document->save()) << qPrintable(document->errorString());
        EXPECT_FALSE(document->undo());
        EXPECT_TRUE(document->errorString().contains(u"a.png"_s)) << qPrintable(document->errorString());
        EXPECT_EQ(document->history().position(), 1);
        EXPECT_EQ(document->isModified(), !isSaved);
        EXPECT_EQ(read(images + u"a.png"_s), replaced);
    }
    EXPECT_EQ(document->history().redoText(), u"Rename Image Resource \"a.png\""_s);
    ASSERT_TRUE(document->redo() && document->undo() && document->save());

    // The next opening reports what closing could not undo.
    write(images + u"a.png"_s, old);
    ASSERT_TRUE(replaceA() && QDir(path(u"Pumps/.corvex-edit"_s)).removeRecursively());
    openAgain();
    EXPECT_TRUE(document->recoveryNote().contains(u"\"Images/a.png\""_s));
    EXPECT_EQ(read(images + u"a.png"_s), replaced);
    openAgain();
    EXPECT_EQ(document->recoveryNote(), QString());

    // The same after the whole folder was deleted.
    ASSERT_TRUE(rename(u"a.png"_s, u"b.png"_s) && QDir(path(u"Pumps"_s)).removeRecursively());
    EXPECT_FALSE(document->undo());
    EXPECT_TRUE(document->save(ProjectDocument::Overwrite::Always)) << qPrintable(document->errorString());
    writePicture(images + u"b.png"_s);
    EXPECT_TRUE(rename(u"b.png"_s, u"c.png"_s) && document->save()) << qPrintable(document->errorString());
    EXPECT_TRUE(document->undo() && document->undo());
    EXPECT_EQ(filesIn(images), QStringList{u"a.png"_s});
}

TEST_F(ProjectDocumentTest, DeletedImageFilesComeBackWithTheNextSaveOrUndo)
{
    addImage(document->project(), u"a.png"_s);
    ASSERT_TRUE(document->save());
    const QDir images(path(u"Pumps/Images"_s));
    QImage picture(3, 3, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    const auto edit = [&] {
        DesignerObject *image = document->project().imageResources()->getListItem(u"a.png"_s);
        return document->push(new RenameImage(image, u"b.png"_s))
               && document->push(new AddImageFromData(picture, &document->project()));
    };
    const auto files = [&images] { return images.entryList(QDir::Files, QDir::Name); };
    const auto deleteFiles = [&images] { return QDir(images).removeRecursively(); };
    ASSERT_TRUE(edit() && deleteFiles());
    ASSERT_TRUE(document->undo() && document->undo()) << qPrintable(document->errorString());
    EXPECT_EQ(files(), QStringList{u"a.png"_s});
    EXPECT_TRUE(document->project().imageResources()->listItems().constFirst()->isValid());
    ASSERT_TRUE(edit() && deleteFiles() && document->save()) << qPrintable(document->errorString());
    EXPECT_EQ(files(), (QStringList{u"Image Resource.png"_s, u"b.png"_s}));
    for (const DesignerObject *image : document->project().imageResources()->listItems()) {
        EXPECT_TRUE(image->isValid());
    }
    // Another program replaces the whole folder.
    DesignerObject *image = document->project().imageResources()->getListItem(u"b.png"_s);
    ASSERT_TRUE(document->push(new RenameImage(image, u"c.png"_s))
                && QDir().rename(path(u"Pumps"_s), path(u"Old"_s)));
    write(file, read(path(u"Old/Pumps.kdproj"_s)));
    write(images.filePath(u"b.png"_s), read(path(u"Old/Images/c.png"_s)));
    EXPECT_TRUE(document->save(ProjectDocument::Overwrite::Always)) << qPrintable(document->errorString());
    EXPECT_EQ(files(), (QStringList{u"b.png"_s, u"c.png"_s}));
}

TEST_F(ProjectDocumentTest, ADeletedImageComesBackWithItsOwnFile)
{
    addImage(document->project(), u"a.png"_s);
    ASSERT_TRUE(document->save());
    const QString place = path(u"Pumps/Images/a.png"_s);
    const QByteArray original = read(place);
    QImage picture(3, 3, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    const auto images = [this] { return document->project().imageResources()->listItems(); };
    const auto deleteImage = [&] { return document->push(new DeleteImage(images().constFirst())); };
    const auto addOther = [&] {
        return document->push(new AddImageFromData(picture, &document->project()))
               && document->push(new RenameImage(images().constFirst(), u"a.png"_s));
    };
    ASSERT_TRUE(deleteImage() && document->save());
    ASSERT_TRUE(addOther() && deleteImage() && document->save()) << qPrintable(document->errorString());
    EXPECT_FALSE(QFile::exists(place));
    ASSERT_TRUE(document->history().goTo(0)) << qPrintable(document->errorString());
    EXPECT_TRUE(read(place) == original);
    ASSERT_TRUE(document->history().goTo(3)) << "the name is free for the other image";
    EXPECT_FALSE(read(place) == original);
    ASSERT_TRUE(document->history().goTo(1));
    write(place, "of another program");
    EXPECT_FALSE(document->undo());
    EXPECT_TRUE(document->errorString().contains(u"exists already"_s)) << qPrintable(document->errorString());
    EXPECT_EQ(read(place), "of another program");
}

TEST_F(ProjectDocumentTest, ADeletedImageWhoseFileAnotherImageTakesComesBack)
{
    ImageResource *image = addImage(document->project(), u"a.png"_s);
    ASSERT_TRUE(document->save());
    const QString place = path(u"Pumps/Images/a.png"_s);
    const QByteArray original = read(place);
    QImage picture(3, 3, QImage::Format_RGB32);
    ASSERT_TRUE(picture.save(path(u"other.png"_s)));
    write(path(u"same.png"_s), original);
    const auto taken = [this] { return document->project().imageResources()->listItems().constFirst(); };
    for (const int savedStep : {4, 2}) {
        ASSERT_TRUE(document->push(new DeleteImage(image)));
        ASSERT_TRUE(document->push(
            new AddImage(make(u"ImageResource"_s, u"a.png"_s), path(u"same.png"_s), &document->project())));
        ASSERT_TRUE(savedStep != 2 || document->save());
        ASSERT_TRUE(document->push(new ReplaceImage(taken(), path(u"other.png"_s), u"a.png"_s)));
        ASSERT_TRUE(document->push(new DeleteImage(taken())) && document->save());
        ASSERT_TRUE(document->history().goTo(0)) << qPrintable(document->errorString());
        EXPECT_TRUE(read(place) == original);
        ASSERT_TRUE(document->save());
        openAgain();
        image = static_cast<ImageResource *>(taken());
    }
}

TEST_F(ProjectDocumentTest, OnlyTheFileOfADeletedImageIsDeleted)
{
    const QString place = path(u"Pumps/Images/a.png"_s);
    const QString draft = path(u"Pumps/.corvex-edit/draft"_s);
    const auto deleteImage = [this] {
        return document->push(
            new DeleteImage(document->project().imageResources()->listItems().constFirst()));
    };
    addImage(document->project(), u"a.png"_s);
    ASSERT_TRUE(document->save() && deleteImage());
    write(place, "of another program");
    ASSERT_TRUE(document->save());
    EXPECT_EQ(read(place), "of another program");
    ASSERT_TRUE(document->undo() && document->save() && deleteImage());
    addImage(document->project(), u"b.png"_s); // begins the changes
    ASSERT_TRUE(document->project().beginFileChanges(nullptr) && QDir().mkdir(draft));
    EXPECT_FALSE(document->save());
    ASSERT_TRUE(QDir().rmdir(draft) && document->save()) << qPrintable(document->errorString());
    EXPECT_FALSE(QFile::exists(place)) << "the first save failed";

    // A recovery would not find files outside of the project.
    ASSERT_TRUE(QDir().rename(path(u"Pumps/Images"_s), path(u"Shared"_s))
                && QFile::link(u"../Shared"_s, path(u"Pumps/Images"_s)));
    QImage picture(3, 3, QImage::Format_RGB32);
    EXPECT_FALSE(document->push(new AddImageFromData(picture, &document->project())));
    EXPECT_TRUE(document->errorString().contains(u"Copy the folder into it."_s))
        << qPrintable(document->errorString());
}

TEST_F(ProjectDocumentTest, PicturesOfOtherProgramsSurviveUndoAndRecovery)
{
    const QString images = path(u"Pumps/Images"_s);
    const auto find = [&images](const QByteArray &bytes) {
        const QStringList files = filesIn(images);
        return std::ranges::any_of(files,
                                   [&](const QString &name) { return read(images + u'/' + name) == bytes; });
    };
    ImageResource *image = addImage(document->project(), u"a.png"_s);
    write(path(u"b.png"_s), read(image->filePath()) + "b");
    ASSERT_TRUE(document->save() && document->push(new ReplaceImage(image, path(u"b.png"_s), u"a.png"_s))
                && document->save());
    write(images + u"/a.png"_s, "after the save");
    ASSERT_TRUE(document->undo() && document->save());
    document.reset();
    EXPECT_TRUE(find("after the save"));

    openAgain();
    ASSERT_TRUE(describe(u"unsaved"_s) && autosave());
    write(images + u"/a.png"_s, "after the autosave");
    QFile picture(images + u"/a.png"_s);
    ASSERT_TRUE(
        picture.open(QIODevice::ReadWrite)
        && picture.setFileTime(QDateTime::currentDateTime().addSecs(60), QFile::FileModificationTime));
    picture.close();
    write(path(u"copy"_s), read(path(u"Pumps.kdproj.kdasv"_s)));
    document.reset();
    write(path(u"Pumps.kdproj.kdasv"_s), read(path(u"copy"_s)));
    openAgain();
    ASSERT_TRUE(document->recover() && document->save()) << qPrintable(document->errorString());
    EXPECT_EQ(read(images + u"/a1.png"_s), "after the autosave");

    // The file was missing when it was replaced, so an undo leaves none.
    ASSERT_TRUE(QFile::remove(images + u"/a.png"_s));
    image = static_cast<ImageResource *>(document->project().imageResources()->getListItem(u"a.png"_s));
    ASSERT_TRUE(document->push(new ReplaceImage(image, path(u"b.png"_s), u"a.png"_s)) && document->save()
                && document->undo() && document->save());
    for (const bool isSaved : {false, true}) {
        write(images + u"/a.png"_s, "after the undo");
        ASSERT_TRUE(document->redo() && (!isSaved || document->save()))
            << qPrintable(document->errorString());
        EXPECT_TRUE(isSaved || document->undo());
    }
    document.reset();
    EXPECT_TRUE(find("after the undo"));
}

TEST_F(ProjectDocumentTest, ARedoThatFailsOnceKeepsAllLaterSteps)
{
    DesignerObject *image = addImage(document->project(), u"a.png"_s);
    ASSERT_TRUE(document->save() && document->push(new RenameImage(image, u"b.png"_s)) && describe(u"x"_s)
                && document->save() && describe(u"y"_s));
    const QString last = text();
    ASSERT_TRUE(document->history().goTo(0)) << qPrintable(document->errorString());
    writePicture(path(u"Pumps/Images/b.png"_s));
    EXPECT_FALSE(document->redo());
    EXPECT_TRUE(document->errorString().contains(u"exists already"_s)) << qPrintable(document->errorString());
    ASSERT_TRUE(QFile::remove(path(u"Pumps/Images/b.png"_s)) && document->history().goTo(3));
    EXPECT_EQ(text(), last);
}

TEST_F(ProjectDocumentTest, AnUndoThatCannotRenameFilesFails)
{
    addImage(document->project(), u"a.png"_s);
    Project &project = document->project();
    ASSERT_TRUE(document->save() && document->push(new RenameProject(&project, u"Wells"_s))
                && document->save());
    write(path(u"Pumps/mine"_s), "mine");
    EXPECT_FALSE(document->undo());
    EXPECT_TRUE(document->errorString().contains(u"exists already"_s)) << qPrintable(document->errorString());
    EXPECT_EQ(project.getIdName(), u"Wells"_s);
    EXPECT_EQ(document->history().position(), 1);
    EXPECT_FALSE(document->isModified());

    const auto renameInGesture = [&] {
        return document->beginGesture(u"Both"_s) && describe(u"new"_s)
               && document->push(new RenameImage(project.imageResources()->getListItemAtIndex(0), u"b.png"_s))
               && addVariable(u"more"_s);
    };
    const QString before = text();
    ASSERT_TRUE(renameInGesture() && document->rollBackGesture());
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(project.imageResources()->getListItemAtIndex(0)->isValid());
    ASSERT_TRUE(renameInGesture());
    const QString after = text();
    writePicture(path(u"Wells/Images/a.png"_s));
    EXPECT_FALSE(document->rollBackGesture());
    EXPECT_TRUE(document->errorString().contains(u"exists already"_s)) << qPrintable(document->errorString());
    EXPECT_EQ(document->history().undoText(), u"Both"_s) << "what cannot be undone is a step";
    EXPECT_FALSE(document->history().goTo(0));
    EXPECT_EQ(text(), after);
    EXPECT_TRUE(QFile::remove(path(u"Wells/Images/a.png"_s)) && document->undo());
    EXPECT_EQ(text(), before);
}

TEST_F(ProjectDocumentTest, ChangesByOtherProgramsAreReportedOnce)
{
    ASSERT_TRUE(describe(u"a"_s) && document->save());
    QTest::qWait(400);
    EXPECT_EQ(changedByOthers->size(), 0) << "our own save";
    const QByteArray ours = read(file);
    for (const QByteArray &theirs : {ours + '\n', ours + "\n\n"}) {
        QFile::remove(file); // like version control
        write(file, theirs);
        EXPECT_TRUE(changedByOthers->wait());
        QTest::qWait(300);
    }
    EXPECT_EQ(changedByOthers->size(), 2);
    ASSERT_TRUE(describe(u"b"_s));
    EXPECT_FALSE(document->save());
    EXPECT_EQ(read(file), ours + "\n\n");
    EXPECT_TRUE(document->isModified());
    ASSERT_TRUE(document->save(ProjectDocument::Overwrite::Always));
    EXPECT_FALSE(document->isModified());
    EXPECT_TRUE(document->save());
}

TEST_F(ProjectDocumentTest, WhatOthersWriteDuringALoadOrASaveIsNotOverwritten)
{
    const QByteArray ours = read(file);
    std::unique_ptr<Project> loaded = makeEmptyProject();
    ASSERT_TRUE(loaded->loadFile(file));
    write(file, ours + '\n');
    open(std::move(loaded));
    EXPECT_TRUE(changedByOthers->wait());
    ASSERT_TRUE(describe(u"a"_s));
    EXPECT_FALSE(document->save());
    ASSERT_TRUE(document->save(ProjectDocument::Overwrite::Always) && describe(u"b"_s));

    Common::FolderLock lock(path(u"Pumps"_s), Common::FolderLock::Kind::Exclusive);
    const std::unique_ptr<QThread> other(QThread::create([&] {
        QThread::msleep(200); // the save is waiting
        write(file, ours);
        lock.release();
    }));
    other->start();
    EXPECT_FALSE(document->save());
    other->wait();
    EXPECT_EQ(read(file), ours);
}

TEST_F(ProjectDocumentTest, AFileThatCannotBeReadAgainChangesNothing)
{
    ASSERT_TRUE(describe(u"unsaved"_s));
    const QString before = text();
    const QByteArray good = read(file);
    for (const QByteArray &broken : {QByteArray("<<<<<<< HEAD\n") + good, good.first(900), QByteArray()}) {
        write(file, broken);
        if (broken.isEmpty()) {
            QFile::remove(file);
        }
        EXPECT_FALSE(document->reload());
        EXPECT_FALSE(document->errorString().isEmpty());
        EXPECT_EQ(text(), before);
        EXPECT_TRUE(document->isModified() && document->undo() && document->redo());
        EXPECT_EQ(document->project().fullFilePath(), file);
    }
    EXPECT_FALSE(document->save());
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_TRUE(document->save(ProjectDocument::Overwrite::Always)) << qPrintable(document->errorString());
    EXPECT_TRUE(document->reload());
    EXPECT_EQ(text(), before);
}

TEST_F(ProjectDocumentTest, ReadingAgainTakesARenameBack)
{
    const QString saved = text();
    ASSERT_TRUE(describe(u"unsaved"_s) && renameTo(u"Zulu"_s));
    const QString renamed = document->project().fullFilePath();
    const QString before = text();
    const QByteArray good = read(renamed);
    write(renamed, "broken");
    EXPECT_FALSE(document->reload());
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(document->undo() && document->redo() && document->isModified());
    write(renamed, good);
    ASSERT_TRUE(document->reload()) << qPrintable(document->errorString());
    EXPECT_EQ(text(), saved);
    EXPECT_EQ(document->project().fullFilePath(), file);
    EXPECT_EQ(document->history().count(), 0);
    EXPECT_TRUE(describe(u"goes on"_s) && document->save()) << qPrintable(document->errorString());
    EXPECT_FALSE(QFile::exists(renamed));
}

TEST_F(ProjectDocumentTest, ASaveAfterAFailedReloadLasts)
{
    addImage(document->project(), u"a.png"_s);
    ASSERT_TRUE(document->save());
    DesignerObject *image = document->project().imageResources()->getListItem(u"a.png"_s);
    ASSERT_TRUE(document->push(new RenameImage(image, u"b.png"_s)) && renameTo(u"Zulu"_s));
    write(path(u"Pumps/Pumps.kdproj"_s), "another project has the old name");
    const QString renamed = document->project().fullFilePath();
    EXPECT_FALSE(document->reload());
    EXPECT_TRUE(document->errorString().contains(u"are kept"_s)) << qPrintable(document->errorString());
    EXPECT_EQ(document->project().fullFilePath(), renamed);
    ASSERT_TRUE(describe(u"later"_s) && document->save()) << qPrintable(document->errorString());
    EXPECT_EQ(read(path(u"Pumps/Pumps.kdproj"_s)), "another project has the old name");

    const QString saved = text();
    file = renamed;
    EXPECT_TRUE(QDir(path(u"Pumps"_s)).removeRecursively());
    openAgain();
    EXPECT_EQ(text(), saved);
    EXPECT_EQ(document->recoveryNote(), QString());
    EXPECT_TRUE(document->project().imageResources()->listItems().constFirst()->isValid());
}

TEST_F(ProjectDocumentTest, ASaveFirstEndsAnInterruptedOne)
{
    write(path(u"Pumps/.corvex-edit/draft"_s), "of a program that was killed");
    write(path(u"Pumps/.corvex-edit/journal"_s),
          "{\"folder\":\"Pumps\"}\n{\"file\":\"Pumps.kdproj\",\"removed\":{}}\n");
    ASSERT_TRUE(describe(u"ours"_s));
    EXPECT_FALSE(document->save()) << "it would replace what the other program has written";
    ASSERT_TRUE(document->save(ProjectDocument::Overwrite::Always)) << qPrintable(document->errorString());
    const QString saved = text();
    openAgain();
    EXPECT_EQ(text(), saved);
}

TEST_F(ProjectDocumentTest, AnAutosaveBelongsToTheNameOnTheDisk)
{
    write(path(u"Pumps.kdproj.kdasv"_s), "older"); // not of this session
    for (const bool renamesDuringRun : {false, true}) {
        SCOPED_TRACE(renamesDuringRun);
        ASSERT_TRUE(describe(u"unsaved"_s));
        ASSERT_TRUE(addVariable(u"a"_s));
        if (renamesDuringRun) {
            ASSERT_TRUE(document->project().autosave().run() && renameTo(u"Zulu"_s));
            QSignalSpy finished(&document->project().autosave(), &ProjectAutosave::finished);
            ASSERT_TRUE(finished.wait());
        } else {
            ASSERT_TRUE(renameTo(u"Zulu"_s) && autosave());
        }
        const QString unsaved = text();
        crash();
        ASSERT_TRUE(document->hasRecovery());
        EXPECT_EQ(document->project().fullFilePath(), file);
        ASSERT_TRUE(document->recover()) << qPrintable(document->errorString());
        EXPECT_EQ(text(), unsaved);
        EXPECT_EQ(document->project().fullFilePath(), path(u"Zulu/Zulu.kdproj"_s));
        ASSERT_TRUE(document->reload()) << qPrintable(document->errorString());
        EXPECT_EQ(document->project().fullFilePath(), file);
        EXPECT_EQ(archives(), QStringList(u"Pumps.kdproj.kdasv.tmp1"_s)) << "its edits were discarded";
    }
    EXPECT_EQ(read(path(u"Pumps.kdproj.kdasv.tmp1"_s)), "older");
    ASSERT_TRUE(QFile::remove(path(u"Pumps.kdproj.kdasv.tmp1"_s)));

    // What the user has not decided about follows a rename.
    ASSERT_TRUE(describe(u"unsaved"_s) && autosave());
    const QString unsaved = text();
    crash();
    ASSERT_TRUE(renameTo(u"Zulu"_s));
    const QByteArray undecided = read(path(archives().value(0)));
    write(path(u"Zulu.kdproj.kdasv"_s), "of a deleted project");
    ASSERT_TRUE(document->save()) << qPrintable(document->errorString());
    EXPECT_EQ(read(path(u"Zulu.kdproj.kdasv"_s)), undecided);
    EXPECT_EQ(archives(), QStringList({u"Zulu.kdproj.kdasv"_s, u"Zulu.kdproj.kdasv1"_s}));
    file = document->project().fullFilePath();
    openAgain();
    ASSERT_TRUE(document->hasRecovery() && renameTo(u"Yard"_s));
    ASSERT_TRUE(document->recover()) << qPrintable(document->errorString());
    EXPECT_EQ(level()->valueString(), u"unsaved"_s);
    ASSERT_TRUE(document->save());
    EXPECT_EQ(archives(), QStringList(u"Zulu.kdproj.kdasv1"_s));

    // Another program deletes the journal of the unsaved rename.
    ASSERT_TRUE(renameTo(u"Zulu"_s) && describe(u"newer"_s) && autosave());
    ASSERT_TRUE(QDir(path(u"Zulu/.corvex-edit"_s)).removeRecursively());
    crash(u"Zulu/Zulu.kdproj"_s);
    ASSERT_TRUE(document->recover()) << qPrintable(document->errorString());
    EXPECT_EQ(level()->valueString(), u"newer"_s);
}

TEST_F(ProjectDocumentTest, TheFolderOfACopyKeepsItsNameWhenARenameIsUndone)
{
    const QByteArray original = read(file);
    document.reset();
    for (const bool hasOriginal : {true, false}) {
        ASSERT_TRUE(QDir(path()).rename(u"Pumps"_s, u"Wells"_s));
        if (hasOriginal) {
            write(path(u"Pumps/Pumps.kdproj"_s), original);
        }
        file = path(u"Wells/Pumps.kdproj"_s);
        openAgain();
        const QString before = text();
        const auto isAt = [this](const QString &name) {
            const Project &project = document->project();
            return project.fullFilePath() == path(u"Wells/%1.kdproj"_s.arg(name))
                   && QFileInfo(project.fullFilePath()).isFile() && project.getIdName() == name;
        };
        for (const bool savesBetween : {false, true}) {
            SCOPED_TRACE(u"%1 %2"_s.arg(hasOriginal).arg(savesBetween).toStdString());
            ASSERT_TRUE(renameTo(u"Wells"_s) && isAt(u"Wells"_s));
            for (int i = 0; i < 2; ++i) {
                ASSERT_TRUE(!savesBetween || document->save()) << qPrintable(document->errorString());
                ASSERT_TRUE(document->undo() && isAt(u"Pumps"_s)) << qPrintable(document->errorString());
                EXPECT_EQ(text(), before);
                ASSERT_TRUE(!savesBetween || document->save()) << qPrintable(document->errorString());
                ASSERT_TRUE(document->redo() && isAt(u"Wells"_s)) << qPrintable(document->errorString());
            }
            ASSERT_TRUE(document->history().goTo(0) && isAt(u"Pumps"_s));
        }
        ASSERT_TRUE(document->beginGesture(u"Both"_s) && describe(u"new"_s) && renameTo(u"Wells"_s));
        ASSERT_TRUE(document->rollBackGesture() && isAt(u"Pumps"_s)) << qPrintable(document->errorString());
        EXPECT_EQ(text(), before);

        ASSERT_TRUE(document->save() && renameTo(u"Wells"_s) && autosave());
        crash(u"Wells/Pumps.kdproj"_s);
        EXPECT_TRUE(isAt(u"Pumps"_s));
        ASSERT_TRUE(document->recover() && isAt(u"Wells"_s)) << qPrintable(document->errorString());
        ASSERT_TRUE(document->reload() && isAt(u"Pumps"_s)) << qPrintable(document->errorString());
        EXPECT_EQ(QFileInfo::exists(path(u"Pumps"_s)), hasOriginal);
        document.reset();
        if (hasOriginal) {
            EXPECT_EQ(read(path(u"Pumps/Pumps.kdproj"_s)), original);
            ASSERT_TRUE(QDir(path(u"Wells"_s)).removeRecursively());
        }
    }
}

TEST_F(ProjectDocumentTest, AnUnsavedRenameReservesTheOldName)
{
    const auto openOther = [this](const QString &name) {
        std::unique_ptr<Project> other = makeProject(name);
        EXPECT_EQ(other->createFile(path()), name != "Pumps"_L1);
        return other;
    };
    const auto other = ProjectDocument::load(file);
    ASSERT_EQ(outcomeOf(*other), Job::Outcome::Done);
    auto second = std::make_unique<ProjectDocument>(std::move(*other->takeResult()));
    ASSERT_TRUE(renameTo(u"Zulu"_s));
    const QString error =
        u"The name \"Pumps\" is not free. The folder \"%1\" has it again when its unsaved "
        "changes are undone. Save these changes, or use another name."_s.arg(path(u"Zulu"_s));
    EXPECT_EQ(openOther(u"Pumps"_s)->fileError(), error);
    EXPECT_FALSE(second->save(ProjectDocument::Overwrite::Always));
    EXPECT_EQ(second->errorString(), error);
    second.reset();
    const auto fans = openOther(u"Fans"_s);
    EXPECT_FALSE(fans->renameFile(u"Fans"_s, u"Pumps"_s));
    EXPECT_EQ(fans->fileError(), error);
    EXPECT_FALSE(fans->createFileCopy(path(), u"Pumps"_s));
    EXPECT_EQ(fans->fileError(), error);
    ASSERT_TRUE(renameTo(u"Pumps"_s) && renameTo(u"Zulu"_s)) << qPrintable(document->errorString());

    write(path(u"Pumps/Pumps.kdproj"_s), "copied by another program");
    document.reset();
    std::unique_ptr<Project> interrupted = makeEmptyProject();
    EXPECT_FALSE(interrupted->loadFile(path(u"Zulu/Pumps.kdproj"_s)));
    EXPECT_TRUE(interrupted->fileError().contains(
        u"the project's name is \"Pumps\", and another folder has this name."_s));
    ASSERT_TRUE(QDir(path()).rename(u"Pumps"_s, u"Copy"_s));
    openAgain();
    EXPECT_EQ(archives(), QStringList());
}

TEST_F(ProjectDocumentTest, ARenameLeavesNoAutosave)
{
    for (const bool isSaved : {false, true}) {
        ASSERT_TRUE(describe(u"unsaved"_s) && autosave());
        ASSERT_TRUE(renameTo(u"Zulu"_s));
        ASSERT_TRUE(!isSaved || document->save());
        file = isSaved ? document->project().fullFilePath() : file;
        openAgain();
        EXPECT_FALSE(document->hasRecovery());
        EXPECT_EQ(archives(), QStringList());
    }
}

TEST_F(ProjectDocumentTest, ADocumentLeavesTheAutosaveOfAnother)
{
    const auto other = ProjectDocument::load(file);
    ASSERT_EQ(outcomeOf(*other), Job::Outcome::Done);
    auto second = std::make_unique<ProjectDocument>(std::move(*other->takeResult()));
    ASSERT_TRUE(describe(u"unsaved"_s) && autosave());
    const QByteArray ours = read(path(archives().value(0)));
    ASSERT_TRUE(second->project().addListPropertyItem(second->project().variables(),
                                                      make(u"StringVariable"_s, u"theirs"_s)));
    second->project().undoStack()->QUndoStack::push(new QUndoCommand);
    ASSERT_TRUE(second->project().autosave().run());
    second.reset();
    EXPECT_EQ(read(path(archives().value(0))), ours);
    EXPECT_FALSE(document->project().autosave().run()) << "nothing was edited";

    QFile::remove(path(archives().value(0)));
    EXPECT_TRUE(autosave()) << "another document has replaced it with its own, and was closed";
    write(path(archives().value(0)), "of another document");
    document.reset();
    EXPECT_EQ(archives().size(), 1);
}

TEST_F(ProjectDocumentTest, ARecoveryTakesTheArchiveThatTheUserWasAskedAbout)
{
    ASSERT_TRUE(describe(u"unsaved"_s) && autosave());
    const QString unsaved = text();
    crash();
    const QString archive = document->project().autosavePath();
    const QString kept = archive + u".tmp1"_s;
    ASSERT_TRUE(QFile::rename(archive, kept));
    write(archive, "of another session");
    ASSERT_TRUE(document->recover()) << qPrintable(document->errorString());
    EXPECT_EQ(text(), unsaved);
    ASSERT_TRUE(describe(u"more"_s) && autosave());
    EXPECT_EQ(read(kept), "of another session");
    EXPECT_EQ(archives().size(), 2);
    crash();
    write(document->project().autosavePath(), "of another session");
    EXPECT_FALSE(document->hasRecovery() || document->discardRecovery());
    ASSERT_TRUE(describe(u"saved"_s) && autosave() && document->save());
    EXPECT_EQ(archives(), QStringList({u"Pumps.kdproj.kdasv.tmp1"_s, u"Pumps.kdproj.kdasv.tmp2"_s}));
}

TEST_F(ProjectDocumentTest, ItClosesWhileItsAutosaveRuns)
{
    const QString archive = document->project().autosavePath();
    ASSERT_TRUE(describe(u"unsaved"_s));
    ASSERT_TRUE(document->project().autosave().run());
    document.reset();
    EXPECT_FALSE(QFile::exists(archive));
}

TEST_F(ProjectDocumentTest, RecoveryAfterACrashWaitsForAnAnswer)
{
    const QString archive = document->project().autosavePath();
    ASSERT_TRUE(describe(u"unsaved"_s));
    addImage(document->project(), u"a.png"_s);
    ASSERT_TRUE(autosave());
    const QString unsaved = text();
    write(path(u"copy"_s), read(archive));
    document.reset();
    EXPECT_FALSE(QFile::exists(archive)) << "its user has left the edits";
    QFile::remove(path(u"Pumps/Images/a.png"_s));
    write(archive, read(path(u"copy"_s)));

    QFile::rename(archive, archive + u".tmp"_s); // killed while the next archive was packed
    openAgain();
    ASSERT_TRUE(document->hasRecovery());
    ASSERT_TRUE(describe(u"new"_s) && document->save());
    EXPECT_FALSE(document->project().autosave().run()) << "it would replace what is to be recovered";
    document.reset();
    EXPECT_TRUE(QFile::exists(archive)) << "nobody has answered";
    write(file, read(file)); // it is newer than the archive then
    openAgain();
    ASSERT_TRUE(document->hasRecovery());
    EXPECT_LE(document->recoveryTime(), QFileInfo(file).lastModified());
    const QByteArray saved = read(file);
    ASSERT_TRUE(document->recover()) << qPrintable(document->errorString());
    EXPECT_EQ(text(), unsaved);
    EXPECT_EQ(document->project().fullFilePath(), file);
    EXPECT_TRUE(document->project().imageResources()->getListItem(u"a.png"_s)->isValid());
    EXPECT_TRUE(document->isModified());
    EXPECT_EQ(document->history().savedPosition(), -1);
    EXPECT_EQ(read(file), saved);
    ASSERT_TRUE(document->save());
    EXPECT_FALSE(QFile::exists(archive));
    EXPECT_TRUE(QFile::exists(path(u"Pumps/Images/a.png"_s)));

    document.reset();
    write(archive, "no archive");
    openAgain();
    const QString before = text();
    EXPECT_FALSE(document->recover());
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(document->discardRecovery());
    EXPECT_FALSE(QFile::exists(archive));
}

TEST_F(ProjectDocumentTest, OfTwoAutosavesTheNewerCompleteOneIsOffered)
{
    const QString archive = document->project().autosavePath();
    ASSERT_TRUE(describe(u"older"_s) && autosave());
    const QByteArray older = read(archive);
    ASSERT_TRUE(describe(u"newer"_s) && autosave());
    const QByteArray newer = read(archive);
    for (const bool isDamaged : {false, true}) {
        document.reset();
        write(archive, isDamaged ? newer.first(newer.size() / 2) : newer);
        write(archive + u".tmp"_s, older);
        openAgain();
        ASSERT_TRUE(document->recover()) << qPrintable(document->errorString());
        EXPECT_EQ(level()->valueString(), isDamaged ? u"older"_s : u"newer"_s);
        EXPECT_FALSE(QFile::exists(archive + u".tmp"_s));
        ASSERT_TRUE(document->reload());
        EXPECT_EQ(archives().size(), isDamaged) << "the damaged one is kept";
    }
}

TEST_F(ProjectDocumentTest, ProjectsAreLoadedInAnotherThread)
{
    const QString expected = text();
    document.reset();
    auto job = ProjectDocument::load(file);
    ASSERT_EQ(outcomeOf(*job), Job::Outcome::Done);
    EXPECT_EQ(job->progress().percent(), 100);
    std::unique_ptr<Project> loaded = job->takeResult().value();
    EXPECT_EQ(loaded->variables()->getListItemAtIndex(0)->thread(), QThread::currentThread());
    EXPECT_EQ(loaded->undoStack()->thread(), QThread::currentThread());
    open(std::move(loaded));
    EXPECT_EQ(text(), expected);
    ASSERT_TRUE(describe(u"later"_s) && document->save());

    for (const bool isDeleted : {false, true}) {
        auto cancelled = ProjectDocument::load(file, ProjectDocument::Access::Alone);
        cancelled->cancel();
        if (!isDeleted) {
            EXPECT_EQ(outcomeOf(*cancelled), Job::Outcome::Cancelled);
        }
        cancelled.reset();
        EXPECT_TRUE(Common::FolderLock(path(u"Pumps"_s), Common::FolderLock::Kind::Exclusive).isReal());
    }
    auto missing = ProjectDocument::load(path(u"none.kdproj"_s));
    EXPECT_EQ(outcomeOf(*missing), Job::Outcome::Failed);
    EXPECT_FALSE(missing->errorString().isEmpty());
}

TEST_F(ProjectDocumentTest, AProjectCannotBeEditedWhileAJobReadsIt)
{
    qputenv("TMPDIR", path(u"temporary"_s).toLocal8Bit());
    QDir().mkdir(path(u"temporary"_s));
    const std::unique_ptr<ConfigurationContainer> models(
        make<ConfigurationContainer>(u"ConfigurationContainer"_s, u"models"_s));
    auto check = document->check(*models);
    EXPECT_TRUE(describe(u"edit"_s)) << "an edit does not wait for a check";
    EXPECT_EQ(outcomeOf(*check), Job::Outcome::Cancelled);
    check = document->check(*models);
    ASSERT_EQ(outcomeOf(*check), Job::Outcome::Done);
    EXPECT_FALSE(check->takeResult()->isEmpty()) << "the model is unknown";

    ProblemList problems(document->project(), *models);
    auto build = document->build();
    problems.update();
    EXPECT_FALSE(problems.isCurrent()) << "checking writes to the model, too";
    const QString before = text();
    EXPECT_FALSE(Commands::changeOf({{level(), u"edit of a build"_s}}).reason.isEmpty());
    EXPECT_FALSE(describe(u"edit of a build"_s));
    EXPECT_FALSE(document->undo());
    EXPECT_FALSE(document->errorString().isEmpty());
    EXPECT_EQ(text(), before);
    ASSERT_EQ(outcomeOf(*build), Job::Outcome::Done) << qPrintable(build->errorString());
    EXPECT_TRUE(QTest::qWaitFor([&problems] { return problems.isCurrent(); }));
    std::optional<ProjectDocument::BuildFolder> built = build->takeResult();
    const QString place = **built;
    EXPECT_TRUE(QFile::exists(place + u"/project/Project.kdproj.zip"_s));
    built.reset();
    EXPECT_FALSE(QFile::exists(place));
    EXPECT_TRUE(describe(u"after the build"_s));

    const QStringList files = filesIn(path(u"temporary"_s));
    for (const bool isDeleted : {false, true}) {
        build = document->build();
        build->cancel();
        if (!isDeleted) {
            EXPECT_EQ(outcomeOf(*build), Job::Outcome::Cancelled);
        }
        build.reset();
        EXPECT_EQ(filesIn(path(u"temporary"_s)), files);
    }
    ASSERT_TRUE(document->beginGesture(u"Drag"_s));
    EXPECT_FALSE(document->build());
    qunsetenv("TMPDIR");
}

TEST_F(ProjectDocumentTest, ATableIsImportedWholeOrNotAtAll)
{
    QByteArray table = "name,class,value\nlevel,StringVariable,high\n";
    for (int i = 0; i < 2000; ++i) {
        table += "new" + QByteArray::number(i) + ",StringVariable,x\n";
    }
    const QString before = text();
    auto job = document->importVariables(table);
    EXPECT_FALSE(describe(u"edit"_s));
    EXPECT_FALSE(document->undo());
    ASSERT_EQ(outcomeOf(*job), Job::Outcome::Done) << qPrintable(job->errorString());
    const ProjectDocument::ImportResult result = job->takeResult().value();
    EXPECT_EQ(result.addedVariables, 2000);
    EXPECT_EQ(result.changedValues, 1);
    EXPECT_EQ(document->history().count(), 1);
    EXPECT_EQ(document->project().variables()->listItemCount(), 2001);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);

    const struct
    {
        QByteArray row;
        QString problem;
    } wrong[] = {
        {"level,NumberVariable,1\n", u"line 2003: "_s},
        {"Main,StringVariable,1\n", u"line 2003: "_s}, // detected when all rows are read
    };
    for (const auto &[row, problem] : wrong) {
        job = document->importVariables(table + row);
        EXPECT_EQ(outcomeOf(*job), Job::Outcome::Failed);
        EXPECT_TRUE(job->errorString().startsWith(problem)) << qPrintable(job->errorString());
        EXPECT_EQ(text(), before);
    }
    for (const bool isDeleted : {false, true}) {
        job = document->importVariables(table);
        QEventLoop untilSomeAreThere;
        QObject::connect(&document->project(), &DesignerObject::propertyListItemAdded, &untilSomeAreThere,
                         &QEventLoop::quit);
        untilSomeAreThere.exec();
        EXPECT_NE(text(), before);
        ASSERT_TRUE(job->isRunning());
        if (isDeleted) {
            job.reset();
        } else {
            job->cancel();
            EXPECT_EQ(outcomeOf(*job), Job::Outcome::Cancelled);
        }
        EXPECT_EQ(text(), before);
        EXPECT_EQ(document->history().redoText(), u"Import variables"_s) << "what was undone is still there";
        EXPECT_TRUE(document->history().canRedo());
    }
    job = document->importVariables(table);
    document.reset();
    EXPECT_EQ(outcomeOf(*job), Job::Outcome::Cancelled) << "its document is gone";
}

TEST_F(ProjectDocumentTest, AllScreensAreDrawnOrNone)
{
    add(document->project(), document->project().screens(), u"Screen"_s, u"Other"_s);
    const QStringList files = filesIn(path());
    const QString target = path(u"pictures"_s);
    for (const bool isDeleted : {false, true}) {
        auto cancelled = document->renderScreens(target);
        if (isDeleted) {
            cancelled.reset();
        } else {
            EXPECT_TRUE(describe(u"an edit"_s));
            EXPECT_EQ(outcomeOf(*cancelled), Job::Outcome::Cancelled);
        }
        EXPECT_EQ(filesIn(path()), files);
        EXPECT_FALSE(QFile::exists(target));
    }
    for (const bool isThere : {false, true}) {
        auto job = document->renderScreens(target);
        ASSERT_EQ(outcomeOf(*job), Job::Outcome::Done) << qPrintable(job->errorString());
        EXPECT_EQ(job->takeResult(), QStringList({target + u"/Main.png"_s, target + u"/Other.png"_s}));
        EXPECT_EQ(QImage(target + u"/Other.png"_s).size(), QSize(480, 272));
        EXPECT_EQ(filesIn(path()).size(), files.size() + 2 + isThere);
        write(target + u"/mine"_s, "mine");
        write(target + u"/Other.png"_s, "old");
    }
    write(path(u"file"_s), "file");
    auto job = document->renderScreens(path(u"file/pictures"_s));
    EXPECT_EQ(outcomeOf(*job), Job::Outcome::Failed);
    EXPECT_FALSE(job->errorString().isEmpty());
    document->project().screens()->listItems().constLast()->setIdName(u"../../report"_s);
    job = document->renderScreens(target);
    EXPECT_EQ(outcomeOf(*job), Job::Outcome::Failed);
    EXPECT_TRUE(job->errorString().contains(u"../../report"_s)) << qPrintable(job->errorString());
}

} // namespace Halvane::Corvex::Designer
