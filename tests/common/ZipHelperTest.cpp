// SPDX-License-Identifier: MIT
#include "corvex/common/Progress.h"
#include "corvex/common/zip/ZipHelper.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Halvane::Corvex::Common::Progress;
using Halvane::Corvex::Common::ZipHelper;

namespace {

class ZipHelperTest : public testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    void put(const QString &name, const QByteArray &bytes, int day = 1) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.flush();
        file.setFileTime(QDateTime(QDate(2020, 1, day), QTime(12, 0)), QFile::FileModificationTime);
    }

    QByteArray get(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }

    //! Changes the only entry of the archive z, which has the name "aaaa".
    void forge(const QByteArray &name, quint32 mode, quint32 size) const
    {
        put(u"aaaa"_s, QByteArray(100000, 'x'));
        ASSERT_TRUE(ZipHelper::zipWithFiles({path(u"aaaa"_s)}, path(u"z"_s), {}, 9));
        QByteArray bytes = get(u"z"_s);
        bytes.replace("aaaa", name);
        const qsizetype central = bytes.indexOf("PK\x01\x02");
        qToLittleEndian(size, bytes.data() + 22);
        qToLittleEndian(size, bytes.data() + central + 24);
        qToLittleEndian(mode << 16, bytes.data() + central + 38);
        put(u"z"_s, bytes);
    }

    QTemporaryDir m_folder;
};

constexpr quint32 fileMode = 0100644;

} // namespace

TEST_F(ZipHelperTest, FilesAreStoredUnderTheirNames)
{
    put(u"in/one.txt"_s, "1");
    put(u"in/deep/zwei ü.txt"_s, QByteArray(10000, 'z'));
    const QStringList files{path(u"in/one.txt"_s), path(u"in/deep/zwei ü.txt"_s)};
    ASSERT_TRUE(ZipHelper::zipWithFiles(files, path(u"z.zip"_s), u"a comment"_s, 10));
    EXPECT_EQ(ZipHelper::entryNames(path(u"z.zip"_s)), QStringList({u"one.txt"_s, u"zwei ü.txt"_s}));
    EXPECT_TRUE(get(u"z.zip"_s).endsWith("a comment"));
}

TEST_F(ZipHelperTest, BytesArePackedLikeAFile)
{
    QByteArray noise;
    for (quint32 i = 0, number = 1; i < 100'000; ++i) {
        noise.append(char((number = number * 1'664'525 + 1'013'904'223) >> 24));
    }
    const QByteArray manyPieces = noise.repeated(50);
    const QByteArray onePiece(2 * 1024 * 1024, 'z');
    for (const QByteArray &bytes : {QByteArray(), QByteArray(1'000'000, 'z'), noise, onePiece, manyPieces}) {
        for (const int level : {0, 9, 10}) {
            ASSERT_TRUE(ZipHelper::zipWithBytes(bytes, u"ü.txt"_s, path(u"z.zip"_s), u"a comment"_s, level));
            ASSERT_TRUE(ZipHelper::unzip(path(u"z.zip"_s), path(u"out"_s)));
            EXPECT_EQ(get(u"out/ü.txt"_s), bytes);
            EXPECT_TRUE(get(u"z.zip"_s).endsWith("a comment"));
        }
    }
}

TEST_F(ZipHelperTest, FailuresLeaveTheOldArchive)
{
    put(u"a"_s, "x");
    put(u"b/a"_s, "y");
    put(u"z.zip"_s, "old");
    const QList<QStringList> lists{{}, {path(u"a"_s), path(u"missing"_s)}, {path(u"a"_s), path(u"b/a"_s)}};
    for (const QStringList &files : lists) {
        QString error;
        EXPECT_FALSE(ZipHelper::zipWithFiles(files, path(u"z.zip"_s), {}, 9, &error));
        EXPECT_TRUE(error.startsWith(files.isEmpty() ? path(u"z.zip"_s) : files.last()))
            << error.toStdString();
    }
    EXPECT_FALSE(ZipHelper::zipWithFiles({path(u"a"_s)}, path(u"z.zip"_s), QString(70000, u'c'), 9));
    EXPECT_FALSE(ZipHelper::zipDirectory(path(u"missing"_s), path(u"z.zip"_s)));
    EXPECT_EQ(get(u"z.zip"_s), "old");
}

TEST_F(ZipHelperTest, CancelledPackingLeavesTheOldArchive)
{
    put(u"in/file"_s, QByteArray(3'000'000, 'x'));
    put(u"z"_s, "old");
    Progress progress;
    progress.cancel();
    QString error;
    EXPECT_FALSE(ZipHelper::zipDirectory(path(u"in"_s), path(u"z"_s), &error, &progress));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(ZipHelper::zipWithFiles({path(u"in/file"_s)}, path(u"z"_s), {}, 9, nullptr, &progress));
    EXPECT_FALSE(
        ZipHelper::zipWithBytes(get(u"in/file"_s), u"name"_s, path(u"z"_s), {}, 9, nullptr, &progress));
    EXPECT_EQ(get(u"z"_s), "old");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"z"_s});
}

TEST_F(ZipHelperTest, EqualFoldersGiveEqualBytesAndUnpackUnchanged)
{
    const QByteArray zone = qgetenv("TZ");
    int turn = 0;
    for (const QString &root : {u"first"_s, u"second"_s}) {
        qputenv("TZ", turn == 0 ? "UTC" : "Asia/Tokyo");
        const QStringList names{u"b.txt"_s, u"a/x.txt"_s, u"a.txt"_s, u".hidden"_s};
        for (int i = 0; i < names.size(); ++i) {
            const QString name = root + u'/' + names.at(turn == 0 ? i : names.size() - 1 - i);
            put(name, QFileInfo(name).fileName().toUtf8(), turn + 2);
        }
        QFile::setPermissions(path(root + u"/b.txt"_s),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QFile::link(u"/etc/passwd"_s, path(root + u"/link"_s));
        // The path of the folder never appears in the names, however it is written.
        const QString given = turn == 0 ? path(root) : QDir::current().relativeFilePath(path(root)) + u"/."_s;
        ASSERT_TRUE(ZipHelper::zipDirectory(given, path(root + u"/out.zip"_s)));
        ++turn;
    }
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    EXPECT_EQ(get(u"first/out.zip"_s), get(u"second/out.zip"_s));
    EXPECT_EQ(ZipHelper::entryNames(path(u"first/out.zip"_s)),
              QStringList({u".hidden"_s, u"a.txt"_s, u"a/x.txt"_s, u"b.txt"_s}));

    QString error;
    ASSERT_TRUE(ZipHelper::unzip(path(u"first/out.zip"_s), path(u"new/out"_s), &error))
        << error.toStdString();
    EXPECT_EQ(get(u"new/out/a/x.txt"_s), "x.txt");
    EXPECT_EQ(get(u"new/out/.hidden"_s), ".hidden");
}

TEST_F(ZipHelperTest, UnzipRefusesForgedArchives)
{
    const struct
    {
        QByteArray name;
        quint32 mode, size;
    } rows[] = {
        {"/aaa", fileMode, 100000},  {"../a", fileMode, 100000}, {"a/..", fileMode, 100000},
        {"a\\b.", fileMode, 100000}, {"C:aa", fileMode, 100000}, {"a//a", fileMode, 100000},
        {"link", 0120777, 100000},   {"pipe", 0010644, 100000},  {"size", fileMode, 4000000000},
        {"more", fileMode, 90000},   {"less", fileMode, 110000},
    };
    for (const auto &row : rows) {
        QString error;
        forge(row.name, row.mode, row.size);
        EXPECT_FALSE(ZipHelper::unzip(path(u"z"_s), path(u"out/in"_s), &error)) << row.name.toStdString();
        EXPECT_FALSE(error.isEmpty()) << row.name.toStdString();
        EXPECT_TRUE(QDir(path(u"out/in"_s)).isEmpty() && !QFileInfo::exists(path(u"out/a"_s)));
    }
    forge("good", fileMode, 100000);
    EXPECT_TRUE(ZipHelper::unzip(path(u"z"_s), path(u"out/in"_s)));
    QByteArray bytes = get(u"z"_s);
    bytes[14] = char(bytes[14] ^ 1);
    bytes[bytes.indexOf("PK\x01\x02") + 16] = bytes[14];
    put(u"z"_s, bytes);
    EXPECT_FALSE(ZipHelper::unzip(path(u"z"_s), path(u"out/other"_s)));
    for (const QByteArray &other : {QByteArray(), QByteArray("text"), bytes.chopped(30)}) {
        put(u"z"_s, other);
        EXPECT_FALSE(ZipHelper::unzip(path(u"z"_s), path(u"out/other"_s)));
        EXPECT_EQ(ZipHelper::entryNames(path(u"z"_s)), QStringList());
    }
}

TEST_F(ZipHelperTest, UnzipDoesNotWriteThroughLinks)
{
    put(u"in/sub/file"_s, "new");
    put(u"outside/file"_s, "old");
    ASSERT_TRUE(ZipHelper::zipDirectory(path(u"in"_s), path(u"z"_s)));
    QDir().mkpath(path(u"out1"_s));
    QFile::link(path(u"outside"_s), path(u"out1/sub"_s));
    EXPECT_FALSE(ZipHelper::unzip(path(u"z"_s), path(u"out1"_s)));
    QDir().mkpath(path(u"out2/sub"_s));
    QFile::link(path(u"outside/file"_s), path(u"out2/sub/file"_s));
    EXPECT_FALSE(ZipHelper::unzip(path(u"z"_s), path(u"out2"_s)));
    EXPECT_EQ(get(u"outside/file"_s), "old");
}
