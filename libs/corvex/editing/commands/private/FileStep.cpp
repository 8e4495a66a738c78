// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/FileStep.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileSync.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

bool exists(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool hasContents(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.size() == bytes.size() && file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

} // namespace

FileStep::FileStep(Project *project, const QString &name)
    : m_project(project)
    , m_name(name)
{ }

QString FileStep::pathOf(const QString &name) const
{
    const QString folder = m_project ? m_project->imagesPath() : QString();
    return folder.isEmpty() ? QString() : u"%1/%2"_s.arg(folder, name);
}

bool FileStep::isUsed(const QString &name) const
{
    return m_project && m_project->imageResources()->hasListItem(name);
}

void FileStep::removeUnused(const QString &digest) const
{
    QString error;
    if (!path().isEmpty() && exists(path()) && !isUsed(m_name)
        && Common::FileTransaction::digestOf(path()) == digest) {
        if (Common::FileTransaction *files = changes(error)) {
            files->remove(inFolder(m_name));
        }
    }
}

Common::FileTransaction *FileStep::changes(QString &error) const
{
    return m_project->beginImageChanges(&error);
}

QString FileStep::existsAlready() const
{
    return LocalizationHelper::coreString(u"The file \"%1\" exists already."_s).arg(path());
}

QString FileStep::cannotBeRemoved() const
{
    return LocalizationHelper::coreString(u"The file \"%1\" cannot be removed: %2"_s)
        .arg(path(), Common::FileSync::reason());
}

QString FileStep::inFolder(const QString &name) const
{
    return pathOf(name).sliced(m_project->folderPath().size() + 1);
}

bool FileStep::isAside(const QString &key) const
{
    const Common::FileTransaction *files = m_project ? m_project->fileChanges() : nullptr;
    return files && !key.isEmpty() && exists(files->asidePath(key));
}

void FileStep::discard(const QString &key) const
{
    // Without pending changes the last save has deleted it.
    if (Common::FileTransaction *files = m_project ? m_project->fileChanges() : nullptr) {
        files->discard(key);
    }
}

void FileStep::lookAgain(const QString &name) const
{
    if (auto *image = kindCast<ImageResource>(m_project->imageResources()->getListItem(name))) {
        image->updateFileFields();
    }
}

FileStep::Stored FileStep::store(const QString &key, Common::FileStore &files, QString &error) const
{
    const Common::FileTransaction *changes = m_project ? m_project->fileChanges() : nullptr;
    return changes ? files.keep(changes->asidePath(key), &error) : nullptr;
}

PlaceFileStep::~PlaceFileStep()
{
    if (!m_isDone) {
        PlaceFileStep::cleanJunkFiles();
    }
}

bool PlaceFileStep::readSource(QByteArray &bytes, QString &error) const
{
    if (m_stored) {
        return m_stored->read(&bytes, &error);
    }
    bytes = m_bytes;
    return m_source.isEmpty() || Common::FileHelper::readFile(m_source, &bytes, &error);
}

bool PlaceFileStep::redo(QString &error)
{
    Common::FileTransaction *files = changes(error);
    const bool isKept = isAside(m_key) && !exists(path());
    m_isDone = files && (isKept ? bringBack(*files, error) : place(*files, error));
    return m_isDone;
}

//! A file that was placed before replaces the source, which may no longer exist.
bool PlaceFileStep::bringBack(Common::FileTransaction &files, QString &error)
{
    if (!files.bringBack(m_key, inFolder(name()))) {
        error = LocalizationHelper::coreString(u"The file \"%1\" cannot be written: %2"_s)
                    .arg(path(), Common::FileSync::reason());
        return false;
    }
    m_key.clear();
    return true;
}

bool PlaceFileStep::place(Common::FileTransaction &files, QString &error)
{
    QByteArray bytes;
    if (!readSource(bytes, error)) {
        return false;
    }
    if (exists(path())) {
        const bool isSame = hasContents(path(), bytes);
        if (!isSame) {
            error = existsAlready();
        }
        return isSame;
    }
    m_isMade = files.place(inFolder(name()), bytes, &error);
    if (m_isMade) {
        m_digest = Common::FileTransaction::digestOf(path());
        m_stored.reset();
        m_key.clear();
    }
    return m_isMade;
}

bool PlaceFileStep::keepFiles(Common::FileStore &store, QString &error)
{
    if (m_key.isEmpty()) {
        return true;
    }
    // If another program has deleted it, a redo reads the source again.
    const bool isLost = !isAside(m_key);
    m_stored = isLost ? nullptr : FileStep::store(m_key, store, error);
    if (m_stored || isLost) {
        m_key.clear();
        m_isMade = false;
    }
    return m_stored || isLost;
}

bool LeaveFileStep::redo(QString &error)
{
    if (!project()->mayChangeImages(&error)) {
        return false;
    }
    if (m_isSaved && exists(path())) {
        Common::FileTransaction *files = changes(error);
        m_key = files ? files->setAside(inFolder(name()), m_digest) : QString();
        if (m_key.isEmpty()) {
            error = error.isEmpty() ? cannotBeRemoved() : error;
            return false;
        }
    }
    // A redo may find a file that another program has written since.
    if (!m_digest) {
        m_digest = Common::FileTransaction::digestOf(path());
    }
    m_isDone = true;
    return true;
}

bool LeaveFileStep::undo(QString &error)
{
    if (isAside(m_key)) {
        Common::FileTransaction *files = exists(path()) ? nullptr : changes(error);
        if (!files || !files->bringBack(m_key, inFolder(name()))) {
            error = error.isEmpty() ? existsAlready() : error;
            return false;
        }
    } else if (m_stored && !placeStored(error)) {
        return false;
    }
    m_key.clear();
    m_isDone = false;
    lookAgain(name());
    return true;
}

//! Another program may have restored the file.
bool LeaveFileStep::placeStored(QString &error)
{
    QByteArray bytes;
    if (!m_stored->read(&bytes, &error)) {
        return false;
    }
    if (exists(path()) && !hasContents(path(), bytes)) {
        error = existsAlready();
        return false;
    }
    if (!exists(path())) {
        Common::FileTransaction *files = changes(error);
        if (!files || !files->place(inFolder(name()), bytes, &error)) {
            return false;
        }
    }
    m_stored.reset();
    return true;
}

bool LeaveFileStep::keepFiles(Common::FileStore &store, QString &error)
{
    if (!m_isDone) {
        return true;
    }
    if (isAside(m_key)) {
        m_stored = FileStep::store(m_key, store, error);
        m_key = m_stored ? QString() : m_key;
        return m_stored != nullptr;
    }
    // A step that takes the name finds the file and leaves it at its undo. Other programs may have written
    // it.
    const bool isOurs =
        exists(path()) && !isUsed(name()) && Common::FileTransaction::digestOf(path()) == m_digest;
    if (isOurs && !m_isSaved) {
        m_stored = store.keep(path(), &error);
        if (!m_stored) {
            return false;
        }
    }
    if (isOurs && m_stored) {
        removeUnused(*m_digest); // also after a save that failed
    }
    m_isSaved = true;
    return true;
}

void LeaveFileStep::cleanJunkFiles()
{
    if (!m_key.isEmpty()) {
        discard(m_key);
    } else if (m_digest && (!m_isSaved || !m_isDone)) {
        removeUnused(*m_digest);
    }
}

bool PlaceFileStep::undo(QString &error)
{
    if (m_isMade && exists(path())) {
        Common::FileTransaction *files = changes(error);
        m_key = files ? files->setAside(inFolder(name()), m_digest) : QString();
        if (m_key.isEmpty()) {
            error = error.isEmpty() ? cannotBeRemoved() : error;
            return false;
        }
    }
    m_isMade = !m_key.isEmpty();
    m_isDone = false;
    return true;
}

void PlaceFileStep::cleanJunkFiles()
{
    if (!m_key.isEmpty()) {
        discard(m_key);
    } else if (m_isMade) {
        removeUnused(m_digest);
    }
}

bool RenameFileStep::rename(const QString &from, const QString &to, QString &error)
{
    if (!exists(pathOf(from)) && !exists(pathOf(to))) {
        Common::FileTransaction *files = project()->fileChanges();
        if (!files || !files->restore(inFolder(from))) {
            return true; // another program has deleted the file; the image has none under either name
        }
    }
    const bool isOtherCase =
        from.compare(to, Qt::CaseInsensitive) == 0 && Common::FileSync::isSame(pathOf(from), pathOf(to));
    if (exists(pathOf(to)) && !isOtherCase) {
        error = LocalizationHelper::coreString(u"The file \"%1\" exists already."_s).arg(pathOf(to));
        return false;
    }
    Common::FileTransaction *files = changes(error);
    return files && files->move(inFolder(from), inFolder(to), &error);
}

bool RenameFileStep::undo(QString &error)
{
    const bool isBack = !exists(pathOf(m_newName)) && exists(path()); // somebody has renamed it
    if (!isBack && !rename(m_newName, name(), error)) {
        return false;
    }
    lookAgain(name()); // the image had this name before the file had it
    return true;
}

ReplaceFileStep::~ReplaceFileStep()
{
    // While the step is done but not saved, the project's file still refers to the file that was set aside.
    if (!m_isDone) {
        ReplaceFileStep::cleanJunkFiles();
    }
}

bool ReplaceFileStep::exchange(QString &error)
{
    Common::FileTransaction *files = changes(error);
    if (!files) {
        return false;
    }
    m_isOldLost = m_isOldLost || (!m_key.isEmpty() && !isAside(m_key));
    if (m_isOldLost) {
        error =
            LocalizationHelper::coreString(
                u"The old contents of the file \"%1\" cannot be restored: another program has deleted them."_s)
                .arg(path());
        return false;
    }
    if (m_stored) {
        QByteArray bytes;
        m_key = m_stored->read(&bytes, &error) ? files->keepAside(bytes, &error) : QString();
        if (m_key.isEmpty()) {
            return false;
        }
        m_stored.reset();
    }
    const QString before = Common::FileTransaction::digestOf(path());
    if (!files->exchange(m_key, inFolder(name()), m_isDone ? m_newDigest : m_oldDigest)) {
        error = LocalizationHelper::coreString(u"The file \"%1\" cannot be replaced: %2"_s)
                    .arg(path(), Common::FileSync::reason());
        return false;
    }
    // Later calls may find contents that another program has written since.
    if (!m_oldDigest) {
        m_oldDigest = before;
    }
    if (!m_newDigest) {
        m_newDigest = Common::FileTransaction::digestOf(path());
    }
    lookAgain(name());
    return true;
}

bool ReplaceFileStep::redo(QString &error)
{
    if (!isAside(m_key) && !m_stored) {
        QByteArray bytes;
        Common::FileTransaction *files =
            Common::FileHelper::readFile(m_source, &bytes, &error) ? changes(error) : nullptr;
        m_key = files ? files->keepAside(bytes, &error) : QString();
        if (m_key.isEmpty()) {
            return false;
        }
        m_newDigest.reset(); // the source may have changed
    }
    m_isDone = exchange(error);
    return m_isDone;
}

bool ReplaceFileStep::undo(QString &error)
{
    m_isDone = !exchange(error);
    return !m_isDone;
}

bool ReplaceFileStep::keepFiles(Common::FileStore &store, QString &error)
{
    if (m_key.isEmpty()) {
        return true;
    }
    const bool isLost = !isAside(m_key);
    m_isOldLost = m_isDone && isLost;
    m_stored = isLost ? nullptr : FileStep::store(m_key, store, error);
    if (m_stored || isLost) {
        m_key.clear();
    }
    return m_stored || isLost;
}

void ReplaceFileStep::cleanJunkFiles()
{
    discard(m_key);
}

} // namespace Halvane::Corvex::Designer
