// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileStamp.h"
#include "corvex/common/files/FileStore.h"
#include "corvex/common/files/FileSync.h"
#include "corvex/common/files/FileTransaction.h"
#include "corvex/common/files/FolderLock.h"
#include "corvex/common/files/SafeFile.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Halvane::Corvex::Common;
using namespace Qt::StringLiterals;

namespace {

using Change = std::function<void(FileTransaction &)>;

class FileTransactionTest : public testing::Test
{
protected:
    void SetUp() override
    {
        write(u"P/P.proj"_s, "old");
        write(u"P/Images/pump.png"_s, "pump");
        write(u"P/Images/tank.png"_s, "tank");
    }
    QString path(const QString &name) const { return m_top.filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        ASSERT_TRUE(FileHelper::writeFile(path(name), bytes));
    }
    //! The contents of all files by name.
    QMap<QString, QByteArray> files() const
    {
        QMap<QString, QByteArray> found;
        QDirIterator entries(m_top.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            QFile file(entries.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            found.insert(QDir(m_top.path()).relativeFilePath(file.fileName()), file.readAll());
        }
        return found;
    }
    //! Makes the change in a process that is killed in the middle.
    void crash(const Change &change) const
    {
        const pid_t child = fork();
        if (child == 0) {
            const std::unique_ptr<FileTransaction> files = FileTransaction::begin(path(u"P"_s));
            change(*files);
            _exit(HasFailure());
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_EQ(status, 0);
    }

    QTemporaryDir m_top;
};

const QString pump = u"Images/pump.png"_s;
const QString motor = u"Images/motor.png"_s;

void replacePump(FileTransaction &files)
{
    const QString key = files.keepAside("new");
    EXPECT_FALSE(files.setAside(pump).isEmpty());
    EXPECT_TRUE(files.bringBack(key, pump));
}

} // namespace

TEST_F(FileTransactionTest, ChangesTakeEffectTogetherOrNotAtAll)
{
    using Recovery = FileTransaction::Recovery;
    const struct
    {
        Change change;
        QMap<QString, QByteArray> files; //!< the files afterwards, besides those that stay; null for a
                                         //!< removed file
    } cases[] = {
        {[](auto &files) { EXPECT_TRUE(files.place(motor, "new")); }, {{u"P/"_s + motor, "new"}}},
        {[](auto &files) { EXPECT_TRUE(files.place(u"More/x"_s, "new")); }, {{u"P/More/x"_s, "new"}}},
        {[](auto &files) { EXPECT_TRUE(files.move(pump, motor)); },
         {{u"P/"_s + pump, {}}, {u"P/"_s + motor, "pump"}}},
        {replacePump, {{u"P/"_s + pump, "new"}}},
        {[](auto &files) { EXPECT_TRUE(files.remove(pump)); }, {{u"P/"_s + pump, {}}}},
        {[](auto &files) {
             EXPECT_TRUE(files.move(pump, motor) && files.move(motor, u"Images/a"_s)
                         && files.move(u"Images/tank.png"_s, pump) && files.place(motor, "new"));
             files.deferRemovals(true);
             EXPECT_TRUE(files.remove(motor));
         },
         {{u"P/Images/a"_s, "pump"}, {u"P/"_s + pump, "tank"}, {u"P/Images/tank.png"_s, {}}}},
    };
    for (const auto &[change, changed] : cases) {
        const QMap<QString, QByteArray> before = files();
        crash(change);
        EXPECT_TRUE(FileTransaction::isOpen(path(u"P"_s)));
        EXPECT_EQ(FileTransaction::recover(path(u"P"_s)), Recovery::TakenBack);
        EXPECT_EQ(files(), before);
        EXPECT_FALSE(QFileInfo::exists(path(u"P/More"_s)));
        QMap<QString, QByteArray> expected = before;
        expected.insert(changed);
        expected.insert(u"P/P.proj"_s, "saved");
        expected.removeIf([](const auto &file) { return file.value().isNull(); });
        {
            const std::unique_ptr<FileTransaction> transaction = FileTransaction::begin(path(u"P"_s));
            change(*transaction);
            EXPECT_TRUE(FileHelper::writeFile(transaction->draftPath(), "saved"));
            EXPECT_TRUE(transaction->commit(u"P.proj"_s));
        }
        EXPECT_EQ(files(), expected);
        EXPECT_EQ(FileTransaction::recover(path(u"P"_s)), Recovery::Nothing);
        QDir(path(u"P"_s)).removeRecursively();
        SetUp();
    }
}

TEST_F(FileTransactionTest, ARenamedFolderGetsItsOldName)
{
    const QMap<QString, QByteArray> before = files();
    const auto change = [](FileTransaction &files) {
        EXPECT_TRUE(files.move(u"P.proj"_s, u"Q.proj"_s) && files.renameFolder(u"X"_s)
                    && files.renameFolder(u"Q"_s));
    };
    crash(change);
    EXPECT_EQ(FileTransaction::findRenamed(path(u"P"_s)), path(u"Q"_s));
    EXPECT_EQ(FileTransaction::recover(path(u"Q"_s)), FileTransaction::Recovery::TakenBack);
    EXPECT_EQ(files(), before);
    // Unless the user has renamed it since.
    crash(change);
    ASSERT_TRUE(QDir().rename(path(u"Q"_s), path(u"Mine"_s)));
    EXPECT_EQ(FileTransaction::findRenamed(path(u"P"_s)), QString());
    EXPECT_EQ(FileTransaction::recover(path(u"Mine"_s)), FileTransaction::Recovery::TakenBack);
    EXPECT_EQ(files().keys(),
              (QStringList{u"Mine/Images/pump.png"_s, u"Mine/Images/tank.png"_s, u"Mine/P.proj"_s}));
}

TEST_F(FileTransactionTest, AnUndoThatFailsHalfwayLeavesAllChanges)
{
    const QMap<QString, QByteArray> before = files();
    const auto visible = [this] {
        QMap<QString, QByteArray> found = files();
        found.removeIf([](const auto &file) { return file.key().contains(u".corvex-edit"_s); });
        return found;
    };
    for (const bool isCommitted : {false, true}) {
        auto changes = FileTransaction::begin(path(u"P"_s));
        replacePump(*changes);
        EXPECT_TRUE(changes->move(u"Images/tank.png"_s, motor) && changes->place(u"More/x"_s, "x")
                    && changes->move(u"P.proj"_s, u"Q.proj"_s) && changes->renameFolder(u"Q"_s));
        write(u"P/other"_s, "takes the old name");
        const QMap<QString, QByteArray> changed = visible();
        changes->undo();
        EXPECT_FALSE(changes->isOver());
        EXPECT_EQ(visible(), changed);
        EXPECT_TRUE(QDir(path(u"P"_s)).removeRecursively() && changes->renew());
        if (isCommitted) {
            write(changes->draftPath().sliced(m_top.path().size() + 1), "saved");
            EXPECT_TRUE(changes->commit(u"Q.proj"_s));
            EXPECT_EQ(files(), (QMap<QString, QByteArray>{{u"Q/Q.proj"_s, "saved"},
                                                          {u"Q/More/x"_s, "x"},
                                                          {u"Q/"_s + pump, "new"},
                                                          {u"Q/"_s + motor, "tank"}}));
        } else {
            changes->undo();
            EXPECT_TRUE(changes->isOver());
            EXPECT_EQ(files(), before);
        }
    }
}

TEST_F(FileTransactionTest, ALinkStaysALink)
{
    const auto target = [this](const QString &name) { return FileSync::linkTarget(path(u"P/"_s + name)); };
    write(u"elsewhere/P.proj"_s, "old");
    ASSERT_TRUE(QFile::remove(path(u"P/P.proj"_s)));
    ASSERT_TRUE(QFile::link(u"../elsewhere/P.proj"_s, path(u"P/P.proj"_s)));
    const QMap<QString, QByteArray> before = files();
    const auto change = [](FileTransaction &files) { EXPECT_TRUE(files.move(u"P.proj"_s, u"Q.proj"_s)); };
    crash(change);
    EXPECT_EQ(FileTransaction::recover(path(u"P"_s)), FileTransaction::Recovery::TakenBack);
    EXPECT_EQ(files(), before) << "no second link is left";
    EXPECT_EQ(target(u"P.proj"_s), u"../elsewhere/P.proj"_s);

    const std::unique_ptr<FileTransaction> transaction = FileTransaction::begin(path(u"P"_s));
    change(*transaction);
    EXPECT_TRUE(FileHelper::writeFile(transaction->draftPath(), "saved"));
    EXPECT_TRUE(transaction->commit(u"Q.proj"_s));
    EXPECT_EQ(target(u"Q.proj"_s), u"../elsewhere/P.proj"_s);
    EXPECT_EQ(files().value(u"elsewhere/P.proj"_s), "saved");
}

TEST_F(FileTransactionTest, AStoreWithoutItsFolderMakesANewOne)
{
    FileStore store;
    QString error;
    const std::unique_ptr<StoredFile> first = store.keep(path(u"P/P.proj"_s), &error);
    ASSERT_TRUE(QDir(QFileInfo(first->path()).path()).removeRecursively());
    const std::unique_ptr<StoredFile> second = store.keep(path(u"P/P.proj"_s), &error);
    QByteArray bytes;
    EXPECT_TRUE(second && second->read(&bytes, &error)) << qPrintable(error);
    EXPECT_EQ(bytes, "old");
    EXPECT_FALSE(first->read(&bytes, &error));
}

TEST_F(FileTransactionTest, LaterChangesByTheUserAreKept)
{
    crash([](FileTransaction &files) { EXPECT_TRUE(files.move(pump, motor) && files.place(pump, "new")); });
    write(u"P/"_s + motor, "mine");
    write(u"P/"_s + pump, "mine too");
    EXPECT_EQ(FileTransaction::recover(path(u"P"_s)), FileTransaction::Recovery::TakenBack);
    const QMap<QString, QByteArray> now = files();
    EXPECT_EQ(now.value(u"P/"_s + motor), "mine");
    EXPECT_EQ(now.value(u"P/"_s + pump), "pump");
    EXPECT_EQ(now.value(u"P/"_s + pump + u".tmp1"_s), "mine too");
}

TEST_F(FileTransactionTest, ChangedFilesOfTheUserAreNotUndone)
{
    const QMap<QString, QByteArray> before = files();
    const auto edit = [this](const QString &name) {
        ASSERT_TRUE(QFile::remove(path(u"P/"_s + name)));
        write(u"P/"_s + name, "mine");
    };
    // Another program writes the file between two changes.
    const struct
    {
        Change change;
        QString kept; //!< where its contents are after an undo
    } cases[] = {
        {[&](auto &files) {
             EXPECT_TRUE(files.move(pump, motor));
             edit(motor);
             EXPECT_TRUE(files.move(motor, pump));
         },
         pump + u".tmp1"_s},
        {[&](auto &files) {
             EXPECT_TRUE(files.move(pump, motor));
             edit(motor);
             EXPECT_TRUE(files.move(motor, u"Images/m2.png"_s));
         },
         u"Images/m2.png"_s},
        {[&](auto &files) {
             QString key = files.keepAside("new");
             EXPECT_TRUE(files.exchange(key, pump));
             edit(pump);
             EXPECT_TRUE(files.exchange(key, pump));
             files.discard(key);
         },
         pump + u".tmp1"_s},
    };
    for (const auto &[change, kept] : cases) {
        QMap<QString, QByteArray> expected = before;
        expected.insert(u"P/"_s + kept, "mine");
        crash(change);
        EXPECT_EQ(FileTransaction::recover(path(u"P"_s)), FileTransaction::Recovery::TakenBack);
        EXPECT_EQ(files(), expected);
        ASSERT_TRUE(QFile::remove(path(u"P/"_s + kept)));
    }
}

TEST_F(FileTransactionTest, AFailedCommitCanBeUndoneOrRepeated)
{
    const QMap<QString, QByteArray> before = files();
    for (const bool isRepeated : {false, true}) {
        auto changes = FileTransaction::begin(path(u"P"_s));
        ASSERT_TRUE(changes->move(pump, motor) && FileHelper::writeFile(changes->draftPath(), "saved"));
        // The file cannot be replaced.
        ASSERT_TRUE(QFile::rename(path(u"P/P.proj"_s), path(u"aside"_s))
                    && QDir().mkdir(path(u"P/P.proj"_s)));
        EXPECT_FALSE(changes->commit(u"P.proj"_s));
        EXPECT_FALSE(changes->isOver());
        ASSERT_TRUE(QDir().rmdir(path(u"P/P.proj"_s))
                    && QFile::rename(path(u"aside"_s), path(u"P/P.proj"_s)));
        EXPECT_EQ(isRepeated && changes->commit(u"P.proj"_s), isRepeated);
        changes.reset();
        EXPECT_EQ(files().value(u"P/P.proj"_s), isRepeated ? "saved" : "old");
        EXPECT_TRUE(isRepeated || files() == before);
    }
}

TEST_F(FileTransactionTest, WithoutRoomForItsJournalNothingChanges)
{
    const QMap<QString, QByteArray> before = files();
    const QString tank = u"Images/tank.png"_s;
    for (qint64 room = 0; room < 500; room += 20) {
        SCOPED_TRACE(room);
        crash([&](FileTransaction &files) {
            const auto limitFiles = [](rlim_t size) {
                rlimit limit = {};
                getrlimit(RLIMIT_FSIZE, &limit);
                limit.rlim_cur = size;
                EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
            };
            EXPECT_TRUE(files.move(pump, motor));
            QString key = files.keepAside("new");
            std::signal(SIGXFSZ, SIG_IGN);
            limitFiles(rlim_t(QFileInfo(path(u"P/.corvex-edit/journal"_s)).size() + room));
            const bool isMoved = files.move(tank, u"Images/t"_s);
            const bool isReplaced = files.exchange(key, motor);
            limitFiles(RLIM_INFINITY);
            EXPECT_EQ(QFile::exists(path(u"P/"_s + tank)), !isMoved);
            EXPECT_EQ(this->files().value(u"P/"_s + motor), isReplaced ? "new" : "pump");
            EXPECT_TRUE(files.place(u"more"_s, "more"));
        });
        EXPECT_EQ(FileTransaction::recover(path(u"P"_s)), FileTransaction::Recovery::TakenBack);
        EXPECT_EQ(files(), before);
    }
}

TEST_F(FileTransactionTest, ADeletedHiddenFolderLosesNoFile)
{
    const auto rename = [](FileTransaction &files) {
        EXPECT_TRUE(files.move(pump, u"Images/a"_s) && files.move(u"Images/a"_s, motor));
    };
    const struct
    {
        Change change;
        QMap<QString, QByteArray> undone; //!< the images after an undo
        QStringList lost;
    } cases[] = {
        {rename, {{pump, "pump"}}, {}},
        {[](auto &files) { EXPECT_TRUE(files.place(motor, "new")); }, {{pump, "pump"}}, {}},
        {replacePump, {{pump, "new"}}, {pump}},
        {[&rename](auto &files) {
             rename(files);
             const QString key = files.keepAside("new");
             EXPECT_TRUE(!files.setAside(motor).isEmpty() && files.bringBack(key, motor));
         },
         {{motor, "new"}},
         {pump}},
    };
    const auto images = [this] {
        QMap<QString, QByteArray> found;
        for (const QString &name : {pump, motor, u"Images/a"_s}) {
            if (QFile file(path(u"P/"_s + name)); file.open(QIODevice::ReadOnly)) {
                found.insert(name, file.readAll());
            }
        }
        return found;
    };
    const auto deleteHidden = [this] {
        EXPECT_EQ(files().value(u"P/.corvex-edit/.gitignore"_s), "*\n");
        EXPECT_TRUE(QDir(path(u"P/.corvex-edit"_s)).removeRecursively());
    };
    for (const auto &[change, undone, lost] : cases) {
        for (const bool isRenewed : {false, true}) {
            auto transaction = FileTransaction::begin(path(u"P"_s));
            change(*transaction);
            deleteHidden();
            if (isRenewed) {
                EXPECT_TRUE(transaction->renew() && transaction->place(u"Images/later"_s, "later"));
            }
            transaction.reset();
            EXPECT_EQ(images(), undone);
            EXPECT_FALSE(files().contains(u"P/Images/later"_s));
            QStringList reported;
            FileTransaction::recover(path(u"P"_s), &reported);
            EXPECT_EQ(reported, lost);
            EXPECT_FALSE(FileTransaction::isOpen(path(u"P"_s)));
            QDir(path(u"P"_s)).removeRecursively();
            SetUp();
        }
        const std::unique_ptr<FileTransaction> saved = FileTransaction::begin(path(u"P"_s));
        change(*saved);
        const QMap<QString, QByteArray> done = images();
        deleteHidden();
        EXPECT_TRUE(saved->renew() && FileHelper::writeFile(saved->draftPath(), "saved"));
        EXPECT_TRUE(saved->commit(u"P.proj"_s));
        EXPECT_EQ(images(), done);
        EXPECT_EQ(files().value(u"P/P.proj"_s), "saved");
        EXPECT_FALSE(FileTransaction::isOpen(path(u"P"_s)));
        QDir(path(u"P"_s)).removeRecursively();
        SetUp();
    }
}

TEST_F(FileTransactionTest, AForeignJournalCannotReachOutsideOfTheFolder)
{
    write(u"outside/victim"_s, "victim");
    write(u"P/.corvex-edit/evil"_s, "evil");
    write(u"P/.corvex-edit/draft"_s, "evil");
    ASSERT_TRUE(QFile::link(path(u"outside"_s), path(u"P/way"_s)));
    ASSERT_TRUE(QFile::link(path(u"outside/victim"_s), path(u"P/Link.proj"_s)));
    const QByteArray digest = FileHelper::md5(path(u"outside/victim"_s)).toLatin1();
    const QByteArray absolute = path(u"outside/victim"_s).toUtf8();
    const QByteArray lines[] = {
        R"({"file":"../outside/victim","old":"evil"})",
        R"({"file":"Images/../../outside/victim","old":"evil"})",
        R"({"file":"way/victim","old":"evil"})",
        R"({"file":")" + absolute + R"(","old":"evil"})",
        R"({"file":"../outside/victim","new":")" + digest + R"("})",
        R"({"file":"Link.proj","removed":{}})",
        R"({"file":"P.proj","removed":{"../outside/victim":")" + digest + R"("}})",
        R"({"folder":"../outside/taken"}
{"renamed":"P"})",
        R"({"made":"../outside"})",
    };
    for (const QByteArray &line : lines) {
        write(u"P/.corvex-edit/journal"_s, line + '\n');
        EXPECT_NE(FileTransaction::recover(path(u"P"_s)), FileTransaction::Recovery::Finished) << line.data();
        EXPECT_EQ(files().value(u"outside/victim"_s), "victim") << line.data();
        EXPECT_EQ(files().value(u"P/P.proj"_s), "old") << line.data();
        write(u"P/.corvex-edit/evil"_s, "evil");
        write(u"P/.corvex-edit/draft"_s, "evil");
    }
}

TEST_F(FileTransactionTest, RunningTransactionsAreDetected)
{
    using Kind = FolderLock::Kind;
    const QMap<QString, QByteArray> before = files();
    {
        const FolderLock reader(path(u"P"_s), Kind::Shared);
        EXPECT_TRUE(reader.isReal());
        FolderLock other(path(u"P"_s), Kind::Shared);
        EXPECT_EQ(other.kind(), Kind::Shared);
        EXPECT_FALSE(other.take(path(u"P"_s), Kind::Exclusive, 30));
    }
    FolderLock writer;
    EXPECT_TRUE(writer.take(path(u"P"_s), Kind::Exclusive));
    EXPECT_EQ(files(), before) << "a lock leaves nothing behind";
    EXPECT_FALSE(FolderLock().take(path(u"None"_s), Kind::Shared));

    const FileStamp stamp = FileStamp::of(path(u"P/P.proj"_s));
    EXPECT_EQ(FileStamp::of(path(u"P/P.proj"_s)), stamp);
    write(u"P/P.proj"_s, "old");
    EXPECT_NE(FileStamp::of(path(u"P/P.proj"_s)), stamp) << "another file with the same contents";
    QFile file(path(u"P/P.proj"_s));
    const FileStamp again = FileStamp::of(file.fileName());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write("own");
    file.close();
    EXPECT_NE(FileStamp::of(file.fileName()), again);
}

TEST_F(FileTransactionTest, DraftsOfKilledProgramsAreRemoved)
{
    const pid_t child = fork();
    if (child == 0) {
        auto *file = new SafeFile(path(u"P/other"_s));
        file->openForWriting();
        file->write("half");
        file->flush();
        _exit(0);
    }
    waitpid(child, nullptr, 0);
    EXPECT_EQ(files().size(), 4);
    // Drafts in a new folder are removed when this program writes its first file there.
    ASSERT_TRUE(QDir().rename(path(u"P"_s), path(u"New"_s)));
    write(u"New/first"_s, "first");
    EXPECT_EQ(files().size(), 4);
    ASSERT_TRUE(QFile::remove(path(u"New/first"_s)) && QDir().rename(path(u"New"_s), path(u"P"_s)));
    write(u"P/.corvex-draft-mine"_s, "mine");
    SafeFile live(path(u"P/live"_s));
    ASSERT_TRUE(live.openForWriting());
    SafeFile::removeAbandoned(path(u"P"_s));
    EXPECT_EQ(files().size(), 5) << "the dead one is gone, the live one and the user's are there";
    EXPECT_TRUE(live.commit());
    EXPECT_TRUE(files().contains(u"P/live"_s));
}
