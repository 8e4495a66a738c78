// SPDX-License-Identifier: MIT
// Commands that change image files.
#include "corvex/common/files/FileHelper.h"
#include "corvex/editing/commands/EditingDialogs.h"
#include "corvex/editing/commands/RenameProject.h"
#include "corvex/editing/commands/images/AddElementsWithResources.h"
#include "corvex/editing/commands/images/AddImage.h"
#include "corvex/editing/commands/images/AddImageFromData.h"
#include "corvex/editing/commands/images/AddImagesAndElements.h"
#include "corvex/editing/commands/images/DeleteImage.h"
#include "corvex/editing/commands/images/RenameImage.h"
#include "corvex/editing/commands/images/ReplaceImage.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/screens/AddScreenAndElements.h"
#include "corvex/project/ImageResource.h"

#include "CommandFixture.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ImageCommandTest : public CommandFixture
{
protected:
    QString picture(const QString &name, QColor color, const char *format = nullptr) const
    {
        QImage image(6, 4, QImage::Format_RGB32);
        image.fill(color);
        EXPECT_TRUE(image.save(folder.filePath(name), format));
        return folder.filePath(name);
    }
    QStringList files() const { return QDir(project->imagesPath()).entryList(QDir::Files, QDir::Name); }
    QColor shown(const QString &name) const
    {
        return QImage(project->imagesPath() + u'/' + name).pixelColor(0, 0);
    }
    QString source(const char *name) const
    {
        return value(element(name), "source").section(u"objectId: "_s, 1).section(u';', 0, 0);
    }
    void showPump()
    {
        ASSERT_TRUE(set(element("image1"), "source",
                        u"filterType: ImageResource; objectId: pump.png; scopeType: Project;"_s));
    }
};

TEST_F(ImageCommandTest, AddingCopiesTheFileAndSavingCleansUp)
{
    const QString file = picture(u"tank.png"_s, Qt::blue);
    push(new AddImage(make(u"ImageResource"_s, u"tank.png"_s), file, project.get(), {element("image1")}));
    EXPECT_EQ(stack().undoText(), u"Add Image Resource \"tank.png\""_s);
    EXPECT_EQ(source("image1"), u"tank.png"_s);
    EXPECT_EQ(files(), (QStringList{u"pump.png"_s, u"tank.png"_s}));
    stack().undo();
    EXPECT_EQ(source("image1"), QString());
    // The original file is gone, but undo restores the image.
    QFile::remove(file);
    stack().redo();
    EXPECT_EQ(source("image1"), u"tank.png"_s);
    EXPECT_TRUE(object(u"tank.png"_s)->isValid());
    stack().undo();
    ASSERT_TRUE(project->saveFile());
    EXPECT_EQ(files(), QStringList{u"pump.png"_s});

    EXPECT_FALSE(stack().push(new AddImage(make(u"ImageResource"_s, u"gone.png"_s), file, project.get())));
    EXPECT_FALSE(stack().errorString().isEmpty());
    auto *taken =
        new AddImage(make(u"ImageResource"_s, u"other.png"_s), picture(u"a.png"_s, Qt::green), project.get());
    writePicture("other.png", Qt::black);
    EXPECT_FALSE(stack().push(taken));
    EXPECT_EQ(shown(u"other.png"_s), QColor(Qt::black));
}

TEST_F(ImageCommandTest, DeletingLeavesTheFileUntilTheProjectIsSaved)
{
    showPump();
    push(new DeleteImage(object(u"pump.png"_s)));
    EXPECT_TRUE(stack().isDeleteImage());
    EXPECT_EQ(source("image1"), QString());
    EXPECT_EQ(files(), QStringList{u"pump.png"_s});
    stack().undo();
    EXPECT_EQ(source("image1"), u"pump.png"_s);
    EXPECT_TRUE(object(u"pump.png"_s)->isValid());
    stack().redo();
    ASSERT_TRUE(project->saveFile());
    EXPECT_EQ(files(), QStringList());
}

TEST_F(ImageCommandTest, RenamingAlsoRenamesTheFile)
{
    showPump();
    push(new RenameImage(object(u"pump.png"_s), u"Pump.png"_s));
    EXPECT_EQ(files(), QStringList{u"Pump.png"_s});
    EXPECT_EQ(source("image1"), u"Pump.png"_s);
    EXPECT_TRUE(object(u"Pump.png"_s)->isValid());
    stack().undo();
    EXPECT_EQ(files(), QStringList{u"pump.png"_s});
    EXPECT_TRUE(object(u"pump.png"_s)->isValid());
    // Changing the name as a property does the same.
    IdentifierInfo info = object(u"pump.png"_s)->getIdInfo();
    info.setName(u"motor.png"_s);
    auto *change = push(new ChangeProperty(object(u"pump.png"_s)->idProperty(), info.toString(), false));
    EXPECT_EQ(files(), QStringList{u"motor.png"_s});
    EXPECT_EQ(source("image1"), u"motor.png"_s);
    EXPECT_EQ(change->selectedItems(), QList<DesignerObject *>());
    stack().undo();
    EXPECT_EQ(files(), QStringList{u"pump.png"_s});
    for (const QString &bad : {u"pump.txt"_s, u"aux.png"_s, u"pump.jpg"_s}) {
        EXPECT_FALSE(RenameImage(object(u"pump.png"_s), bad).isValid()) << qPrintable(bad);
    }
    QFile text(folder.filePath(u"text.png"_s));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly) && text.write("no image") > 0);
    text.close();
    const AddImage added(make(u"ImageResource"_s, u"text.png"_s), text.fileName(), project.get());
    EXPECT_FALSE(added.isValid());
    EXPECT_EQ(added.errorString(), u"The file \"text.png\" is not an image of one of these kinds: "_s
                                       + Common::FileHelper::validImageExtensions().join(u", "_s));
    EXPECT_FALSE(ReplaceImage(object(u"pump.png"_s), text.fileName(), u"pump.png"_s).isValid());
    EXPECT_TRUE(AddImage(make(u"ImageResource"_s, u"sea.png"_s), picture(u"sea.dat"_s, Qt::cyan, "PNG"),
                         project.get())
                    .isValid());
    // Nothing is overwritten.
    writePicture("taken.png", Qt::black);
    EXPECT_FALSE(stack().push(new RenameImage(object(u"pump.png"_s), u"taken.png"_s)));
    EXPECT_EQ(shown(u"taken.png"_s), QColor(Qt::black));
    EXPECT_EQ(source("image1"), u"pump.png"_s);
    push(new AddImage(make(u"ImageResource"_s, u"PUMP.png"_s), picture(u"sea.png"_s, Qt::cyan),
                      project.get()));
    push(new DeleteImage(object(u"pump.png"_s)));
    EXPECT_FALSE(stack().push(new RenameImage(object(u"PUMP.png"_s), u"pump.png"_s)));
    EXPECT_TRUE(stack().errorString().endsWith(u"exists already."_s)) << qPrintable(stack().errorString());
}

TEST_F(ImageCommandTest, UndoOfAReplacementRestoresTheOldImage)
{
    showPump();
    const QString file = picture(u"new.png"_s, Qt::blue);
    push(new ReplaceImage(object(u"pump.png"_s), file, u"pump.png"_s));
    EXPECT_EQ(shown(u"pump.png"_s), QColor(Qt::blue));
    stack().undo();
    EXPECT_EQ(shown(u"pump.png"_s), QColor(Qt::red));
    QFile::remove(file);
    stack().redo();
    EXPECT_EQ(shown(u"pump.png"_s), QColor(Qt::blue));
    ASSERT_TRUE(project->saveFile());
    EXPECT_EQ(files(), QStringList{u"pump.png"_s});

    push(new ReplaceImage(object(u"pump.png"_s), picture(u"new.png"_s, Qt::green), u"well.png"_s));
    EXPECT_EQ(source("image1"), u"well.png"_s);
    stack().undo();
    EXPECT_EQ(source("image1"), u"pump.png"_s);
    EXPECT_EQ(shown(u"pump.png"_s), QColor(Qt::blue));
    EXPECT_FALSE(ReplaceImage(object(u"pump.png"_s), folder.filePath(u"no.png"_s), u"pump.png"_s).isValid());
    EXPECT_FALSE(
        ReplaceImage(object(u"pump.png"_s), picture(u"new.jpg"_s, Qt::blue), u"pump.png"_s).isValid());
}

TEST_F(ImageCommandTest, UnsavedChangesDoNotCount)
{
    add(project->imageResources(), "ImageResource", "well.png");
    writePicture("well.png", Qt::green);
    ASSERT_TRUE(project->saveFile());
    const QString saved = project->fullFilePath();
    push(new RenameImage(object(u"pump.png"_s), u"engine.png"_s));
    push(new ReplaceImage(object(u"well.png"_s), picture(u"new.png"_s, Qt::blue), u"well.png"_s));
    push(new RenameProject(project.get(), u"Wells"_s));
    // A second project can read the file but not write it.
    Project &second = static_cast<Project &>(*make(u"Project"_s, u"Other"_s));
    const std::unique_ptr<DesignerObject> owned(&second);
    EXPECT_TRUE(second.loadFile(project->fullFilePath())) << qPrintable(second.fileError());
    EXPECT_FALSE(second.saveFile());
    EXPECT_TRUE(second.fileError().startsWith(u"Another program is working on the project"_s));
    EXPECT_TRUE(project->saveFile());
    EXPECT_EQ(files(), (QStringList{u"engine.png"_s, u"well.png"_s}));
    EXPECT_EQ(shown(u"well.png"_s), QColor(Qt::blue));

    push(new RenameProject(project.get(), u"Pumps"_s));
    push(new DeleteImage(object(u"engine.png"_s)));
    push(new RenameImage(object(u"well.png"_s), u"sea.png"_s));
    project.reset();
    EXPECT_FALSE(QFile::exists(saved));
    EXPECT_TRUE(second.loadFile(folder.filePath(u"Wells/Wells.kdproj"_s)));
    EXPECT_EQ(QDir(second.imagesPath()).entryList(QDir::Files),
              (QStringList{u"engine.png"_s, u"well.png"_s}));
}

TEST_F(ImageCommandTest, PicturesFromMemory)
{
    QImage image(6, 4, QImage::Format_RGB32);
    image.fill(Qt::cyan);
    push(new AddImageFromData(image, project.get()));
    EXPECT_EQ(stack().undoText(), u"Add \"Image Resource.png\" to \"Pumps\""_s);
    AddImageFromData again(image, project.get());
    EXPECT_FALSE(again.isValid());
    EXPECT_EQ(again.errorString(),
              u"The image data is already added to the project as \"Image Resource.png\"."_s);
    push(new AddImageFromData(image, main, {5, 5}));
    EXPECT_EQ(source("image2"), u"Image Resource.png"_s);
    image.fill(Qt::magenta);
    push(new AddImageFromData(image, main, {5, 5}));
    EXPECT_EQ(source("image3"), u"Image Resource1.png"_s);
    EXPECT_EQ(stack().activeItem(), element("image3"));
    EXPECT_EQ(value(element("image3"), "size"), u"height: 4; width: 6;"_s);
}

TEST_F(ImageCommandTest, DroppedFiles)
{
    struct : EditingDialogs
    {
        void warn(QWidget *, const QString &title, const QString &text) override
        {
            warnings.append(title + u": "_s + text);
        }
        QStringList warnings;
    } dialogs;
    EditingDialogs::install(&dialogs);
    const auto drop = [this](const QStringList &paths) {
        QList<QUrl> urls{QUrl(u"https://example.org/far.png"_s)};
        for (const QString &path : paths) {
            urls.append(QUrl::fromLocalFile(path));
        }
        return ImageResource::addImagesFromUrls(urls, main, {1, 2});
    };
    picture(u"aux.png"_s, Qt::red);
    picture(u"pump.png"_s, Qt::blue);
    picture(u"liar.jpg"_s, Qt::blue, "PNG");
    EXPECT_TRUE(drop(
        {folder.filePath(u"pump.png"_s), folder.filePath(u"liar.jpg"_s), folder.filePath(u"aux.png"_s)}));
    EXPECT_EQ(dialogs.warnings.takeFirst(),
              u"Add Images: The following images are invalid or their extensions do not match the image "
              "format: \n    aux.png\n     liar.jpg"_s);
    EXPECT_EQ(stack().undoText(), u"Add 1 Image"_s);
    EXPECT_EQ(source("image2"), u"pump1.png"_s);
    // The same contents again add an element but no file.
    EXPECT_TRUE(drop({folder.filePath(u"pump.png"_s), picture(u"sea.png"_s, Qt::cyan)}));
    EXPECT_EQ(stack().undoText(), u"Add 2 Images"_s);
    EXPECT_EQ(source("image3"), u"pump1.png"_s);
    EXPECT_EQ(source("image4"), u"sea.png"_s);
    EXPECT_FALSE(drop({folder.filePath(u"liar.jpg"_s)}));
    EXPECT_EQ(dialogs.warnings.takeFirst(),
              u"Add Image: The following image is invalid or its extension does not match the image format: "
              "\n    liar.jpg"_s);
    // A project that was never saved has no folder for images.
    const std::unique_ptr<DesignerObject> unsaved(make(u"Project"_s, u"Wells"_s));
    auto *screen =
        static_cast<Screen *>(add(static_cast<Project *>(unsaved.get())->screens(), "Screen", "Main"));
    EXPECT_FALSE(
        ImageResource::addImagesFromUrls({QUrl::fromLocalFile(folder.filePath(u"pump.png"_s))}, screen, {}));
    EXPECT_EQ(static_cast<Project *>(unsaved.get())->undoStack()->count(), 0);
    EXPECT_EQ(dialogs.warnings.size(), 1);
    EditingDialogs::install(nullptr);
    stack().setIndex(0);
    ASSERT_TRUE(project->saveFile());
    EXPECT_EQ(files(), QStringList{u"pump.png"_s});
}

TEST_F(ImageCommandTest, ElementsBringImagesAndVariables)
{
    const auto image = [&](const QString &name, const QString &file) {
        DesignerObject *resource = make(u"ImageResource"_s, name);
        EXPECT_TRUE(set(resource, "originalLocation", file));
        return resource;
    };
    push(new AddElementsWithResources(
        main, {make(u"Text"_s, u"pasted1"_s), make(u"Text"_s, u"pasted2"_s)},
        {image(u"pump.png"_s, project->imagesPath() + u"/pump.png"_s),
         image(u"new.png"_s, picture(u"new.png"_s, Qt::blue))},
        {make(u"NumberVariable"_s, u"speed"_s), make(u"NumberVariable"_s, u"depth"_s)}, true));
    EXPECT_EQ(stack().undoText(), u"Add 2 objects to \"Main\""_s);
    EXPECT_EQ(files(), (QStringList{u"new.png"_s, u"pump.png"_s}));
    EXPECT_TRUE(variable("depth"));

    EXPECT_FALSE(
        AddElementsWithResources(main, {make(u"Text"_s, u"pasted3"_s)}, {nullptr}, {}, true).isValid());
    EXPECT_FALSE(AddImagesAndElements({{nullptr, u"x.png"_s}}, {}, main).isValid());

    // If one part fails, nothing changes.
    const QString before = text();
    auto *failing = new AddElementsWithResources(main, {make(u"Text"_s, u"pasted3"_s)},
                                                 {image(u"far.png"_s, folder.filePath(u"far.png"_s))},
                                                 {make(u"NumberVariable"_s, u"flow"_s)}, true);
    EXPECT_FALSE(stack().push(failing));
    EXPECT_EQ(text(), before);
    EXPECT_EQ(files(), (QStringList{u"new.png"_s, u"pump.png"_s}));

    // A new screen brings them, too.
    const auto screenWith = [&](const QString &name, const QString &file) {
        auto *screen = static_cast<Screen *>(make(u"Screen"_s, name));
        screen->setProject(project.get());
        return new AddScreenAndElements(screen, project.get(), -1,
                                        new AddElementsWithResources(screen, {make(u"Text"_s, u"title"_s)},
                                                                     {image(u"sea.png"_s, file)}, {}, true));
    };
    AddScreenAndElements *added = screenWith(u"Third"_s, picture(u"sea.png"_s, Qt::cyan));
    EXPECT_TRUE(added->isValid() && added->changesFiles());
    push(added);
    EXPECT_TRUE(files().contains(u"sea.png"_s));
    stack().undo();
    EXPECT_EQ(text(), before);
    EXPECT_FALSE(stack().push(screenWith(u"Fourth"_s, u"none.png"_s)));
    EXPECT_EQ(text(), before);
}

} // namespace Halvane::Corvex::Designer::Test
