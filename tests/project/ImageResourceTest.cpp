// SPDX-License-Identifier: MIT
#include "corvex/project/files/FileNameRules.h"

#include "ProjectFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using ImageResourceTest = Test::ProjectFixture;

TEST_F(ImageResourceTest, NamesAreRefusedWithTheseMessages)
{
    constexpr auto extension = "The name is in the wrong format. Please ensure you include the image's file "
                               "extension: png, jpg, jpeg, bmp, gif, svg"_L1;
    const struct
    {
        QString name;
        QString error;
    } cases[] = {
        {u"a.png"_s, {}},
        {u"aux_image.PNG"_s, {}},
        {u"image.aux.png"_s, {}},
        {u"%1 ~`!@#$&'()-_+={}[],.jpeg"_s, {}},
        {QString(251, u'x') + u".png"_s, {}},
        {QString(252, u'x') + u".png"_s, u"The image name cannot have more than 255 characters."_s},
        {u"picture"_s, extension},
        {u"picture.tiff"_s, extension},
        {u"a?.png"_s, u"The name is in the wrong format. The following character may not be used: ?"_s},
        {u"../../x.png"_s, u"The name is in the wrong format. The following character may not be used: /"_s},
        {u"\"<a>\".png"_s,
         u"The name is in the wrong format. The following characters may not be used: \" < >"_s},
        {u" a.png"_s, u"An error occurred."_s},
        {u".png"_s, u"An error occurred."_s},
        {u"aux.png"_s, u"This name is reserved."_s},
        {u"Com1.x.png"_s, u"This name is reserved."_s},
    };
    for (const auto &[name, error] : cases) {
        EXPECT_EQ(FileNameRules::imageNameError(name), error) << qPrintable(name);
    }

    const auto project = makeProject();
    add(*project, project->imageResources(), u"ImageResource"_s, u"a%1.png"_s);
    DesignerObject *second = add(*project, project->imageResources(), u"ImageResource"_s, u"b.png"_s);
    second->setIdName(u"a%1.png"_s);
    EXPECT_EQ(second->idProperty()->errorString(),
              u"An image resource with name \"a%1.png\" already exists."_s);
    second->setIdName(u"b.tiff"_s);
    EXPECT_EQ(second->idProperty()->errorString(), extension);
}

TEST_F(ImageResourceTest, TheContentsMatchTheExtension)
{
    const auto project = makeProject();
    ASSERT_TRUE(project->createFile(path()));
    EXPECT_TRUE(addImage(*project, u"a.png"_s)->isValid());
    EXPECT_TRUE(addImage(*project, u"a.jpeg"_s)->isValid());
    EXPECT_EQ(project->imageResources()->listItemNames(), QStringList({u"a.jpeg"_s, u"a.png"_s}));

    writePicture(path(u"Pumps/Images/b.jpg"_s), "png");
    const DesignerObject *mismatch = add(*project, project->imageResources(), u"ImageResource"_s, u"b.jpg"_s);
    EXPECT_EQ(
        mismatch->getProperty(u"imageFile")->errorString(),
        u"The file \"b.jpg\" is an image of the kind png. Its name must end with \".png\", and \"b.jpg\" does not."_s);
    const DesignerObject *missing = add(*project, project->imageResources(), u"ImageResource"_s, u"c.png"_s);
    EXPECT_EQ(missing->getProperty(u"imageFile")->errorString(), u"The file \"c.png\" does not exist."_s);
    EXPECT_FALSE(read(project->fullFilePath()).contains("imageFile"));
}

TEST_F(ImageResourceTest, NamesCannotLeaveTheImagesFolder)
{
    const auto project = makeProject();
    ASSERT_TRUE(project->createFile(path()));
    addImage(*project, u"a.png"_s);
    writePicture(path(u"outside.png"_s));
    DesignerObject *image =
        add(*project, project->imageResources(), u"ImageResource"_s, u"../../outside.png"_s);
    EXPECT_EQ(static_cast<ImageResource *>(image)->filePath(), QString());
    EXPECT_FALSE(image->getProperty(u"imageFile")->isValid());
    ASSERT_TRUE(project->createFileCopy(path(), u"Copy"_s));
    EXPECT_EQ(filesIn(path(u"Copy"_s)), QStringList({u"Copy.kdproj"_s, u"Images/a.png"_s}));
    ASSERT_TRUE(project->deleteFile());
    EXPECT_TRUE(QFileInfo::exists(path(u"outside.png"_s)));
}

TEST_F(ImageResourceTest, AnImageIsCopiedAndItsSourceNeverWritten)
{
    const auto project = makeProject();
    ASSERT_TRUE(project->createFile(path()));
    writePicture(path(u"elsewhere/photo.png"_s));
    const QByteArray bytes = read(path(u"elsewhere/photo.png"_s));
    auto *image = make<ImageResource>(u"ImageResource"_s, u"a.png"_s);
    image->changePropertyValue(image->originalLocation(), path(u"elsewhere/photo.png"_s));
    ASSERT_TRUE(image->createFile(project->imagesPath())) << qPrintable(image->fileError());
    EXPECT_FALSE(image->createFile(project->imagesPath())) << "nothing that is there is written over";
    ASSERT_TRUE(project->addListPropertyItem(project->imageResources(), image));
    QSignalSpy failed(image, &DesignerObject::validationError);
    QSignalSpy mended(image, &DesignerObject::resetValidationError);

    image->setIdName(u"b.png"_s);
    EXPECT_FALSE(image->isValid()) << "the file still has its old name";
    ASSERT_TRUE(image->renameFile(u"a.png"_s, u"b.png"_s));
    EXPECT_TRUE(image->isValid());
    EXPECT_EQ(failed.size(), 1);
    EXPECT_EQ(mended.size(), 1);
    EXPECT_FALSE(image->renameFile(u"b.png"_s, u"../b.png"_s));
    EXPECT_TRUE(image->saveFile());
    EXPECT_EQ(read(path(u"Pumps/Images/b.png"_s)), bytes);

    EXPECT_TRUE(image->loadFile(path(u"elsewhere/photo.png"_s)));
    EXPECT_EQ(image->fileName(), u"photo.png"_s);
    EXPECT_FALSE(image->loadFile(path(u"nowhere.png"_s)));
}

} // namespace Halvane::Corvex::Designer
