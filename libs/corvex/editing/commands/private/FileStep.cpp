// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/FileStep.h"

#include "corvex/common/LocalizationHelper.h"
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

bool readFile(const QString &path, QByteArray &bytes, QString &error)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        bytes = file.readAll();
    }
    if (file.error() != QFileDevice::NoError) {
        error = LocalizationHelper::coreString(u"The file \"%1\" cannot be read: %2"_s)
                    .arg(path, file.errorString());
        return false;
    }
    return true;
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

void FileStep::removeUnused(const QString &name) const
{
    QString error;
    if (const QString path = pathOf(name); !path.isEmpty() && exists(path) && !isUsed(name)) {
        if (Common::FileTransaction *files = changes(error)) {
            files->remove(inFolder(name));
        }
    }
}

Common::FileTransaction *FileStep::changes(QString &error) const
{
    return m_project->beginFileChanges(&error);
}

QString FileStep::inFolder(const QString &name) const
{
    return pathOf(name).sliced(m_project->folderPath().size() + 1);
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
    return m_source.isEmpty() || readFile(m_source, bytes, error);
}

bool PlaceFileStep::redo(QString &error)
{
    Common::FileTransaction *files = changes(error);
    m_isDone = files && (bringBack(*files) || place(*files, error));
    return m_isDone;
}

//! A file that was placed before replaces the source, which may no longer exist.
bool PlaceFileStep::bringBack(Common::FileTransaction &files)
{
    if (m_key.isEmpty() || exists(path()) || !files.bringBack(m_key, inFolder(name()))) {
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
            error = LocalizationHelper::coreString(u"The file \"%1\" exists already."_s).arg(path());
        }
        return isSame;
    }
    m_isMade = files.place(inFolder(name()), bytes, &error);
    if (m_isMade) {
        m_stored.reset();
    }
    return m_isMade;
}

bool PlaceFileStep::keepFiles(Common::FileStore &store, QString &error)
{
    if (m_key.isEmpty()) {
        return true;
    }
    m_stored = FileStep::store(m_key, store, error);
    if (m_stored) {
        m_key.clear();
        m_isMade = false;
    }
    return m_stored != nullptr;
}

bool LeaveFileStep::redo(QString &)
{
    m_isDone = true;
    return true;
}

void LeaveFileStep::undo()
{
    m_isDone = false;
    QByteArray bytes;
    QString error;
    if (!m_stored || exists(path()) || !m_stored->read(&bytes, &error)) {
        return;
    }
    Common::FileTransaction *files = changes(error);
    if (files && files->place(inFolder(name()), bytes, &error)) {
        m_stored.reset();
        lookAgain(name());
    }
}

bool LeaveFileStep::keepFiles(Common::FileStore &store, QString &error)
{
    if (!m_isDone || isUsed(name()) || !exists(path())) {
        return true;
    }
    m_stored = store.keep(path(), &error);
    if (m_stored) {
        removeUnused(name());
    }
    return m_stored != nullptr;
}

void PlaceFileStep::undo()
{
    m_isDone = false;
    QString error;
    Common::FileTransaction *files = m_isMade ? changes(error) : nullptr;
    m_key = files ? files->setAside(inFolder(name())) : QString();
    m_isMade = !m_key.isEmpty();
}

void PlaceFileStep::cleanJunkFiles()
{
    if (!m_key.isEmpty()) {
        discard(m_key);
    } else if (m_isMade) {
        removeUnused(name());
    }
}

bool RenameFileStep::rename(const QString &from, const QString &to, QString &error)
{
    if (!exists(pathOf(from)) && !exists(pathOf(to))) {
        return true; // somebody has deleted the file; the image has none under either name
    }
    if (exists(pathOf(to)) && from.compare(to, Qt::CaseInsensitive) != 0) {
        error = LocalizationHelper::coreString(u"The file \"%1\" exists already."_s).arg(pathOf(to));
        return false;
    }
    Common::FileTransaction *files = changes(error);
    return files && files->move(inFolder(from), inFolder(to), &error);
}

void RenameFileStep::undo()
{
    QString error;
    rename(m_newName, name(), error);
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
    if (m_stored) {
        QByteArray bytes;
        m_key = m_stored->read(&bytes, &error) ? files->keepAside(bytes, &error) : QString();
        if (m_key.isEmpty()) {
            return false;
        }
        m_stored.reset();
    }
    const bool hasOld = exists(path());
    const QString old = hasOld ? files->setAside(inFolder(name())) : QString();
    if (hasOld && old.isEmpty()) {
        return false;
    }
    const bool hadNone = m_key.isEmpty(); // there was no file before
    if (!hadNone && !files->bringBack(m_key, inFolder(name()))) {
        if (hasOld) {
            files->bringBack(old, inFolder(name()));
        }
        return false;
    }
    m_key = old;
    lookAgain(name());
    return true;
}

bool ReplaceFileStep::redo(QString &error)
{
    if (m_key.isEmpty() && !m_stored) {
        QByteArray bytes;
        Common::FileTransaction *files = readFile(m_source, bytes, error) ? changes(error) : nullptr;
        m_key = files ? files->keepAside(bytes, &error) : QString();
        if (m_key.isEmpty()) {
            return false;
        }
    }
    m_isDone = exchange(error);
    if (!m_isDone && error.isEmpty()) {
        error = LocalizationHelper::coreString(u"The file \"%1\" cannot be replaced."_s).arg(path());
    }
    return m_isDone;
}

void ReplaceFileStep::undo()
{
    QString error;
    exchange(error);
    m_isDone = false;
}

bool ReplaceFileStep::keepFiles(Common::FileStore &store, QString &error)
{
    if (m_key.isEmpty()) {
        return true;
    }
    m_stored = FileStep::store(m_key, store, error);
    if (m_stored) {
        m_key.clear();
    }
    return m_stored != nullptr;
}

void ReplaceFileStep::cleanJunkFiles()
{
    discard(m_key);
}

} // namespace Halvane::Corvex::Designer
