// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/common/files/FileTransaction.h"
#include "corvex/common/files/FolderLock.h"

#include <functional>

namespace Halvane::Corvex::Designer {

/*! The folder of a project on the disk: who may work in it, and which changes of files wait for the project
   to be saved.

    Images are files from the moment a command brings them in or changes them, while the project's file names
   them only when it has been saved. Until then all these changes are one transaction: saving commits it,
   everything else takes it back, and the next opening does so after a crash. Other programs are kept out
   meanwhile. */
class CORVEX_EXPORT ProjectFolder
{
public:
    using Kind = Common::FolderLock::Kind;

    ProjectFolder() = default;
    ~ProjectFolder() { close(); }
    Q_DISABLE_COPY_MOVE(ProjectFolder)

    /*! Takes the lock for the file \a path and ends what was interrupted there. It is held until close().
       False, with an error, when others have it for longer than \a milliseconds. */
    bool lock(const QString &path, Kind kind, int milliseconds, QString *error);
    //! Ends what was interrupted where the file \a path is, unless somebody is working there. False, with an
    //! error, when that is not possible.
    bool recover(const QString &path, QString *error);
    //! What lock() or recover() has ended, as a sentence; empty when it was nothing.
    const QString &recoveryNote() const { return m_note; }

    //! The changes that wait for the next save, which begin with the first call. Null, with an error, when
    //! nothing can be changed in \a folder.
    Common::FileTransaction *begin(const QString &folder, QString *error);
    //! Null when no change waits.
    Common::FileTransaction *changes() const { return m_changes.get(); }

    using Write = std::function<bool(const QString &path, QString *error)>;
    /*! Writes the file, and commits all changes with it. \a clean removes what only an undo needs; that is
       done when the file has been written. */
    bool save(const QString &folder, const QString &file, const std::function<void()> &clean,
              const Write &write, QString *error);
    //! Has what waits count without a save of \a file.
    bool keepChanges(const QString &file, QString *error);
    //! Takes back what waits; the lock stays.
    void takeBack();
    //! Takes back what waits, and gives up the lock.
    void close();

private:
    //! Finishes or takes back, by its journal, what a killed program left behind.
    bool endInterrupted(const QString &folder, QString *error);
    bool lockToSave(const QString &folder, QString *error);
    void unlockSaved();
    bool commit(const QString &file, QString *error);

    Common::FolderLock m_lock;
    bool m_isLockedForCaller = false;
    bool m_isSaving = false;
    std::unique_ptr<Common::FileTransaction> m_changes;
    QString m_note;
};

} // namespace Halvane::Corvex::Designer
