// SPDX-License-Identifier: MIT
#include "corvex/common/files/private/FileRecovery.h"

#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileSync.h"
#include "corvex/common/files/private/FileJournal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

bool exists(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

QString freePath(const QString &path)
{
    int number = 1;
    while (exists(u"%1.tmp%2"_s.arg(path, QString::number(number)))) {
        ++number;
    }
    return u"%1.tmp%2"_s.arg(path, QString::number(number));
}

} // namespace

//! Whether the file has the contents that the transaction wrote; another program may have changed it since.
bool FileRecovery::isOurs(const QString &name) const
{
    const QString path = m_journal.pathOf(name);
    return exists(path) && m_journal.newFiles().value(name).contains(FileJournal::digestOf(path));
}

bool FileRecovery::bringDraft()
{
    const QString draft = m_journal.privatePath(u"draft"_s);
    const QString path = m_journal.pathOf(m_journal.committedFile());
    // A link would become the project's file, wherever it leads.
    if (!QFileInfo(draft).isFile() || QFileInfo(draft).isSymLink()) {
        m_isDraftInPlace = true; // by an earlier call
    } else if (QFileInfo(path).isSymLink()) {
        QFile file(draft);
        m_isDraftInPlace = file.open(QIODevice::ReadOnly) && FileHelper::writeFile(path, file.readAll());
    } else {
        m_isDraftInPlace = FileSync::replace(draft, path);
    }
    return m_isDraftInPlace && FileSync::sync(m_journal.folder());
}

bool FileRecovery::finish()
{
    if (!bringDraft()) {
        return false;
    }
    QSet<QString> folders;
    const QVariantMap &removed = m_journal.removedFiles();
    for (auto file = removed.cbegin(); file != removed.cend(); ++file) {
        const QString path = m_journal.pathOf(file.key());
        if (FileJournal::digestOf(path) == file.value().toString()) {
            QFile::remove(path);
            folders.insert(QFileInfo(path).path());
        }
    }
    return std::ranges::all_of(folders, FileSync::sync) && showForeign() && m_journal.remove();
}

bool FileRecovery::repair()
{
    const QHash<QString, FileJournal::OldFile> old = m_journal.oldFiles();
    QStringList missing;
    for (auto file = old.cbegin(); file != old.cend(); ++file) {
        if (!file->copy.isEmpty() && !exists(m_journal.privatePath(file->copy))) {
            missing.append(file.key());
        }
    }
    if (m_journal.isThere() && missing.isEmpty()) {
        return true;
    }
    if (!m_journal.makeFolder()) {
        return false;
    }
    QHash<QString, QString> pathsByDigest;
    for (auto file = old.keyBegin(); !missing.isEmpty() && file != old.keyEnd(); ++file) {
        pathsByDigest.insert(FileJournal::digestOf(m_journal.pathOf(*file)), m_journal.pathOf(*file));
    }
    pathsByDigest.remove({}); // files that are missing or cannot be read
    QStringList lost;
    for (const QString &name : std::as_const(missing)) {
        const auto &[copy, digest] = old[name];
        const QString path = pathsByDigest.value(digest);
        if (path.isEmpty()) {
            lost.append(name);
        } else if (!FileSync::link(path, m_journal.privatePath(copy))) {
            return false;
        }
    }
    if (!lost.isEmpty()) {
        m_journal.setLost(lost);
    }
    // Without a journal, a recovery would keep all files as they are.
    return FileSync::sync(m_journal.privatePath()) && m_journal.rewrite();
}

bool FileRecovery::undo()
{
    if (!QFileInfo(m_journal.folder()).isDir()) {
        return true; // another program has deleted all files
    }
    if (!m_journal.oldFiles().isEmpty() && !repair()) {
        return false;
    }
    const QHash<QString, FileJournal::OldFile> &old = m_journal.oldFiles();
    QSet<QString> folders;
    for (auto file = old.cbegin(); file != old.cend(); ++file) {
        // On a case-insensitive disk this may be another name of a file that is restored below.
        if (file->copy.isEmpty() && isOurs(file.key()) && !QFile::remove(m_journal.pathOf(file.key()))) {
            return false;
        }
        folders.insert(QFileInfo(m_journal.pathOf(file.key())).path());
    }
    for (auto file = old.cbegin(); file != old.cend(); ++file) {
        if (!file->copy.isEmpty() && !restore(file.key(), file->copy)) {
            return false;
        }
    }
    for (const QString &folder : folders) {
        if (QFileInfo(folder).isDir() && !FileSync::sync(folder)) {
            return false;
        }
    }
    for (const QString &folder : m_journal.madeFolders()) {
        QDir().rmdir(m_journal.pathOf(folder)); // fails if somebody uses the folder by now, which is fine
    }
    return renameBack() && endUndo();
}

//! Brings the files that another program has written out of the hidden folder, under free names.
bool FileRecovery::showForeign() const
{
    const QHash<QString, QString> &files = m_journal.foreignFiles();
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        const QString aside = m_journal.privatePath(file.key());
        const QString path = m_journal.pathOf(*file);
        const bool hasFolder = QFileInfo(QFileInfo(path).path()).isDir();
        const QString visible = hasFolder ? path : m_journal.pathOf(QFileInfo(path).fileName());
        const bool isVisible = FileJournal::digestOf(aside) == FileJournal::digestOf(visible);
        if (exists(aside) && !isVisible && !FileSync::move(aside, freePath(visible))) {
            return false;
        }
    }
    return true;
}

bool FileRecovery::endUndo()
{
    if (!showForeign()) {
        return false;
    }
    if (m_journal.lostFiles().isEmpty()) {
        return m_journal.remove();
    }
    FileJournal rest = m_journal;
    rest.forgetChanges();
    return rest.rewrite();
}

bool FileRecovery::redo()
{
    const QHash<QString, FileJournal::OldFile> present = m_journal.presentFiles();
    // On a case-insensitive disk a removed file may be another name of one that is put into place below.
    for (auto file = present.cbegin(); file != present.cend(); ++file) {
        const QString path = m_journal.pathOf(file.key());
        if (file->copy.isEmpty() && exists(path) && isUndone(file.key()) && !QFile::remove(path)) {
            return false;
        }
    }
    for (auto file = present.cbegin(); file != present.cend(); ++file) {
        const QString path = m_journal.pathOf(file.key());
        const QString kept = m_journal.privatePath(file->copy);
        const bool hasFolder = QFileInfo(QFileInfo(path).path()).isDir();
        if (!file->copy.isEmpty() && exists(kept) && FileJournal::digestOf(path) != file->digest
            && isUndone(file.key())
            && ((!hasFolder && !QDir().mkdir(QFileInfo(path).path())) || !put(file->copy, path))) {
            return false;
        }
    }
    m_journal.setPresentFiles({});
    return true;
}

//! Whether the file is as an undo leaves it; otherwise another program has changed it since.
bool FileRecovery::isUndone(const QString &name) const
{
    const QString path = m_journal.pathOf(name);
    return !exists(path) || FileJournal::digestOf(path) == m_journal.oldFiles().value(name).digest;
}

//! Replaces a file, in one step, by a kept one, which remains.
bool FileRecovery::put(const QString &copy, const QString &path) const
{
    const QString again = m_journal.privatePath(u"again"_s);
    QFile::remove(again);
    return FileSync::link(m_journal.privatePath(copy), again) && FileSync::replace(again, path);
}

bool FileRecovery::restore(const QString &name, const QString &copy) const
{
    const QString path = m_journal.pathOf(name);
    const QString kept = m_journal.privatePath(copy);
    const bool isForeign =
        exists(path) && !isOurs(name) && FileJournal::digestOf(path) != FileJournal::digestOf(kept);
    if (isForeign && !FileSync::move(path, freePath(path))) {
        return false;
    }
    return put(copy, path);
}

//! The path that an undo gives the folder; empty if it has its old name, or one that the user chose.
QString FileRecovery::pathBefore() const
{
    const QFileInfo folder(m_journal.folder());
    const bool isRenamed =
        folder.fileName() != m_journal.folderName() && m_journal.newFolderNames().contains(folder.fileName());
    return isRenamed ? folder.dir().filePath(m_journal.folderName()) : QString();
}

bool FileRecovery::isNameTaken() const
{
    const QString before = pathBefore();
    return !before.isEmpty() && exists(before);
}

bool FileRecovery::renameBack()
{
    const QString before = pathBefore();
    if (before.isEmpty()) {
        return true;
    }
    if (!FileSync::move(m_journal.folder(), before)) {
        return false;
    }
    m_journal.setFolder(before);
    return FileSync::sync(QFileInfo(before).path());
}

} // namespace Halvane::Corvex::Common
