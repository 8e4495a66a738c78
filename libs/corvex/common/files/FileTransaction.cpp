// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileTransaction.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileSync.h"
#include "corvex/common/files/private/FileJournal.h"
#include "corvex/common/files/private/FileRecovery.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

const QString draftName = u"draft"_s;

bool fail(QString *error, const QString &english, const QString &path)
{
    if (error) {
        *error =
            LocalizationHelper::coreString(english).arg(QDir::toNativeSeparators(path), FileSync::reason());
    }
    return false;
}

bool exists(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

FileTransaction::FileTransaction(std::unique_ptr<FileJournal> journal)
    : m_journal(std::move(journal))
{ }

FileTransaction::~FileTransaction()
{
    if (m_journal) {
        // If this fails, the journal remains and the next opening tries again.
        FileRecovery(*m_journal).undo();
    }
}

std::unique_ptr<FileTransaction> FileTransaction::begin(const QString &folder, QString *error)
{
    auto journal = std::make_unique<FileJournal>(QDir(folder).absolutePath());
    recover(folder);
    if (!journal->begin()) {
        fail(error, u"Nothing can be written to the folder \"%1\": %2"_s, folder);
        return {};
    }
    return std::unique_ptr<FileTransaction>(new FileTransaction(std::move(journal)));
}

bool FileTransaction::renew(QString *error)
{
    return ((m_journal->isThere() || repair()) && FileRecovery(*m_journal).redo())
           || fail(error, u"Nothing can be written to the folder \"%1\": %2"_s, m_journal->folder());
}

bool FileTransaction::repair()
{
    if (!FileRecovery(*m_journal).repair()) {
        return false;
    }
    m_copies.clear();
    for (const FileJournal::OldFile &file : m_journal->oldFiles()) {
        m_copies.insert(file.digest, file.copy);
    }
    for (auto file = m_placed.cbegin(); file != m_placed.cend(); ++file) {
        const QString path = m_journal->pathOf(file.key());
        if (FileJournal::digestOf(path) == *file && !keepCopy(path, *file)) {
            return false;
        }
    }
    return true;
}

//! Gives contents a second name, unless they have one.
bool FileTransaction::keepCopy(const QString &path, const QString &digest)
{
    if (digest.isEmpty() || m_copies.contains(digest)) {
        return true;
    }
    const QString copy = u"new-"_s + newKey();
    if (!FileSync::link(path, m_journal->privatePath(copy))) {
        return false;
    }
    m_copies.insert(digest, copy);
    return true;
}

bool FileTransaction::restore(const QString &name)
{
    const QString digest = m_placed.value(name);
    const QString copy = m_journal->privatePath(m_copies.value(digest));
    const QString path = m_journal->pathOf(name);
    return !digest.isEmpty() && exists(copy) && !exists(path) && makeFolderFor(name)
           && FileSync::link(copy, path);
}

//! Before a file is first changed, gives its contents a second name, which survives the change.
bool FileTransaction::keep(const QString &name)
{
    if (m_journal->oldFiles().contains(name)) {
        return true;
    }
    const QString path = m_journal->pathOf(name);
    if (!exists(path)) {
        return m_journal->addOld(name, {});
    }
    const FileJournal::OldFile old{u"old-"_s + newKey(), FileJournal::digestOf(path)};
    m_copies.insert(old.digest, old.copy);
    return FileSync::link(path, m_journal->privatePath(old.copy)) && FileSync::sync(m_journal->privatePath())
           && m_journal->addOld(name, old);
}

bool FileTransaction::makeFolderFor(const QString &name)
{
    const QString folder = name.section(u'/', 0, -2);
    if (folder.isEmpty() || QFileInfo(m_journal->pathOf(folder)).isDir()) {
        return true;
    }
    return m_journal->addFolder(folder) && QDir().mkdir(m_journal->pathOf(folder));
}

QString FileTransaction::newKey()
{
    return QString::number(++m_lastKey);
}

bool FileTransaction::place(const QString &name, const QByteArray &bytes, QString *error)
{
    const QString key = keepAside(bytes, error);
    if (key.isEmpty()) {
        return false;
    }
    if (!makeFolderFor(name) || !bringBack(key, name)) {
        fail(error, u"The file \"%1\" cannot be written: %2"_s, m_journal->pathOf(name));
        discard(key);
        return false;
    }
    return true;
}

bool FileTransaction::move(const QString &from, const QString &to, QString *error)
{
    const QString key = newKey();
    const QString oldPath = m_journal->pathOf(from);
    const QString path = m_journal->pathOf(to);
    const QString aside = m_journal->privatePath(key);
    // On a case-insensitive disk both may be names of one file, which then needs a third name.
    const bool isDirect = !exists(path);
    bool isMoved = exists(oldPath) && keep(to) && keep(from) && (isDirect || noteAside(key, from))
                   && expect(to, oldPath) && FileSync::move(oldPath, isDirect ? path : aside);
    if (isMoved && !isDirect && !FileSync::move(aside, path)) {
        const int reason = errno;
        FileSync::move(aside, oldPath);
        errno = reason;
        isMoved = false;
    }
    if (!isMoved) {
        return fail(error, u"The file \"%1\" cannot be renamed: %2"_s, oldPath);
    }
    m_placed.remove(from);
    m_placed.insert(to, FileJournal::digestOf(path));
    return true;
}

bool FileTransaction::undoMove(const QString &from, const QString &to)
{
    if (!FileSync::move(m_journal->pathOf(to), m_journal->pathOf(from))) {
        return false;
    }
    m_placed.insert(from, m_placed.take(to));
    return true;
}

QString FileTransaction::keepAside(const QByteArray &bytes, QString *error)
{
    const QString key = newKey();
    if (!FileHelper::writeFile(m_journal->privatePath(key), bytes, error)) {
        return {};
    }
    m_ownDigests.insert(FileJournal::digestOf(m_journal->privatePath(key)));
    return key;
}

//! Whether another program has written these contents.
bool FileTransaction::isForeign(const QString &digest) const
{
    return !m_ownDigests.contains(digest) && !m_journal->knows(digest);
}

//! Prepares that the file gets the contents of the one at \a path. An undo may delete them, unless another
//! program has written them.
bool FileTransaction::expect(const QString &name, const QString &path)
{
    const QString digest = FileJournal::digestOf(path);
    return keepCopy(path, digest) && (isForeign(digest) || m_journal->addNew(name, digest));
}

//! Prepares that the file is set aside.
bool FileTransaction::noteAside(const QString &key, const QString &name, const Digest &expected)
{
    const QString digest = FileJournal::digestOf(m_journal->pathOf(name));
    const bool isExpected = expected ? digest == *expected : !isForeign(digest);
    return isExpected || m_journal->addForeign(key, name);
}

bool FileTransaction::exchange(QString &key, const QString &name, const Digest &expected)
{
    // Everything that needs space on the disk comes first.
    const QString path = m_journal->pathOf(name);
    const QString given = m_journal->privatePath(key);
    const QString taken = exists(path) ? newKey() : QString();
    const QString aside = m_journal->privatePath(taken);
    if ((!key.isEmpty() && !exists(given)) || !keep(name)
        || (!taken.isEmpty() && !noteAside(taken, name, expected)) || (!key.isEmpty() && !expect(name, given))
        || (!taken.isEmpty() && !FileSync::move(path, aside))) {
        return false;
    }
    if (!key.isEmpty() && !FileSync::move(given, path)) {
        const int reason = errno;
        if (!taken.isEmpty()) {
            FileSync::move(aside, path);
        }
        errno = reason;
        return false;
    }
    m_placed.remove(name);
    if (!key.isEmpty()) {
        m_placed.insert(name, FileJournal::digestOf(path));
    }
    key = taken;
    return true;
}

QString FileTransaction::setAside(const QString &name, const Digest &expected)
{
    QString key;
    return exchange(key, name, expected) ? key : QString();
}

bool FileTransaction::bringBack(const QString &key, const QString &name)
{
    QString taken = key;
    return !key.isEmpty() && !exists(m_journal->pathOf(name)) && exchange(taken, name);
}

void FileTransaction::discard(const QString &key)
{
    // While removals are deferred, the file is removed with the transaction. One that another program has
    // written gets a visible name then.
    if (!key.isEmpty() && !m_defersRemovals && !m_journal->foreignFiles().contains(key)) {
        QFile::remove(m_journal->privatePath(key));
    }
}

QString FileTransaction::asidePath(const QString &key) const
{
    return m_journal->privatePath(key);
}

bool FileTransaction::remove(const QString &name)
{
    if (!exists(m_journal->pathOf(name))) {
        return true;
    }
    if (m_defersRemovals) {
        m_removed.insert(name, FileJournal::digestOf(m_journal->pathOf(name)));
        return true;
    }
    return keep(name) && QFile::remove(m_journal->pathOf(name));
}

void FileTransaction::deferRemovals(bool isDeferred)
{
    m_defersRemovals = isDeferred;
    m_removed.clear();
}

bool FileTransaction::renameFolder(const QString &name, QString *error)
{
    const QFileInfo folder(m_journal->folder());
    const QString target = folder.dir().filePath(name);
    if (findRenamed(target) != folder.filePath() && !mayTakeName(target, error)) {
        return false;
    }
    if (!m_journal->addRenaming(name) || !FileSync::move(folder.filePath(), target)) {
        return fail(error, u"The folder \"%1\" cannot be renamed: %2"_s, folder.filePath());
    }
    m_journal->setFolder(target);
    return true;
}

QString FileTransaction::draftPath() const
{
    return m_journal->privatePath(draftName);
}

//! Flushes all changes to the disk before they take effect.
bool FileTransaction::syncFolders() const
{
    QSet<QString> folders{m_journal->privatePath(), m_journal->folder(),
                          QFileInfo(m_journal->folder()).path()};
    for (auto name = m_journal->oldFiles().keyBegin(); name != m_journal->oldFiles().keyEnd(); ++name) {
        const QString folder = QFileInfo(m_journal->pathOf(*name)).path();
        if (QFileInfo(folder).isDir()) {
            folders.insert(folder);
        }
    }
    return std::ranges::all_of(folders, FileSync::sync);
}

bool FileTransaction::mayReplace(const QString &file, QString *error) const
{
    const QFileInfo target(m_journal->pathOf(file));
    if (!target.exists() || target.isWritable()) {
        return true;
    }
    if (error) {
        *error = LocalizationHelper::coreString(u"The file \"%1\" cannot be written: %2"_s)
                     .arg(QDir::toNativeSeparators(target.filePath()),
                          LocalizationHelper::coreString(u"It is protected."_s));
    }
    return false;
}

//! The draft is a new file, which other users may be able to read.
bool FileTransaction::givePermissions(const QString &file) const
{
    const QByteArray draft = QFile::encodeName(draftPath());
    struct stat old = {};
    if (stat(QFile::encodeName(m_journal->pathOf(file)).constData(), &old) != 0 || !exists(draftPath())) {
        return true;
    }
    constexpr mode_t permissions = 07777;
    return chmod(draft.constData(), old.st_mode & permissions) == 0 && FileSync::sync(draftPath());
}

bool FileTransaction::commit(const QString &file, QString *error)
{
    if (!givePermissions(file) || !syncFolders() || !m_journal->addCommit(file, m_removed)) {
        return fail(error, u"The folder \"%1\" cannot be written to: %2"_s, m_journal->folder());
    }
    const QString path = m_journal->pathOf(file);
    FileRecovery recovery(*m_journal);
    const bool isFinished = recovery.finish();
    const int reason = errno;
    // Once the draft is in place, recover() can only complete the rest.
    if (recovery.isDraftInPlace() || !m_journal->withdrawCommit()) {
        m_journal.reset();
    }
    errno = reason;
    return isFinished || fail(error, u"The file \"%1\" cannot be written: %2"_s, path);
}

void FileTransaction::undo()
{
    if (!m_journal || (QFileInfo(m_journal->folder()).isDir() && !keepPresent())) {
        return;
    }
    const QString folder = m_journal->folder();
    FileRecovery recovery(*m_journal);
    // Once the folder is renamed back or the journal is gone, only the hidden folder can be left.
    if (recovery.undo() || m_journal->folder() != folder || !m_journal->isThere()) {
        m_journal.reset();
    } else {
        recovery.redo(); // if this fails, renew() tries again
    }
}

//! Prepares an undo that fails halfway: notes the present contents of the changed files.
bool FileTransaction::keepPresent()
{
    if (!m_journal->isThere() && !repair()) {
        return false;
    }
    if (!m_journal->presentFiles().isEmpty()) {
        return true; // an undo has failed halfway already
    }
    QHash<QString, FileJournal::OldFile> present;
    for (auto name = m_journal->oldFiles().keyBegin(); name != m_journal->oldFiles().keyEnd(); ++name) {
        const QString path = m_journal->pathOf(*name);
        const QString digest = FileJournal::digestOf(path);
        if (!keepCopy(path, digest)) {
            return false;
        }
        if (!digest.isEmpty() || !exists(path)) {
            present.insert(*name, {m_copies.value(digest), digest});
        }
    }
    m_journal->setPresentFiles(present);
    return true;
}

bool FileTransaction::isOpen(const QString &folder)
{
    return FileJournal::exists(folder);
}

FileTransaction::Recovery FileTransaction::recover(const QString &folder, QStringList *lost)
{
    if (!isOpen(folder)) {
        return Recovery::Nothing;
    }
    FileJournal journal(QDir(folder).absolutePath());
    if (!journal.isThere()) {
        journal.remove(); // an end that could not remove the hidden folder
        return Recovery::Nothing;
    }
    journal.read();
    FileRecovery recovery(journal);
    const bool isCommitted = journal.isCommitted();
    const bool hasBegun = !journal.oldFiles().isEmpty() || !journal.newFolderNames().isEmpty()
                          || !journal.lostFiles().isEmpty();
    if (!(isCommitted ? recovery.finish() : recovery.undo())) {
        return !isCommitted && recovery.isNameTaken() ? Recovery::NameTaken : Recovery::Failed;
    }
    if (!journal.lostFiles().isEmpty()) {
        if (lost) {
            *lost = journal.lostFiles();
        }
        journal.remove();
    }
    return isCommitted ? Recovery::Finished : hasBegun ? Recovery::TakenBack : Recovery::Nothing;
}

QString FileTransaction::digestOf(const QString &path)
{
    return FileJournal::digestOf(path);
}

QString FileTransaction::nameBefore(const QString &folder)
{
    FileJournal journal(QDir(folder).absolutePath());
    journal.read();
    return journal.folderName();
}

QString FileTransaction::findRenamed(const QString &folder)
{
    const QFileInfo wanted(QDir(folder).absolutePath());
    const QFileInfoList siblings = wanted.dir().entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo &sibling : siblings) {
        if (isOpen(sibling.filePath())) {
            FileJournal journal(sibling.filePath());
            journal.read();
            if (journal.folderName() == wanted.fileName()
                && journal.newFolderNames().contains(sibling.fileName())) {
                return sibling.filePath();
            }
        }
    }
    return {};
}

bool FileTransaction::mayTakeName(const QString &folder, QString *error)
{
    const QString renamed = findRenamed(folder);
    if (renamed.isEmpty()) {
        return true;
    }
    const QString text =
        u"The name \"%1\" is not free. The folder \"%2\" has it again when its unsaved changes are undone. "
        "Save these changes, or use another name."_s;
    *error = LocalizationHelper::coreString(text).arg(QFileInfo(folder).fileName(),
                                                      QDir::toNativeSeparators(renamed));
    return false;
}

} // namespace Halvane::Corvex::Common
