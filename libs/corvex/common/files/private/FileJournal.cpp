// SPDX-License-Identifier: MIT
#include "corvex/common/files/private/FileJournal.h"

#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileSync.h"
#include "corvex/common/files/RegularFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <cerrno>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

const QString privateFolder = u".corvex-edit"_s;
const QString journalName = u"journal"_s;
const QString ignoreName = u".gitignore"_s;

//! Whether it is a plain file name, not a path.
bool isSingleName(const QString &name)
{
    return !name.isEmpty() && name != "."_L1 && name != ".."_L1 && !name.contains(u'/');
}

QByteArray bytesOf(const QJsonObject &line)
{
    return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

//! A line that could not be written completely must not become a part of the next one.
bool removeHalfLine(QFile &file)
{
    const qint64 size = file.size();
    if (size == 0 || (file.seek(size - 1) && file.read(1) == "\n")) {
        return true;
    }
    return file.seek(0) && file.resize(file.readAll().lastIndexOf('\n') + 1);
}

QJsonObject oldLine(const QString &name, const FileJournal::OldFile &file)
{
    return {{u"file"_s, name}, {u"old"_s, file.copy}, {u"digest"_s, file.digest}};
}

QJsonObject newLine(const QString &name, const QString &digest)
{
    return {{u"file"_s, name}, {u"new"_s, digest}};
}

QJsonObject commitLine(const QString &file, const QVariantMap &removed)
{
    return {{u"file"_s, file}, {u"removed"_s, QJsonObject::fromVariantMap(removed)}};
}

} // namespace

FileJournal::FileJournal(const QString &folder)
    : m_folder(folder)
{ }

QString FileJournal::privatePath(const QString &name) const
{
    const QString folder = pathOf(privateFolder);
    return name.isEmpty() ? folder : u"%1/%2"_s.arg(folder, name);
}

QString FileJournal::digestOf(const QString &path)
{
    const QString target = FileSync::linkTarget(path);
    return target.isEmpty() ? FileHelper::md5(path) : u"link to %1"_s.arg(target);
}

bool FileJournal::exists(const QString &folder)
{
    const QFileInfo info(FileJournal(folder).privatePath());
    return info.isDir() && !info.isSymLink();
}

bool FileJournal::begin()
{
    m_folderName = QFileInfo(m_folder).fileName();
    return !exists(m_folder) && makeFolder() && append({{u"folder"_s, m_folderName}})
           && FileSync::sync(privatePath()) && FileSync::sync(m_folder);
}

bool FileJournal::isThere() const
{
    return QFileInfo(privatePath(journalName)).isFile();
}

bool FileJournal::makeFolder() const
{
    QFile ignore(privatePath(ignoreName));
    return exists(m_folder)
           || (QDir().mkdir(privatePath()) && ignore.open(QIODevice::WriteOnly) && ignore.write("*\n") > 0
               && ignore.flush());
}

bool FileJournal::rewrite() const
{
    QByteArray bytes;
    for (const QJsonObject &line : lines()) {
        bytes += bytesOf(line);
    }
    return FileHelper::writeFile(privatePath(journalName), bytes) && FileSync::sync(m_folder);
}

QList<QJsonObject> FileJournal::lines() const
{
    QList<QJsonObject> all;
    all.append({{u"folder"_s, m_folderName}});
    for (auto file = m_oldFiles.cbegin(); file != m_oldFiles.cend(); ++file) {
        all.append(oldLine(file.key(), *file));
    }
    for (auto file = m_newFiles.cbegin(); file != m_newFiles.cend(); ++file) {
        for (const QString &digest : *file) {
            all.append(newLine(file.key(), digest));
        }
    }
    for (auto file = m_foreignFiles.cbegin(); file != m_foreignFiles.cend(); ++file) {
        all.append({{u"foreign"_s, file.key()}, {u"file"_s, *file}});
    }
    for (const QString &name : m_madeFolders) {
        all.append({{u"made"_s, name}});
    }
    for (const QString &name : m_newFolderNames) {
        all.append({{u"renamed"_s, name}});
    }
    for (const QString &name : m_lostFiles) {
        all.append({{u"lost"_s, name}});
    }
    return all;
}

void FileJournal::setLost(const QStringList &names)
{
    m_lostFiles += names;
    m_oldFiles.removeIf(
        [&names](const auto &file) { return file.value().copy.isEmpty() || names.contains(file.key()); });
}

void FileJournal::forgetChanges()
{
    m_foreignFiles.clear();
    m_oldFiles.clear();
    m_newFiles.clear();
    m_madeFolders.clear();
    m_newFolderNames.clear();
}

void FileJournal::read()
{
    constexpr qint64 most = qint64(256) << 20;
    QByteArray bytes;
    QString error;
    if (!RegularFile::read(privatePath(journalName), most, &bytes, &error, RegularFile::Links::Refuse)) {
        return;
    }
    QList<QByteArray> lines = bytes.split('\n');
    lines.removeLast(); // incomplete or empty
    for (const QByteArray &line : std::as_const(lines)) {
        if (const QJsonObject entry = QJsonDocument::fromJson(line).object(); staysInside(entry)) {
            take(entry);
        }
    }
}

bool FileJournal::staysInside(const QJsonObject &line) const
{
    for (const QLatin1StringView key : {"folder"_L1, "renamed"_L1, "old"_L1, "foreign"_L1}) {
        const QString name = line[key].toString();
        if (line.contains(key) && !isSingleName(name) && (key != "old"_L1 || !name.isEmpty())) {
            return false;
        }
    }
    for (const QLatin1StringView key : {"file"_L1, "made"_L1, "lost"_L1}) {
        if (line.contains(key) && !isInside(line[key].toString())) {
            return false;
        }
    }
    const QStringList removed = line["removed"_L1].toObject().keys();
    // If it is a link, its target is the committed file.
    const QFileInfo committed(pathOf(line["file"_L1].toString()));
    const bool leadsOn = line.contains("removed"_L1) && committed.isSymLink();
    return std::ranges::all_of(removed, [this](const QString &name) { return isInside(name); })
           && (!leadsOn
               || committed.canonicalFilePath().startsWith(QFileInfo(m_folder).canonicalFilePath() + u'/'));
}

//! Whether a path relative to the folder stays inside the folder, even if folders on the way are links.
bool FileJournal::isInside(const QString &name) const
{
    if (name.isEmpty() || QDir::cleanPath(name) != name || !QDir::isRelativePath(name)
        || !isSingleName(name.section(u'/', 0, 0))) {
        return false;
    }
    const QString top = QFileInfo(m_folder).canonicalFilePath();
    const QString folder = QFileInfo(QFileInfo(pathOf(name)).path()).canonicalFilePath();
    return folder.isEmpty() || folder == top || folder.startsWith(top + u'/');
}

void FileJournal::take(const QJsonObject &line)
{
    const QString name = line["file"_L1].toString();
    if (line.contains("folder"_L1)) {
        m_folderName = line["folder"_L1].toString();
    } else if (line.contains("old"_L1)) {
        m_oldFiles.insert(name, {line["old"_L1].toString(), line["digest"_L1].toString()});
        m_digests.insert(line["digest"_L1].toString());
    } else if (line.contains("new"_L1)) {
        m_newFiles[name].append(line["new"_L1].toString());
        m_digests.insert(line["new"_L1].toString());
    } else if (line.contains("foreign"_L1)) {
        m_foreignFiles.insert(line["foreign"_L1].toString(), name);
    } else if (line.contains("lost"_L1)) {
        m_lostFiles.append(line["lost"_L1].toString());
    } else if (line.contains("made"_L1)) {
        m_madeFolders.append(line["made"_L1].toString());
    } else if (line.contains("renamed"_L1)) {
        m_newFolderNames.append(line["renamed"_L1].toString());
    } else if (line.contains("removed"_L1)) {
        m_file = name;
        m_removed = line["removed"_L1].toObject().toVariantMap();
    }
}

bool FileJournal::append(const QJsonObject &line)
{
    QFile file(privatePath(journalName));
    // Without a buffer, which would be written again after a failure.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) || !removeHalfLine(file)) {
        return false;
    }
    const qint64 size = file.size();
    const QByteArray bytes = bytesOf(line);
    if (!file.seek(size) || file.write(bytes) != bytes.size() || fsync(file.handle()) != 0) {
        const int reason = errno;
        file.resize(size); // if this fails, the next line tries again
        errno = reason;
        return false;
    }
    take(line);
    return true;
}

bool FileJournal::addForeign(const QString &key, const QString &name)
{
    return append({{u"foreign"_s, key}, {u"file"_s, name}});
}

bool FileJournal::addOld(const QString &name, const OldFile &file)
{
    return append(oldLine(name, file));
}

bool FileJournal::addNew(const QString &name, const QString &digest)
{
    return append(newLine(name, digest));
}

bool FileJournal::addFolder(const QString &name)
{
    return append({{u"made"_s, name}});
}

bool FileJournal::addRenaming(const QString &name)
{
    return append({{u"renamed"_s, name}});
}

bool FileJournal::addCommit(const QString &file, const QVariantMap &removed)
{
    return append(commitLine(file, removed));
}

bool FileJournal::withdrawCommit()
{
    QFile journal(privatePath(journalName));
    const QByteArray commit = bytesOf(commitLine(m_file, m_removed));
    if (!journal.open(QIODevice::ReadWrite | QIODevice::Unbuffered)
        || !journal.resize(journal.size() - commit.size()) || fsync(journal.handle()) != 0) {
        return false;
    }
    m_file.clear();
    m_removed.clear();
    return true;
}

bool FileJournal::remove() const
{
    // Remove the journal first; without it the other files are meaningless.
    QFile::remove(privatePath(journalName));
    return FileSync::sync(privatePath()) && FileHelper::removeDirectory(privatePath())
           && FileSync::sync(m_folder);
}

} // namespace Halvane::Corvex::Common
