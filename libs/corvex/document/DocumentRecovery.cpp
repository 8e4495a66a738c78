// SPDX-License-Identifier: MIT
// How ProjectDocument handles the autosave file after a crash.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileTransaction.h"
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/common/zip/ZipHelper.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/editing/commands/images/ImageNames.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/project/files/ProjectAutosave.h"
#include "corvex/values/records/IdentifierInfo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

//! The path of the project file in an unpacked archive; empty if the archive does not contain one.
QString projectFileIn(const QString &folder)
{
    const QStringList files = QDir(folder).entryList({u"*.kdproj"_s}, QDir::Files);
    return files.isEmpty() ? QString() : QDir(folder).filePath(files.constFirst());
}

//! Whether both files can be read and are equal.
bool isSame(const QString &path, const QString &otherPath)
{
    QByteArray bytes;
    QByteArray otherBytes;
    return Common::FileHelper::readFile(path, &bytes) && Common::FileHelper::readFile(otherPath, &otherBytes)
           && bytes == otherBytes;
}

//! The images that the project does not have, or has with other contents.
QStringList newImages(const QDir &recovered, const QDir &present)
{
    QStringList names = recovered.entryList(QDir::Files);
    names.removeIf(
        [&](const QString &name) { return isSame(recovered.filePath(name), present.filePath(name)); });
    return names;
}

//! The name in a project file; empty if it is not a project.
QString projectNameIn(const QString &file)
{
    QString id;
    QString version;
    return Project::getFileIdAndVersion(file, &id, &version) ? IdentifierInfo(id).name() : QString();
}

//! The name of the recovered project, if it is not the one in the file \a saved and nothing else has it by
//! now; otherwise empty. The folder only gets it if folder and file have the same name.
QString nameToTake(const QString &recovered, const QString &saved)
{
    const QString name = projectNameIn(recovered);
    const QFileInfo file(saved);
    const QFileInfo folder(file.path());
    const bool isNew = name != projectNameIn(saved) && FileNameRules::projectNameError(name).isEmpty();
    const bool isTaken = file.dir().exists(u"%1.%2"_s.arg(name, file.suffix()))
                         || (folder.fileName() == file.completeBaseName() && folder.dir().exists(name));
    return isNew && !isTaken ? name : QString();
}

} // namespace

QString ProjectDocument::recoveryNote() const
{
    return m_project->recoveryNote();
}

bool ProjectDocument::hasRecovery() const
{
    return !m_project->autosave().foundArchive().isEmpty();
}

QDateTime ProjectDocument::recoveryTime() const
{
    return hasRecovery() ? QFileInfo(m_project->autosave().foundArchive()).lastModified() : QDateTime();
}

bool ProjectDocument::discardRecovery()
{
    QString error;
    if (!hasRecovery()) {
        return result(false, LocalizationHelper::coreString(u"This project has no autosave file."_s));
    }
    return result(m_project->autosave().discardArchive(&error), error);
}

bool ProjectDocument::recover()
{
    QString error;
    if (!hasRecovery()) {
        return result(false, LocalizationHelper::coreString(u"This project has no autosave file."_s));
    }
    if (!mayEdit(error)) {
        return result(false, error);
    }
    const QString archive = m_project->autosave().foundArchive();
    const QDateTime archived = recoveryTime();
    const Common::TemporaryFolder folder(u"corvex-recovery"_s);
    if (!folder.isValid()) {
        return result(false, folder.errorString());
    }
    if (!Common::ZipHelper::unzip(archive, folder.path(), &error)) {
        return result(false, error);
    }
    const QString recovered = projectFileIn(folder.path());
    if (recovered.isEmpty()) {
        return result(false,
                      LocalizationHelper::coreString(u"The autosave file \"%1\" contains no project."_s)
                          .arg(QDir::toNativeSeparators(archive)));
    }
    if (!canLoad(recovered)) {
        return false;
    }
    const QDir images(folder.filePath(QFileInfo(m_project->imagesPath()).fileName()));
    // Without waiting changes, the files are as they were saved.
    const bool changesFiles = m_project->fileChanges()
                              || !newImages(images, m_project->imagesPath()).isEmpty()
                              || !nameToTake(recovered, m_project->fullFilePath()).isEmpty();
    if (changesFiles && !m_project->beginFileChanges(&error)) {
        return result(false, error);
    }
    select({});
    m_project->takeBackFiles();
    const QString path = m_project->fullFilePath();
    const QString parent = m_project->parentPath();
    const QString sub = m_project->subPath();
    const QString file = m_project->fileName();
    bool isLoaded = m_project->loadFile(recovered);
    error = m_project->fileError();
    m_project->setFileFields(parent, sub, file);
    isLoaded = isLoaded && takeRecoveredImages(images, archived, error)
               && takeRecoveredName(nameToTake(recovered, path), error);
    if (!isLoaded) {
        readFile(path);
        return result(false, error);
    }
    m_project->setFileFields(parent, m_project->subPath(), m_project->fileName()); // images check their files
    m_history->setUnsaved();
    m_isComplete = m_isComplete && !losesParts();
    m_project->autosave().adoptArchive();
    onHistoryChanged();
    return result(true, {});
}

//! Adds the images from the archive to the project's folder. The change can be undone until the next save.
bool ProjectDocument::takeRecoveredImages(const QDir &images, const QDateTime &archived, QString &error)
{
    const QDir present(m_project->imagesPath());
    ImageNames freeNames(m_project.get());
    for (const QString &name : newImages(images, present)) {
        QByteArray bytes;
        const QString path = present.filePath(name);
        const QString inFolder = QDir(m_project->folderPath()).relativeFilePath(path);
        Common::FileTransaction *files = m_project->beginImageChanges(&error);
        if (!files || !Common::FileHelper::readFile(images.filePath(name), &bytes, &error)) {
            return false;
        }
        // A file that is newer than the archive was written by another program since, and is kept.
        const QFileInfo file(path);
        const bool isNewer = file.exists() && file.lastModified() > archived;
        const QString kept = isNewer ? freeNames.freeName(name) : QString();
        if ((isNewer && !files->move(inFolder, QFileInfo(inFolder).dir().filePath(kept), &error))
            || (QFileInfo::exists(path) && files->setAside(inFolder).isEmpty())
            || !files->place(inFolder, bytes, &error)) {
            return false;
        }
    }
    return true;
}

//! Renames folder and file, unless the name is empty. The change can be undone until the next save.
bool ProjectDocument::takeRecoveredName(const QString &name, QString &error)
{
    if (name.isEmpty()) {
        return true;
    }
    if (!m_project->beginFileChanges(&error)) {
        return false;
    }
    const bool isRenamed = m_project->renameFile(QFileInfo(m_project->fileName()).completeBaseName(), name);
    error = m_project->fileError();
    return isRenamed;
}

} // namespace Halvane::Corvex::Designer
