// SPDX-License-Identifier: MIT
#include "corvex/document/DeviceFolder.h"

#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileSync.h"
#include "corvex/common/files/FolderLock.h"
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/common/zip/ZipHelper.h"
#include "corvex/values/records/IdentifierInfo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>
#include <cerrno>
#include <optional>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

const QString projectFolder = u"project"_s;
const QString zippedProject = u"Project.kdproj.zip"_s;
const QString previousFolder = u"previous"_s;
const QString workshopName = u".corvex-build-"_s; // followed by a few random letters
constexpr QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

//! Whether a build generates or copies files with that name.
bool isBuilt(const QString &name)
{
    const QString extension = QFileInfo(name).suffix().toLower();
    return name == zippedProject || (name.startsWith("qml_"_L1) && extension == "qml"_L1)
           || extension == "kdrc"_L1 || Common::FileHelper::validImageExtensions().contains(extension);
}

//! The names of the images in the zipped project of a build.
QSet<QString> imagesOf(const QString &zip)
{
    QSet<QString> names;
    const Common::TemporaryFolder folder(u"corvex-earlier"_s);
    QFile file(folder.filePath(QFileInfo(zip).completeBaseName()));
    if (!folder.isValid() || !Common::ZipHelper::unzip(zip, folder.path())
        || !file.open(QIODevice::ReadOnly)) {
        return names;
    }
    QXmlStreamReader reader(&file);
    bool isImage = false;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == "ImageResource"_L1) {
            isImage = true;
        } else if (isImage && reader.attributes().value("name"_L1) == "id"_L1) {
            const QString text = reader.attributes().value("value"_L1).toString();
            names.insert(Designer::IdentifierInfo(text).name());
            isImage = false;
        }
    }
    return names;
}

bool copyFiles(const QDir &source, const QDir &target, QString *error)
{
    const QStringList names = source.entryList(everything);
    return Common::FileHelper::makeFolder(target.path(), error)
           && std::ranges::all_of(names, [&](const QString &name) {
                  return Common::FileHelper::copyFile(source.filePath(name), target.filePath(name), error);
              });
}

//! The missing folders of a path, innermost first.
QStringList missingFolders(const QString &path)
{
    QStringList missing;
    QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (!QFileInfo::exists(folder)) {
        missing.append(folder);
        folder = QFileInfo(folder).path();
    }
    return missing;
}

} // namespace

QString DeviceFolder::projectPath() const
{
    return QDir(m_path).filePath(projectFolder);
}

bool DeviceFolder::isInside(const QString &other) const
{
    const QStringList missing = missingFolders(m_path);
    const QString existing = missing.isEmpty() ? m_path : QFileInfo(missing.constLast()).path();
    const QString canonical = QFileInfo(existing).canonicalFilePath() + u'/';
    return canonical.startsWith(QFileInfo(other).canonicalFilePath() + u'/');
}

bool DeviceFolder::fail(QString *error, const QString &message) const
{
    *error = message;
    return false;
}

bool DeviceFolder::bring(const QString &source, QString *error)
{
    if (const QFileInfo info(m_path); info.exists() && !info.isDir()) {
        return fail(error, u"\"%1\" is not a folder."_s.arg(m_path));
    }
    if (const QString foreign = foreignEntry(QDir(source).entryList(everything)); !foreign.isEmpty()) {
        return fail(
            error,
            u"\"%1\" contains \"%2\", which is not part of a build, so nothing was written. Choose a new "
            "or an empty folder."_s.arg(m_path, foreign));
    }
    const QStringList made = missingFolders(m_path);
    if (Common::FileHelper::makeFolder(m_path, error) && bringLocked(source, error)) {
        return syncFrom(made, error);
    }
    for (const QString &folder : made) {
        QDir().rmdir(folder);
    }
    return false;
}

//! Flushes the build, and the folders that lead to it, to the disk.
bool DeviceFolder::syncFrom(const QStringList &made, QString *error) const
{
    QStringList folders{m_path};
    for (const QString &folder : made) {
        folders.append(QFileInfo(folder).path());
    }
    return std::ranges::all_of(folders, Common::FileSync::sync)
           || fail(error,
                   u"The folder \"%1\" cannot be written to: %2"_s.arg(m_path, Common::FileSync::reason()));
}

bool DeviceFolder::bringLocked(const QString &source, QString *error) const
{
    Common::FolderLock lock;
    if (!lock.take(m_path, Common::FolderLock::Kind::Exclusive)) {
        return fail(error, u"Another build is writing to \"%1\". Wait until it has finished."_s.arg(m_path));
    }
    clearRemains();
    return replace(source, error);
}

void DeviceFolder::clearRemains() const
{
    for (const QString &name : QDir(m_path).entryList({workshopName + u'*'}, everything)) {
        const QDir workshop(QDir(m_path).filePath(name));
        if (!QFileInfo::exists(projectPath())) {
            QDir().rename(workshop.filePath(previousFolder), projectPath());
        }
        Common::FileHelper::removeDirectory(workshop.path());
    }
}

QString DeviceFolder::foreignEntry(const QStringList &newFiles) const
{
    QFileInfoList entries = QDir(m_path).entryInfoList(everything);
    entries.removeIf([](const QFileInfo &entry) {
        return entry.fileName().startsWith(workshopName) && entry.isDir() && !entry.isSymLink();
    });
    for (const QFileInfo &entry : std::as_const(entries)) {
        if (entry.fileName() != projectFolder || !entry.isDir() || entry.isSymLink()) {
            return entry.fileName();
        }
    }
    if (entries.isEmpty()) {
        return {};
    }
    const QString zip = QDir(projectPath()).filePath(zippedProject);
    std::optional<QSet<QString>> images; // of the earlier build; read only when needed
    const QFileInfoList files = QDir(projectPath()).entryInfoList(everything);
    for (const QFileInfo &file : files) {
        const QString name = file.fileName();
        bool isOurs = file.isFile() && !file.isSymLink();
        if (isOurs && !isBuilt(name) && !newFiles.contains(name)) {
            images = images ? images : imagesOf(zip);
            isOurs = images->contains(name);
        }
        if (!isOurs) {
            return u"%1/%2"_s.arg(projectFolder, name);
        }
    }
    return QFileInfo(zip).isFile() ? QString() : projectFolder;
}

bool DeviceFolder::replace(const QString &source, QString *error) const
{
    // Build the new files beside their final place, on the same disk, and move them there when they are
    // complete.
    const QTemporaryDir workshop(QDir(m_path).filePath(workshopName + "XXXXXX"_L1));
    const QDir draft(workshop.filePath(projectFolder));
    if (!workshop.isValid()) {
        return fail(error,
                    u"The folder \"%1\" cannot be written to: %2"_s.arg(m_path, workshop.errorString()));
    }
    // A rename fails across file systems; copy the files instead.
    if (!QDir().rename(source, draft.path()) && !copyFiles(QDir(source), draft, error)) {
        return false;
    }
    using namespace Common;
    if (!FileSync::syncAll(draft.path())) {
        return fail(error, u"The folder \"%1\" cannot be written to: %2"_s.arg(m_path, FileSync::reason()));
    }
    const bool hasPrevious = QFileInfo::exists(projectPath());
    bool isInPlace = hasPrevious ? FileSync::exchange(draft.path(), projectPath())
                                 : FileSync::move(draft.path(), projectPath());
    if (hasPrevious && !isInPlace && errno == ENOTSUP) {
        // Two renames. If the program is killed between them, the next build restores the earlier one.
        const QString previous = workshop.filePath(previousFolder);
        isInPlace =
            FileSync::move(projectPath(), previous)
            && (FileSync::move(draft.path(), projectPath()) || !FileSync::move(previous, projectPath()));
        isInPlace = isInPlace && !QFileInfo::exists(draft.path());
    }
    if (!isInPlace) {
        return fail(error,
                    u"The build cannot be moved to \"%1\": %2"_s.arg(projectPath(), FileSync::reason()));
    }
    // Flush the new build before the earlier one is deleted.
    return FileSync::sync(m_path)
           || fail(error, u"The folder \"%1\" cannot be written to: %2"_s.arg(m_path, FileSync::reason()));
}

} // namespace Halvane::Corvex::Designer
