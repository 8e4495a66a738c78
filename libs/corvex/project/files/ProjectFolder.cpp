// SPDX-License-Identifier: MIT
#include "corvex/project/files/ProjectFolder.h"

#include "corvex/common/LocalizationHelper.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::FileTransaction;
using Common::LocalizationHelper;

//! Long enough for a save in another program.
constexpr int timeToSave = 2000; // milliseconds

bool fail(QString *error, const QString &english, const QString &path)
{
    *error = LocalizationHelper::coreString(english).arg(QDir::toNativeSeparators(path));
    return false;
}

bool failToLock(QString *error, const QString &folder)
{
    return fail(error,
                u"Another program is working on the project in \"%1\". Try again when it has finished."_s,
                folder);
}

bool failToTakeBack(QString *error)
{
    const QString text =
        u"The unsaved file changes of the project cannot be undone, because its files cannot be written or "
        "another folder has its old name. The changes are kept. Make the files writable, free the name and "
        "try again, or save the project."_s;
    *error = LocalizationHelper::coreString(text);
    return false;
}

//! The folder of the file. An interrupted edit may have left it under another name.
QString folderOf(const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QString renamed = QFileInfo(path).exists() ? QString() : FileTransaction::findRenamed(folder);
    return renamed.isEmpty() ? folder : renamed;
}

} // namespace

bool ProjectFolder::lock(const QString &path, Kind kind, int milliseconds, QString *error)
{
    if (m_changes) {
        return failToTakeBack(error);
    }
    close();
    const QString folder = folderOf(path);
    if (!QFileInfo(folder).isDir()) {
        return true; // the caller reports the missing file
    }
    // An interrupted transaction can only be completed while nobody else uses the folder.
    const bool isInterrupted = FileTransaction::isOpen(folder);
    if (!m_lock.take(folder, isInterrupted ? Kind::Exclusive : kind, milliseconds)) {
        return failToLock(error, folder);
    }
    if (isInterrupted && !endInterrupted(folder, error)) {
        m_lock.release();
        return false;
    }
    // The folder has its known name again, or no longer exists there.
    const QString present = QFileInfo(path).absolutePath();
    if (isInterrupted && QFileInfo(present).isDir() && !m_lock.take(present, kind, milliseconds)) {
        return failToLock(error, present);
    }
    m_isLockedForCaller = true;
    return true;
}

bool ProjectFolder::recover(const QString &path, QString *error)
{
    if (m_changes) {
        return failToTakeBack(error);
    }
    const QString folder = folderOf(path);
    if (!FileTransaction::isOpen(folder)) {
        return true;
    }
    const bool isOurs = m_lock.kind() == Kind::Exclusive && m_lock.isOn(folder);
    if (!isOurs && (m_lock.kind() != Kind::None || !m_lock.take(folder, Kind::Exclusive))) {
        return true; // somebody is using it
    }
    const bool isEnded = endInterrupted(folder, error);
    if (!isOurs) {
        m_lock.release();
    }
    return isEnded;
}

bool ProjectFolder::endInterrupted(const QString &folder, QString *error)
{
    m_note.clear();
    QStringList lost;
    switch (FileTransaction::recover(folder, &lost)) {
    case FileTransaction::Recovery::Nothing:
        break;
    case FileTransaction::Recovery::Finished:
        m_note = LocalizationHelper::coreString(u"An interrupted save of this project was completed."_s);
        break;
    case FileTransaction::Recovery::TakenBack:
        m_note = LocalizationHelper::coreString(
            u"An interrupted edit of this project was undone. The project is as it was last saved."_s);
        break;
    case FileTransaction::Recovery::NameTaken:
        fail(error,
             u"An edit of the project in \"%1\" was interrupted and cannot be undone, because the project's "
             "name is \"%2\", and another folder has this name. Rename one of the two folders and open the "
             "project again."_s,
             folder);
        *error = error->arg(FileTransaction::nameBefore(folder));
        return false;
    case FileTransaction::Recovery::Failed:
        return fail(error,
                    u"An edit of the project in \"%1\" was interrupted and cannot be undone, because its "
                    "files cannot be written. Make them writable and open the project again."_s,
                    folder);
    }
    if (!lost.isEmpty()) {
        m_note = LocalizationHelper::coreString(
                     u"Unsaved changes of this project were undone, except for these files, because another "
                     "program deleted their old contents: \"%1\". Check these files."_s)
                     .arg(lost.join(u"\", \""_s));
    }
    return true;
}

FileTransaction *ProjectFolder::begin(const QString &folder, QString *error)
{
    if (!prepare(folder, 0, error)) {
        return nullptr;
    }
    if (!m_changes) {
        m_changes = FileTransaction::begin(folder, error);
        if (m_changes) {
            m_changes->deferRemovals(m_isSaving);
        } else if (!m_isSaving) {
            unlockSaved();
        }
    }
    return m_changes.get();
}

bool ProjectFolder::save(const QString &folder, const QString &file, const std::function<void()> &clean,
                         const Write &write, QString *error)
{
    if (!prepare(folder, timeToSave, error)) {
        return false;
    }
    const bool hadChanges = bool(m_changes);
    m_isSaving = true;
    if (m_changes) {
        m_changes->deferRemovals(true);
    }
    clean();
    m_isSaving = false;
    const bool isSaved = m_changes ? m_changes->mayReplace(file, error)
                                         && write(m_changes->draftPath(), error) && commit(file, error)
                                   : write(QDir(folder).filePath(file), error);
    if (!isSaved && !hadChanges) {
        m_changes.reset();
    } else if (m_changes) {
        m_changes->deferRemovals(false);
    }
    unlockSaved();
    return isSaved;
}

bool ProjectFolder::prepare(const QString &folder, int milliseconds, QString *error)
{
    if (!QFileInfo(folder).isDir()) {
        return fail(error, u"The folder \"%1\" does not exist."_s, folder);
    }
    return keepOthersOut(folder, milliseconds, error) && (!m_changes || m_changes->renew(error));
}

bool ProjectFolder::keepOthersOut(const QString &folder, int milliseconds, QString *error)
{
    const bool isLocked = m_lock.kind() == Kind::Exclusive && m_lock.isOn(folder);
    if (!isLocked && !m_lock.take(folder, Kind::Exclusive, milliseconds)) {
        return failToLock(error, folder);
    }
    // A journal of somebody else would later replace what is written now.
    const bool isReady = m_changes || !FileTransaction::isOpen(folder) || endInterrupted(folder, error);
    if (!isReady) {
        unlockSaved();
    }
    return isReady;
}

bool ProjectFolder::lockForSave(const QString &folder, QString *error)
{
    m_isLockedForSave = !QFileInfo(folder).isDir() || keepOthersOut(folder, timeToSave, error);
    return m_isLockedForSave;
}

void ProjectFolder::unlockAfterSave()
{
    m_isLockedForSave = false;
    unlockSaved();
}

//! Do not keep others out between two saves.
void ProjectFolder::unlockSaved()
{
    if (!m_changes && !m_isLockedForCaller && !m_isLockedForSave) {
        m_lock.release();
    }
}

bool ProjectFolder::commit(const QString &file, QString *error)
{
    const bool isCommitted = m_changes->commit(file, error);
    if (m_changes->isOver()) {
        m_changes.reset();
    }
    return isCommitted;
}

bool ProjectFolder::keepChanges(const QString &file, QString *error)
{
    const bool isKept = !m_changes || (m_changes->renew(error) && commit(file, error));
    unlockSaved();
    return isKept;
}

QString ProjectFolder::takeBack(const QStringList &folders)
{
    if (m_changes) {
        m_changes->undo();
        if (m_changes->isOver()) {
            m_changes.reset();
        }
    }
    // Another program may have given one of the names to another project.
    const auto own =
        std::ranges::find_if(folders, [this](const QString &folder) { return m_lock.isOn(folder); });
    unlockSaved();
    return own == folders.end() ? QString() : *own;
}

void ProjectFolder::close()
{
    m_changes.reset();
    m_isLockedForCaller = false;
    m_lock.release();
}

} // namespace Halvane::Corvex::Designer
