// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/common/files/FileTransaction.h"
#include "corvex/common/files/FolderLock.h"

#include <functional>

namespace Halvane::Corvex::Designer {

/*! The folder of a project: locks it and keeps the file changes that wait for a save.

    Commands change image files immediately, but the project's file refers to the changes only after a save.
    Until then all these changes are one transaction: a save commits it, everything else undoes it, and after
    a crash the next opening does. Meanwhile other programs cannot open the project.
*/
class CORVEX_EXPORT ProjectFolder
{
public:
    using Kind = Common::FolderLock::Kind;

    ProjectFolder() = default;
    ~ProjectFolder() { close(); }
    Q_DISABLE_COPY_MOVE(ProjectFolder)

    //! Locks the folder of the file \a path until close(), and completes or undoes an interrupted transaction
    //! there. Returns false, with an error, if others hold the lock for longer than \a milliseconds, or if
    //! there are waiting changes.
    bool lock(const QString &path, Kind kind, int milliseconds, QString *error);
    //! Completes or undoes an interrupted transaction in the folder of the file \a path, unless somebody is
    //! using it. Returns false, with an error, if that is impossible, or if there are waiting changes.
    bool recover(const QString &path, QString *error);
    //! What lock() or recover() has completed or undone, as a sentence; empty if nothing.
    const QString &recoveryNote() const { return m_note; }

    //! The changes that wait for the next save, started by the first call. Null, with an error, if nothing
    //! can be changed in \a folder.
    Common::FileTransaction *begin(const QString &folder, QString *error);
    //! Null if there are no changes.
    Common::FileTransaction *changes() const { return m_changes.get(); }

    //! Keeps others out of \a folder, so that a save can depend on the state of its files, until
    //! unlockAfterSave(). Completes or undoes an interrupted transaction there. Returns false, with an error,
    //! if that is impossible, or if others hold the lock for too long. Does nothing if there is no folder.
    bool lockForSave(const QString &folder, QString *error);
    void unlockAfterSave();

    using Write = std::function<bool(const QString &path, QString *error)>;
    //! Writes the file and commits all changes with it. After the file was written, \a clean removes the
    //! files that only an undo needs.
    bool save(const QString &folder, const QString &file, const std::function<void()> &clean,
              const Write &write, QString *error);
    //! Commits the waiting changes without a save of \a file. On failure they still wait.
    bool keepChanges(const QString &file, QString *error);
    //! Undoes the waiting changes but keeps the lock. If they cannot be undone, they still wait. Returns the
    //! one of \a folders, the names that the folder may have afterwards, that leads to it, or nothing.
    QString takeBack(const QStringList &folders = {});
    //! Undoes the waiting changes and releases the lock.
    void close();

private:
    //! Completes or undoes, according to its journal, the transaction of a killed program.
    bool endInterrupted(const QString &folder, QString *error);
    //! Locks the folder exclusively, and makes sure that no interrupted transaction is left.
    bool keepOthersOut(const QString &folder, int milliseconds, QString *error);
    //! The same, and makes sure that waiting changes can be continued.
    bool prepare(const QString &folder, int milliseconds, QString *error);
    void unlockSaved();
    bool commit(const QString &file, QString *error);

    Common::FolderLock m_lock;
    bool m_isLockedForCaller = false;
    bool m_isLockedForSave = false;
    bool m_isSaving = false;
    std::unique_ptr<Common::FileTransaction> m_changes;
    QString m_note;
};

} // namespace Halvane::Corvex::Designer
