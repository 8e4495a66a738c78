// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/SafeFile.h"
#include "corvex/common/files/TemporaryFolder.h"

#include "support/FullDisk.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QSize>
#include <QTemporaryDir>

#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using Halvane::Corvex::Common::FileHelper;
using Halvane::Corvex::Common::SafeFile;
using Halvane::Corvex::Common::TemporaryFolder;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

class FileHelperTest : public testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(FileHelperTest, WriteReplacesAndKeepsPermissions)
{
    const auto mode = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    put(path(u"a"_s), "old");
    QFile::setPermissions(path(u"a"_s), mode);
    EXPECT_TRUE(FileHelper::writeFile(path(u"a"_s), "new"));
    EXPECT_EQ(contentOf(path(u"a"_s)), "new");
    EXPECT_EQ(QFile::permissions(path(u"a"_s)), mode);
    EXPECT_EQ(names(), QStringList(u"a"_s));
}

TEST_F(FileHelperTest, WriteFollowsLinks)
{
    put(path(u"target"_s), "old");
    QFile::link(u"target"_s, path(u"link"_s));
    EXPECT_TRUE(FileHelper::writeFile(path(u"link"_s), "new"));
    EXPECT_TRUE(QFileInfo(path(u"link"_s)).isSymLink());
    EXPECT_EQ(contentOf(path(u"target"_s)), "new");
}

TEST_F(FileHelperTest, FullDiskLeavesTheOldFile)
{
    put(path(u"a"_s), "old");
    // Blocks smaller than, equal to and larger than the buffer of a device, so that the first or a later
    // write fails.
    for (const qsizetype block : {100, 16384, 100000}) {
        QString error;
        const FullDisk disk(50000);
        SafeFile file(path(u"a"_s));
        ASSERT_TRUE(file.openForWriting(&error)) << error.toStdString();
        for (qsizetype written = 0; written < 200000; written += block) {
            file.write(QByteArray(block, 'x'));
        }
        EXPECT_FALSE(file.commit(&error));
        EXPECT_TRUE(error.contains(path(u"a"_s))) << error.toStdString();
        EXPECT_FALSE(error.contains(u"Unknown"_s)) << error.toStdString();
    }
    EXPECT_EQ(contentOf(path(u"a"_s)), "old");
    EXPECT_EQ(names(), QStringList(u"a"_s));
}

TEST_F(FileHelperTest, CopiesAreCompleteOrDoNotExist)
{
    put(path(u"a"_s), QByteArray(100'000, 'x'));
    put(path(u"taken"_s), "mine");
    QString error;
    {
        const FullDisk disk(50'000);
        EXPECT_FALSE(FileHelper::copyFile(path(u"a"_s), path(u"b"_s), &error));
    }
    EXPECT_TRUE(error.contains(path(u"b"_s)) && !error.contains(u"Unknown"_s)) << error.toStdString();
    EXPECT_FALSE(FileHelper::copyFile(path(u"a"_s), path(u"taken"_s)));
    EXPECT_FALSE(FileHelper::copyFile(path(u"missing"_s), path(u"b"_s)));
    EXPECT_FALSE(FileHelper::makeFolder(path(u"taken/below"_s), &error));
    EXPECT_TRUE(error.contains(path(u"taken/below"_s))) << error.toStdString();
    EXPECT_EQ(names(), QStringList({u"a"_s, u"taken"_s}));
    EXPECT_EQ(contentOf(path(u"taken"_s)), "mine");
    EXPECT_TRUE(FileHelper::copyFile(path(u"a"_s), path(u"b"_s)));
    EXPECT_EQ(contentOf(path(u"b"_s)), contentOf(path(u"a"_s)));
}

TEST_F(FileHelperTest, WriteErrorsNameTheFile)
{
    // A pipe instead of a device, which a test should not endanger.
    ASSERT_EQ(mkfifo(path(u"pipe"_s).toUtf8().constData(), 0600), 0);
    const QString bad[] = {path(u"missing/a"_s), path(u"pipe"_s), m_folder.path(), QString()};
    for (const QString &name : bad) {
        QString error;
        EXPECT_FALSE(FileHelper::writeFile(name, "x", &error)) << name.toStdString();
        EXPECT_TRUE(error.contains(name) && !error.endsWith(u' ')) << error.toStdString();
        EXPECT_EQ(FileHelper::md5(name), QString()) << name.toStdString();
    }
}

TEST_F(FileHelperTest, RemoveDirectoryStaysInside)
{
    QDir folder(m_folder.path());
    folder.mkpath(u"gone/deep/er"_s);
    folder.mkpath(u"kept"_s);
    put(path(u"kept/file"_s), "x");
    put(path(u"gone/.hidden"_s), "x");
    QFile::link(path(u"kept"_s), path(u"gone/deep/link"_s));
    EXPECT_TRUE(FileHelper::removeDirectory(path(u"gone/"_s)));
    EXPECT_FALSE(QFileInfo::exists(path(u"gone"_s)));
    EXPECT_TRUE(FileHelper::removeDirectory(path(u"gone"_s)));

    QFile::link(path(u"kept"_s), path(u"link"_s));
    EXPECT_TRUE(FileHelper::removeDirectory(path(u"link/"_s)));
    EXPECT_EQ(names(), QStringList(u"kept"_s));
    EXPECT_EQ(contentOf(path(u"kept/file"_s)), "x");
}

TEST_F(FileHelperTest, RemoveDirectoryRefuses)
{
    const QByteArray home = qgetenv("HOME");
    QDir(m_folder.path()).mkpath(u"users/me/plans"_s);
    qputenv("HOME", path(u"users/me"_s).toUtf8());
    for (const QString &bad : {u""_s, u"/"_s, u"//"_s, u"/tmp/.."_s, path(u"users/me"_s), path(u"users"_s),
                               path(u"users/me/plans/.."_s), path(u"users/me/."_s)}) {
        EXPECT_FALSE(FileHelper::removeDirectory(bad)) << bad.toStdString();
    }
    EXPECT_TRUE(FileHelper::removeDirectory(path(u"users/me/plans"_s)));
    qputenv("HOME", home);
}

TEST_F(FileHelperTest, TemporaryFoldersOfKilledProgramsAreRemoved)
{
    const auto count = [] { return QDir::temp().entryList({u"corvex-kept-test-*"_s}, QDir::Dirs).size(); };
    EXPECT_TRUE(QDir::temp().mkpath(u"corvex-kept-test-killed/deep"_s));
    EXPECT_TRUE(QDir::temp().mkpath(u"corvex-kept-test-of-a-user"_s));
    {
        const TemporaryFolder first(u"corvex-kept-test"_s);
        EXPECT_TRUE(QFileInfo(first.filePath(u"."_s)).isDir());
        const TemporaryFolder second(u"corvex-kept-test"_s);
        EXPECT_EQ(count(), 3);
    }
    EXPECT_EQ(count(), 1);
    EXPECT_TRUE(QDir::temp().rmdir(u"corvex-kept-test-of-a-user"_s));
}

TEST_F(FileHelperTest, VariantBytes)
{
    const QVariantMap map{{u"n"_s, -2}, {u"f"_s, 1.5F}};
    ASSERT_TRUE(FileHelper::variantToFile(map, path(u"v"_s), false));
    // The type number is that of a float, but the value is stored as a double.
    EXPECT_EQ(contentOf(path(u"v"_s)).toHex(), QByteArray("0000000800"
                                                          "00000002"
                                                          "00000002"
                                                          "0066"
                                                          "0000008700"
                                                          "3ff8000000000000"
                                                          "00000002"
                                                          "006e"
                                                          "0000000200"
                                                          "fffffffe"));
}

TEST_F(FileHelperTest, VariantsReadBack)
{
    const QVariantMap inner{
        {u"type"_s, 3}, {u"value"_s, 0.5F}, {u"persistent"_s, true}, {u"none"_s, QVariant()}};
    const QVariant values[] = {
        QVariant(),
        QVariantMap(),
        inner,
        QVariantMap{{u"a"_s, inner}, {u"b"_s, QVariantList{1, u"x"_s, inner}}},
        QStringList{u"a"_s, u""_s},
        QColor(1, 2, 3, 4),
        QSize(3, 4),
        5000000000LL,
        QByteArray("\0x", 2),
        -std::numeric_limits<float>::infinity(),
        QVariant::fromValue(QVariantHash{{u"k"_s, 2}}),
    };
    for (const QVariant &value : values) {
        for (const bool compressed : {false, true}) {
            bool ok = false;
            EXPECT_TRUE(FileHelper::variantToFile(value, path(u"v"_s), compressed));
            const QVariant read = FileHelper::fileToVariant(path(u"v"_s), &ok);
            EXPECT_TRUE(ok) << value.typeName();
            EXPECT_EQ(read.metaType(), value.metaType());
            EXPECT_EQ(read, value) << value.typeName();
        }
    }
    QString error;
    EXPECT_FALSE(FileHelper::variantToFile(QVariant::fromValue(QImage()), path(u"other"_s), false, &error));
    EXPECT_FALSE(error.isEmpty() || QFileInfo::exists(path(u"other"_s)));
}

TEST_F(FileHelperTest, VariantRefusesOtherBytes)
{
    const QVariantMap map{{u"list"_s, QVariantList{1, u"text"_s, QStringList{u"a"_s}}},
                          {u"c"_s, QColor(Qt::red)}};
    ASSERT_TRUE(FileHelper::variantToFile(map, path(u"v"_s), false));
    const QByteArray good = contentOf(path(u"v"_s));
    QByteArray nested;
    for (int i = 0; i < 100000; ++i) {
        nested += QByteArray::fromHex("000000090000000001");
    }
    const QByteArray bad[] = {
        "",
        good + '\0',
        nested,
        QByteArray::fromHex("0000000900ffffffff"),           // a list of 4 billion values
        QByteArray::fromHex("0000000b00ffffffff"),           // the same number of texts
        QByteArray::fromHex("0000000a00fffffffe"),           // a text with as many bytes
        QByteArray::fromHex("0000004600"),                   // an image, which is not supported
        QByteArray::fromHex("0000007f00000000044162634400"), // a type given by name
        qCompress(qCompress(good)),
        qCompress(QByteArray(80 << 20, 'x')),
        qCompress(good).chopped(1),
        QByteArray::fromHex("ffffffff789c"),
    };
    for (const QByteArray &bytes : bad) {
        bool ok = true;
        put(path(u"bad"_s), bytes);
        EXPECT_FALSE(FileHelper::fileToVariant(path(u"bad"_s), &ok).isValid());
        EXPECT_FALSE(ok) << bytes.left(32).toHex().toStdString();
    }
    for (qsizetype size = 0; size < good.size(); ++size) {
        bool ok = true;
        put(path(u"bad"_s), good.first(size));
        FileHelper::fileToVariant(path(u"bad"_s), &ok);
        EXPECT_FALSE(ok) << size;
    }
    bool ok = true;
    EXPECT_FALSE(FileHelper::fileToVariant(path(u"missing"_s), &ok).isValid());
    EXPECT_FALSE(ok);
}

TEST_F(FileHelperTest, ImagesMatchTheirExtension)
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(path(u"a.png"_s)) && image.save(path(u"a.JPG"_s), "JPG")
                && image.save(path(u"a.bmp"_s)));
    QFile::copy(path(u"a.JPG"_s), path(u"b.jpeg"_s));
    QFile::copy(path(u"a.png"_s), path(u"lie.jpg"_s));
    put(path(u"a.gif"_s),
        QByteArray::fromHex("47494638396101000100800000ffffff0000002c00000000010001000002024401003b"));
    put(path(u"a.svg"_s),
        "<?xml version='1.0'?><!-- c --><svg xmlns='http://www.w3.org/2000/svg'><g/></svg>");
    put(path(u"cut.svg"_s), "<svg xmlns='http://www.w3.org/2000/svg'><g>");
    put(path(u"html.svg"_s), "<html/>");
    put(path(u"cut.png"_s), contentOf(path(u"a.png"_s)).first(20));
    put(path(u"text.png"_s), "hello");
    put(path(u"empty.bmp"_s), "");
    const struct
    {
        QString name;
        bool valid;
        QString format;
    } rows[] = {
        {u"a.png"_s, true, u"png"_s},     {u"a.JPG"_s, true, u"jpg"_s},    {u"b.jpeg"_s, true, u"jpg"_s},
        {u"a.bmp"_s, true, u"bmp"_s},     {u"a.gif"_s, true, u"gif"_s},    {u"a.svg"_s, true, u"svg"_s},
        {u"lie.jpg"_s, false, u"png"_s},  {u"cut.svg"_s, false, u"svg"_s}, {u"html.svg"_s, false, u""_s},
        {u"cut.png"_s, false, u"png"_s},  {u"text.png"_s, false, u""_s},   {u"empty.bmp"_s, false, u""_s},
        {u"missing.png"_s, false, u""_s}, {u"."_s, false, u""_s},
    };
    for (const auto &row : rows) {
        QString format;
        EXPECT_EQ(FileHelper::isValidImage(path(row.name), &format), row.valid) << row.name.toStdString();
        EXPECT_EQ(format, row.format) << row.name.toStdString();
    }
}
