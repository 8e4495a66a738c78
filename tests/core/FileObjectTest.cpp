// SPDX-License-Identifier: MIT
#include "corvex/core/DirectoryObject.h"
#include "corvex/core/FileObject.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/core/properties/ObjectProperty.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! A recipe is a file "NAME.recipe" in a folder with its name. It cannot be stored without its part.
class Recipe : public FileObject
{
    CORVEX_CLASS_NAMES(Recipe, FileObject)

public:
    explicit Recipe(const QString &name, bool complete = true)
    {
        initialize();
        setIdName(name);
        getProperty(u"part")->setFlag(StoredFlag, !complete);
    }
    QString createFileName() const override
    {
        return getIdName().isEmpty() ? QString() : getIdName() + u".recipe"_s;
    }
    QString createSubPath() const override { return inOwnFolder ? getIdName() : QString(); }

    bool inOwnFolder = true;
    QStringList events;

protected:
    ObjectView *createGraphicsItem() override { return nullptr; }
    bool initializeProperties() override
    {
        static const PropertyTable table{
            row<LinkProperty>("next", "Next", ObjectLinkInfo()).flags(StoredFlag),
            row<ObjectProperty>("part", "Part", nullptr).flags(ObjectFlag),
        };
        return FileObject::initializeProperties() && addProperties(table);
    }
    void afterFileFieldsChanged() override { events << u"file "_s + fullFilePath(); }
    void finishReading() override { events << u"read"_s; }
};

class Shelf : public DirectoryObject
{
    CORVEX_CLASS_NAMES(Shelf, DirectoryObject)

public:
    QString createDirectoryName() const override { return u"Shelf"_s; }

protected:
    ObjectView *createGraphicsItem() override { return nullptr; }
};

class FileObjectTest : public testing::Test
{
protected:
    QString path(const QString &name = {}) const { return QDir(m_folder.path()).filePath(name); }
    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    void put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    //! The paths of everything in the folder.
    QStringList all() const
    {
        QStringList names;
        QDirIterator it(m_folder.path(),
                        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            names << QDir(m_folder.path()).relativeFilePath(it.next());
        }
        names.sort();
        return names;
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(FileObjectTest, TheFullPathStaysInTheParentFolder)
{
    const struct
    {
        QString parent, sub, file, expected;
    } rows[] = {
        {path(), u"P"_s, u"P.recipe"_s, path() + u"/P/P.recipe"_s},
        {path(), {}, u"P.recipe"_s, path() + u"/P.recipe"_s},
        {path(), u"%1%2"_s, u"%3"_s, path() + u"/%1%2/%3"_s},
        {path(), u"P"_s, {}, {}},
        {{}, u"P"_s, u"P.recipe"_s, {}},
        {path(u"missing"_s), u"P"_s, u"P.recipe"_s, {}},
        {path(), u".."_s, u"P.recipe"_s, {}},
        {path(), u"."_s, u"P.recipe"_s, {}},
        {path(), u"P"_s, u"../../P"_s, {}},
        {path(), u"a/b"_s, u"P"_s, {}},
        {path(), u"a\\..\\..\\b"_s, u"P"_s, {}},
        {path(), u"P"_s, u"a"_s + QChar::Null, {}},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(FileObject::createFullFilePath(row.parent, row.sub, row.file), row.expected)
            << qPrintable(row.sub + u" "_s + row.file);
    }
}

TEST_F(FileObjectTest, CreatesLoadsAndSavesItsFile)
{
    Recipe recipe(u"Soup"_s);
    EXPECT_FALSE(recipe.saveFile());
    EXPECT_FALSE(recipe.fileExists(path()));
    ASSERT_TRUE(recipe.createFile(path())) << qPrintable(recipe.fileError());
    EXPECT_TRUE(recipe.fileExists(path()));
    EXPECT_EQ(all(), (QStringList{u"Soup"_s, u"Soup/Soup.recipe"_s}));
    EXPECT_EQ(recipe.parentPath(), path());
    EXPECT_EQ(recipe.subPath(), u"Soup"_s);
    EXPECT_EQ(recipe.folderPath(), path(u"Soup"_s));

    ASSERT_TRUE(
        recipe.changePropertyValue(recipe.getProperty(u"next"), u"filterType: Recipe; objectId: tea;"_s));
    ASSERT_TRUE(recipe.saveFile());
    Recipe other(u"other"_s);
    ASSERT_TRUE(other.loadFile(path(u"Soup/Soup.recipe"_s))) << qPrintable(other.fileError());
    EXPECT_EQ(other.getIdName(), u"Soup"_s);
    EXPECT_EQ(other.getProperty(u"next")->valueString(), recipe.getProperty(u"next")->valueString());
    EXPECT_EQ(other.fullFilePath(), path(u"Soup/Soup.recipe"_s));
    EXPECT_EQ(other.parentPath(), path());
    // Files next to the object's file can be found while the object is read and validated.
    EXPECT_EQ(other.events, (QStringList{u"file "_s + path(u"Soup/Soup.recipe"_s), u"read"_s}));

    Recipe again(u"Soup"_s);
    EXPECT_FALSE(again.createFile(path())) << "it would write over a file";
    EXPECT_TRUE(again.fullFilePath().isEmpty());
}

TEST_F(FileObjectTest, RefusesToCreateAnIncompleteFile)
{
    Recipe halfDone(u"Stew"_s, false);
    EXPECT_FALSE(halfDone.createFile(path()));
    EXPECT_FALSE(halfDone.fileError().isEmpty());
    for (const QString &name : {u""_s, u".."_s, u"../Stew"_s, u"a/b"_s, u"s\\t"_s, QString(300, u'x')}) {
        EXPECT_FALSE(Recipe(name).createFile(path())) << qPrintable(name);
    }
    EXPECT_FALSE(Recipe(u"Stew"_s).createFile(path(u"missing"_s)));
    EXPECT_EQ(all(), QStringList());

    Recipe whole(u"Stew"_s);
    ASSERT_TRUE(whole.createFile(path()));
    const QByteArray before = content(u"Stew/Stew.recipe"_s);
    whole.getProperty(u"part")->setFlag(StoredFlag, true);
    EXPECT_FALSE(whole.saveFile());
    EXPECT_EQ(content(u"Stew/Stew.recipe"_s), before);
}

TEST_F(FileObjectTest, AFailedLoadForgetsTheFile)
{
    put(u"broken.recipe"_s, "<Recipe><Properties>");
    put(u"other.recipe"_s, "<Shelf/>");
    Recipe recipe(u"Soup"_s);
    ASSERT_TRUE(recipe.createFile(path()));
    const QByteArray before = content(u"Soup/Soup.recipe"_s);
    for (const QString &name : {u"broken.recipe"_s, u"other.recipe"_s}) {
        recipe.setFileFields(path(), u"Soup"_s, u"Soup.recipe"_s);
        EXPECT_FALSE(recipe.loadFile(path(name))) << qPrintable(name);
        EXPECT_TRUE(recipe.fileError().contains(path(name))) << qPrintable(recipe.fileError());
        EXPECT_FALSE(recipe.saveFile()) << "a half-read object over a good file";
    }
    for (const QString &name : {u"missing.recipe"_s, u"Soup"_s}) {
        recipe.setFileFields(path(), u"Soup"_s, u"Soup.recipe"_s);
        EXPECT_FALSE(recipe.loadFile(path(name))) << qPrintable(name);
        EXPECT_TRUE(recipe.fileError().contains(path(name))) << qPrintable(recipe.fileError());
        EXPECT_EQ(recipe.fullFilePath(), path(u"Soup/Soup.recipe"_s)) << "nothing was read";
    }
    EXPECT_EQ(content(u"Soup/Soup.recipe"_s), before);
}

TEST_F(FileObjectTest, RenamesItsFolderAndFile)
{
    Recipe recipe(u"Soup"_s);
    ASSERT_TRUE(recipe.createFile(path()));
    ASSERT_TRUE(QDir(path()).mkdir(u"Taken"_s));
    for (const QString &name : {u"Taken"_s, u""_s, u"../up"_s, u".."_s}) {
        EXPECT_FALSE(recipe.renameFile(u"Soup"_s, name)) << qPrintable(name);
    }
    ASSERT_TRUE(recipe.renameFile(u"Soup"_s, u"Broth"_s)) << qPrintable(recipe.fileError());
    EXPECT_EQ(all(), (QStringList{u"Broth"_s, u"Broth/Broth.recipe"_s, u"Taken"_s}));
    EXPECT_EQ(recipe.fullFilePath(), path(u"Broth/Broth.recipe"_s));

    // A file whose name differs from the object's keeps its name.
    ASSERT_TRUE(recipe.renameFile(u"Soup"_s, u"Tea"_s));
    EXPECT_EQ(recipe.fullFilePath(), path(u"Broth/Broth.recipe"_s));
}

TEST_F(FileObjectTest, DeletesOnlyItsOwnFiles)
{
    Recipe recipe(u"Soup"_s);
    ASSERT_TRUE(recipe.createFile(path()));
    put(u"Soup/photo.png"_s, "dear");
    EXPECT_TRUE(recipe.deleteFile());
    EXPECT_EQ(all(), (QStringList{u"Soup"_s, u"Soup/photo.png"_s}));
    EXPECT_FALSE(recipe.deleteFile());
    ASSERT_TRUE(QFile::remove(path(u"Soup/photo.png"_s)));
    ASSERT_TRUE(recipe.createFile(path()));
    EXPECT_TRUE(recipe.deleteFile());
    EXPECT_EQ(all(), QStringList());

    // The object was opened from a folder that is not its own, so the folder is kept.
    ASSERT_TRUE(QDir(path()).mkdir(u"Documents"_s));
    recipe.inOwnFolder = false;
    ASSERT_TRUE(recipe.createFile(path(u"Documents"_s)));
    recipe.inOwnFolder = true;
    ASSERT_TRUE(recipe.loadFile(path(u"Documents/Soup.recipe"_s)));
    EXPECT_TRUE(recipe.deleteFile());
    EXPECT_EQ(all(), QStringList{u"Documents"_s});
}

TEST_F(FileObjectTest, ADirectoryIsCreatedOnceAndFoundBothWays)
{
    Shelf shelf;
    EXPECT_FALSE(shelf.loadDirectory(path()));
    EXPECT_FALSE(shelf.createDirectory(path(u"missing"_s)));
    EXPECT_TRUE(shelf.fullPath().isEmpty());
    EXPECT_TRUE(shelf.createDirectory(path()));
    EXPECT_TRUE(shelf.createDirectory(path()));
    EXPECT_EQ(shelf.fullPath(), path(u"Shelf"_s));
    for (const QString &from : {path(), path(u"Shelf"_s), path(u"Shelf/"_s)}) {
        Shelf found;
        EXPECT_TRUE(found.loadDirectory(from)) << qPrintable(from);
        EXPECT_EQ(found.fullPath(), path(u"Shelf"_s));
    }
    ASSERT_TRUE(QDir(path()).rmdir(u"Shelf"_s));
    put(u"Shelf"_s, "a file");
    EXPECT_FALSE(shelf.loadDirectory(path()));
    EXPECT_FALSE(shelf.createDirectory(path()));
}

} // namespace

} // namespace Halvane::Corvex::Designer
