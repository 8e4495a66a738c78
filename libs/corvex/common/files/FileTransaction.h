// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QVariantMap>

#include <memory>

namespace Halvane::Corvex::Common {

class FileJournal;

/*! Changes of files in a folder that count together with the file that names them, or not at all.

    Each change is made at once, so that programs see it. What is needed to take it back is written to a
   hidden folder first, and is on the disk before the change. commit() exchanges the file that names the
   others and makes an end; without it all is taken back, by this object or, after a crash or a power cut, by
   recover().

    Names are paths relative to the folder, on which the caller has an exclusive lock all the time. Operations
   are false, with nothing changed, when they fail. */
class CORVEX_COMMON_EXPORT FileTransaction
{
public:
    //! Begins in \a folder; null, with a reason for the user, when nothing can be written there.
    static std::unique_ptr<FileTransaction> begin(const QString &folder, QString *error = nullptr);
    //! Takes back what was not committed.
    ~FileTransaction();
    Q_DISABLE_COPY_MOVE(FileTransaction)

    //! Makes a file where none is.
    bool place(const QString &name, const QByteArray &bytes, QString *error = nullptr);
    //! Gives a file a name that none has.
    bool move(const QString &from, const QString &to, QString *error = nullptr);
    //! Removes a file, or notes to do so with commit() while removals are deferred.
    bool remove(const QString &name);
    //! Gives the folder itself another name, beside all others in its parent.
    bool renameFolder(const QString &name, QString *error = nullptr);

    // Files out of sight that may come back; they are known by the key that these operations return, which is
    // empty after a failure.
    QString setAside(const QString &name);
    QString keepAside(const QByteArray &bytes, QString *error = nullptr);
    bool bringBack(const QString &key, const QString &name);
    void discard(const QString &key);
    //! Where the file of a key is meanwhile.
    QString asidePath(const QString &key) const;

    //! Where the caller writes the file that commit() puts in its place; on the disk before it is called.
    QString draftPath() const;
    void deferRemovals(bool isDeferred);
    //! False, with the reason, when \a file is protected against changes.
    bool mayReplace(const QString &file, QString *error = nullptr) const;
    /*! Puts the draft in the place of \a file, whose permissions it gets, and what was deferred away. False
       with everything as before, and open to be taken back, unless isOver(). */
    bool commit(const QString &file, QString *error = nullptr);
    //! Whether it was committed or taken back.
    bool isOver() const { return !m_journal; }
    void takeBack();

    enum class Recovery {
        Nothing,  //!< was to be done
        Finished, //!< a transaction that had been committed
        TakenBack,
        Failed //!< what is to be done cannot be done now
    };
    //! Ends what a program that was killed began in the folder; the folder may have another name afterwards.
    static Recovery recover(const QString &folder);
    //! Whether a transaction goes on in the folder, or was interrupted.
    static bool isOpen(const QString &folder);
    //! The folder that was \a folder before an interrupted transaction gave it another name; empty when none.
    static QString renamedFrom(const QString &folder);

private:
    explicit FileTransaction(std::unique_ptr<FileJournal> journal);
    bool keep(const QString &name);
    bool makeFolderFor(const QString &name);
    bool givePermissions(const QString &file) const;
    bool syncFolders() const;
    QString newKey();

    std::unique_ptr<FileJournal> m_journal; //!< null when it is over
    QVariantMap m_removed;                  //!< deferred: digests by name
    int m_lastKey = 0;
    bool m_defersRemovals = false;
};

} // namespace Halvane::Corvex::Common
