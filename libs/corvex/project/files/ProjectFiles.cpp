// SPDX-License-Identifier: MIT
// The files of Project. They are all in its own folder, except the autosave file.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileSync.h"
#include "corvex/common/files/SafeFile.h"
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/core/xml/ObjectXmlWriter.h"
#include "corvex/editing/undo/HistoryKeeper.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/project/files/ProjectAutosave.h"
#include "corvex/project/private/ProjectResources.h"
#include "corvex/values/records/ObjectLinkInfo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString projectFileName(const QString &name)
{
    return u"%1.kdproj"_s.arg(name);
}

//! Whether the file is a link whose path leaves the folder and returns by the folder's name.
bool needsFolderName(const QString &path)
{
    const QString target = Common::FileSync::linkTarget(path);
    const QFileInfo file(path);
    const bool leavesFolder = QDir::isAbsolutePath(target) || QDir::cleanPath(target).startsWith("../"_L1);
    return leavesFolder
           && file.canonicalFilePath().startsWith(QFileInfo(file.path()).canonicalFilePath() + u'/');
}

} // namespace

QString Project::createFileName() const
{
    return projectFileName(getIdName());
}

QString Project::createSubPath() const
{
    return getIdName();
}

bool Project::createFile(const QString &path)
{
    if (const QString error = FileNameRules::projectNameError(getIdName()); !error.isEmpty()) {
        return finish(error);
    }
    if (QString error; !Common::FileTransaction::mayTakeName(QDir(path).filePath(getIdName()), &error)) {
        return finish(error);
    }
    const QString oldVersion = m_version->valueString();
    const QString oldDesignerVersion = m_designerVersion->valueString();
    updateBuildVersion();
    changePropertyValue(m_designerVersion, buildVersion());
    if (!FileObject::createFile(path)) {
        changePropertyValue(m_version, oldVersion);
        changePropertyValue(m_designerVersion, oldDesignerVersion);
        return false;
    }
    m_folder.close(); // the next one is another folder
    m_fileStamp = Common::FileStamp::of(fullFilePath());
    m_observers.call(&ModelObserver::projectSaved);
    createUndoStack();
    return true;
}

bool Project::lockFiles(const QString &path, Common::FolderLock::Kind kind, int milliseconds)
{
    QString error;
    takeBackFiles();
    m_folder.lock(path, kind, milliseconds, &error);
    return finish(error);
}

bool Project::lockForSave()
{
    QString error;
    m_folder.lockForSave(folderPath(), &error);
    return finish(error);
}

void Project::unlockAfterSave()
{
    m_folder.unlockAfterSave();
}

void Project::closeFiles()
{
    takeBackFiles();
    m_folder.close();
}

void Project::takeBackFiles()
{
    if (!fileChanges()) {
        return;
    }
    const QString saved = QFileInfo(createFullFilePath(parentPath(), m_savedSubPath, m_savedFileName)).path();
    const QString own = m_folder.takeBack({saved, folderPath()});
    if (!fileChanges() && !own.isEmpty() && QFileInfo(QDir(own).filePath(m_savedFileName)).isFile()) {
        setFileFields(parentPath(), own == saved ? m_savedSubPath : subPath(), m_savedFileName);
    }
}

Common::FileTransaction *Project::beginFileChanges(QString *error)
{
    if (!fileChanges()) {
        m_savedSubPath = subPath();
        m_savedFileName = fileName();
    }
    return m_folder.begin(folderPath(), error);
}

bool Project::mayChangeImages(QString *error) const
{
    const QString images = QFileInfo(imagesPath()).canonicalFilePath();
    if (images.isEmpty() || images.startsWith(QFileInfo(folderPath()).canonicalFilePath() + u'/')) {
        return true;
    }
    *error =
        Common::LocalizationHelper::coreString(
            u"The folder \"%1\" is a link to \"%2\". Images can only be changed inside the project. Copy "
            "the folder into it."_s)
            .arg(imagesPath(), images);
    return false;
}

Common::FileTransaction *Project::beginImageChanges(QString *error)
{
    return mayChangeImages(error) ? beginFileChanges(error) : nullptr;
}

bool Project::loadFile(const QString &path)
{
    QString error;
    const QFileInfo given(path);
    const bool isOwn = path == fullFilePath() || (given.isFile() && given == QFileInfo(fullFilePath()));
    takeBackFiles();
    const QString file = isOwn ? fullFilePath() : path;
    if (!m_folder.recover(file, &error)) {
        return finish(error);
    }
    if (!QFileInfo(file).isFile()) {
        return FileObject::loadFile(file);
    }
    m_autosave->cancel(); // It would write the project while it is incomplete.
    m_observers.beginLoad();
    Common::SafeFile::removeAbandoned(QFileInfo(file).absolutePath());
    clearContents();
    m_fileStamp = Common::FileStamp::of(file);
    const bool done = FileObject::loadFile(file) && updateProjectProperties();
    m_observers.endLoad();
    createUndoStack();
    if (done) {
        m_autosave->removeArchive();
    }
    return done;
}

void Project::clearContents()
{
    setDisableValidation(true);
    for (const SharedProperty &list : {m_imageResources, m_variables, m_screens}) {
        const QList<DesignerObject *> items = list->listItems();
        for (auto item = items.crbegin(); item != items.crend(); ++item) {
            delete takeListPropertyItem(list, *item);
        }
    }
    changePropertyObjectValue(m_configuration, nullptr, true);
    setIdName(baseName());
    changePropertyValue(m_version, {});
    changePropertyValue(m_designerVersion, {});
    changePropertyValue(m_defaultScreen, ObjectLinkInfo({}, u"Project"_s, u"Screen"_s).toString());
    m_autoSaveVariables.clear();
    m_needsBuildVersion = false;
    setDisableValidation(false);
}

bool Project::saveFile()
{
    const QString oldDesignerVersion = m_designerVersion->valueString();
    const QString oldArchive = autosavePath();
    changePropertyValue(m_designerVersion, buildVersion());
    if (!FileObject::saveFile()) {
        changePropertyValue(m_designerVersion, oldDesignerVersion);
        return false;
    }
    m_observers.call(&ModelObserver::projectSaved);
    if (m_historyKeeper) {
        setUndoStack(m_historyKeeper->historyAfterSave());
    } else {
        createUndoStack();
    }
    m_autosave->projectSaved(oldArchive);
    return true;
}

bool Project::writeAgain(QString *error)
{
    const auto clean = [this] {
        restoreDeletedImages();
        if (m_historyKeeper) {
            m_historyKeeper->aboutToSave();
        } else {
            undoStack()->cleanJunkFiles();
        }
    };
    // Another program may write the file right after the save, so the stamp is not read from there.
    Common::FileStamp written;
    const auto write = [this, &written](const QString &path, QString *reason) {
        return ObjectXmlWriter::save(this, path, reason, &written);
    };
    if (!m_folder.save(folderPath(), fileName(), clean, write, error)) {
        return false;
    }
    // With image changes, the contents are copied to the file that a link leads to.
    m_fileStamp = QFileInfo(fullFilePath()).isSymLink() ? Common::FileStamp::of(fullFilePath()) : written;
    return true;
}

//! The waiting changes still know the contents of image files that another program has deleted since.
void Project::restoreDeletedImages()
{
    for (ImageResource *image : fileChanges() ? images() : QList<ImageResource *>()) {
        if (fileChanges()->restore(u"%1/%2"_s.arg(ProjectResources::imagesFolder(), image->getIdName()))) {
            image->updateFileFields();
        }
    }
}

bool Project::renameEntries(const QString &fileName, const QString &subPath, QString *error)
{
    if (subPath != this->subPath() && needsFolderName(fullFilePath())) {
        *error = Common::LocalizationHelper::coreString(
                     u"The project file \"%1\" is a link to \"%2\". It would be broken after the folder is "
                     "renamed. Make the link relative to its own folder and try again."_s)
                     .arg(fullFilePath(), Common::FileSync::linkTarget(fullFilePath()));
        return false;
    }
    const bool waitsForSave = fileChanges();
    Common::FileTransaction *changes = beginFileChanges(error);
    const bool isMoved =
        changes && (fileName == this->fileName() || changes->move(this->fileName(), fileName, error));
    const bool isRenamed = isMoved && (subPath == this->subPath() || changes->renameFolder(subPath, error));
    if (waitsForSave) {
        const bool isHalf = isMoved && !isRenamed && fileName != this->fileName();
        if (isHalf && !changes->undoMove(this->fileName(), fileName)) {
            setFileFields(parentPath(), this->subPath(), fileName);
        }
        return isRenamed;
    }
    const bool isKept = isRenamed && m_folder.keepChanges(fileName, error);
    if (!isKept) {
        m_folder.takeBack();
    }
    return isKept;
}

bool Project::deleteFile()
{
    if (QString error; !m_folder.keepChanges(fileName(), &error)) {
        return finish(error);
    }
    const QDir folder(folderPath());
    const QString ownFolder = subPath() == createSubPath() ? subPath() : QString();
    const QDir parent(parentPath());
    QStringList files;
    for (const ImageResource *image : images()) {
        files.append(image->filePath());
    }
    for (const QString &name : ProjectResources::otherFiles()) {
        files.append(folder.filePath(name));
    }
    if (!FileObject::deleteFile()) {
        return false;
    }
    m_autosave->removeArchive();
    QStringList left;
    for (const QString &file : std::as_const(files)) {
        if (QFileInfo(file).isFile() && !QFile::remove(file)) {
            left.append(file);
        }
    }
    // Folders with other files of the user are not empty and remain.
    folder.rmdir(ProjectResources::imagesFolder());
    if (!ownFolder.isEmpty()) {
        parent.rmdir(ownFolder);
    }
    return finish(left.isEmpty()
                      ? QString()
                      : Common::LocalizationHelper::coreString(u"The file \"%1\" cannot be deleted."_s)
                            .arg(left.join(R"(", ")"_L1)));
}

bool Project::createFileCopy(const QString &parentPath, const QString &name)
{
    const QString copyName = name.isEmpty() ? getIdName() : name;
    if (const QString error = FileNameRules::projectNameError(copyName); !error.isEmpty()) {
        return finish(error);
    }
    const QString folder = u"%1/%2"_s.arg(parentPath, copyName);
    if (const QFileInfo info(folder); info.exists() || info.isSymLink()) {
        return finish(
            Common::LocalizationHelper::coreString(u"The folder \"%1\" exists already."_s).arg(folder));
    }
    QString error;
    if (!Common::FileTransaction::mayTakeName(folder, &error)) {
        return finish(error);
    }
    // Build the copy in a temporary folder beside its final place, and rename it when it is complete.
    const Common::TemporaryFolder workshop(parentPath, u".corvex-copy"_s);
    const QString draft = workshop.filePath(copyName);
    if (!workshop.isValid() || !QDir().mkdir(draft)) {
        return finish(Common::LocalizationHelper::coreString(u"The folder \"%1\" cannot be created: %2"_s)
                          .arg(folder, workshop.errorString()));
    }
    if (copyName == getIdName() ? writeContents(draft, createFileName(), &error)
                                : writeRenamed(draft, copyName, &error)) {
        if (!Common::FileSync::syncAll(draft) || !Common::FileSync::move(draft, folder)
            || !Common::FileSync::sync(parentPath)) {
            error = Common::LocalizationHelper::coreString(u"The folder \"%1\" cannot be created: %2"_s)
                        .arg(folder, Common::FileSync::reason());
        }
    }
    return finish(error);
}

bool Project::writeRenamed(const QString &path, const QString &name, QString *error) const
{
    const std::unique_ptr<DesignerObject> copy(createCopy(this, false));
    if (!copy) {
        *error = Common::LocalizationHelper::coreString(u"The project \"%1\" cannot be copied."_s)
                     .arg(getIdName());
        return false;
    }
    copy->setIdName(name);
    static_cast<Project &>(*copy).updateBuildVersion();
    return saveToFile(copy.get(), u"%1/%2"_s.arg(path, projectFileName(name)), error)
           && copyResources(path, error);
}

bool Project::writeContents(const QString &path, const QString &fileName, QString *error) const
{
    return saveToFile(this, u"%1/%2"_s.arg(path, fileName), error) && copyResources(path, error);
}

bool Project::copyResources(const QString &path, QString *error) const
{
    return ProjectResources(*this).copyTo(path, error);
}

QList<ImageResource *> Project::images() const
{
    QList<ImageResource *> found;
    for (DesignerObject *item : m_imageResources->listItems()) {
        found.append(static_cast<ImageResource *>(item));
    }
    return found;
}

void Project::afterFileFieldsChanged()
{
    for (ImageResource *image : images()) {
        image->updateFileFields();
    }
}

QString Project::imagesPath() const
{
    return fullFilePath().isEmpty() ? QString()
                                    : u"%1/%2"_s.arg(folderPath(), ProjectResources::imagesFolder());
}

QString Project::approvalsPath() const
{
    return fullFilePath().isEmpty() ? QString()
                                    : QDir(folderPath()).filePath(ProjectResources::approvalsFile());
}

QString Project::autosavePath() const
{
    const QString &savedName = fileChanges() ? m_savedFileName : fileName();
    return fullFilePath().isEmpty() ? QString() : u"%1/%2.kdasv"_s.arg(parentPath(), savedName);
}

bool Project::getFileIdAndVersion(const QString &path, QString *id, QString *version)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    QXmlStreamReader reader(&file);
    if (!reader.readNextStartElement() || reader.name() != "Project"_L1 || !reader.readNextStartElement()
        || reader.name() != "Properties"_L1) {
        return false;
    }
    QHash<QString, QString> found;
    while (found.size() < 2 && reader.readNextStartElement()) {
        const QXmlStreamAttributes attributes = reader.attributes();
        const QString name = attributes.value("name"_L1).toString();
        if (name == "id"_L1 || name == "version"_L1) {
            found.insert(name, attributes.value("value"_L1).toString());
        }
        reader.skipCurrentElement();
    }
    if (reader.hasError() || !found.contains(u"id"_s)) {
        return false;
    }
    *id = found.value(u"id"_s);
    *version = found.value(u"version"_s);
    return true;
}

QString Project::getFileVersion(const QString &path)
{
    QString id;
    QString version;
    return getFileIdAndVersion(path, &id, &version) ? version : QString();
}

} // namespace Halvane::Corvex::Designer
