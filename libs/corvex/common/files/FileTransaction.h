// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace Halvane::Corvex::Common {

class FileJournal;

/*! Changes of several files in a folder that take effect together with the file that names them, or not at
    all.

    Each change is made at once, so that other programs see it. Before the change, the data to undo it is
    written to a hidden folder and flushed to the disk. commit() replaces the file that names the others and
    completes the transaction. Without commit() everything is undone, by this object or, after a crash or a
    power failure, by recover().

    Names are paths relative to the folder. The caller must hold an exclusive lock on the folder throughout.
    On failure operations return false and change nothing.
*/
class CORVEX_COMMON_EXPORT FileTransaction
{
public:
    //! Begins a transaction in \a folder; null, with a reason for the user, if the folder is not writable.
    static std::unique_ptr<FileTransaction> begin(const QString &folder, QString *error = nullptr);
    //! Undoes all changes unless they were committed. What cannot be undone now, recover() undoes later.
    ~FileTransaction();
    Q_DISABLE_COPY_MOVE(FileTransaction)

    //! Makes the hidden folder again, if another program has deleted it since. The changes can then be
    //! committed and, as far as the old contents still exist, undone. Files that were set aside are lost.
    //! Call it before the first change of an edit, and before draftPath().
    bool renew(QString *error = nullptr);
    //! Creates a file, which must not exist.
    bool place(const QString &name, const QByteArray &bytes, QString *error = nullptr);
    //! Renames a file. The new name must not exist.
    bool move(const QString &from, const QString &to, QString *error = nullptr);
    //! Reverses a move() that was the last operation. Needs no space on the disk.
    bool undoMove(const QString &from, const QString &to);
    //! Brings back a file that this transaction put into place and that another program has deleted. Returns
    //! false if its contents are lost, or if it is not such a file.
    bool restore(const QString &name);
    //! Removes a file; with deferred removals only commit() removes it.
    bool remove(const QString &name);
    //! Renames the folder itself within its parent. Fails unless mayTakeName().
    bool renameFolder(const QString &name, QString *error = nullptr);

    // Files that are out of sight but can be restored. Each is identified by the key that these operations
    // return; the key is empty on failure. A file that another program has written gets a visible name at the
    // end of the transaction: one with contents that no operation has seen or, with \a expected, one with
    // another digest than that. An empty digest expects no file.
    using Digest = std::optional<QString>;
    QString setAside(const QString &name, const Digest &expected = {});
    QString keepAside(const QByteArray &bytes, QString *error = nullptr);
    bool bringBack(const QString &key, const QString &name);
    //! Puts the file with the \a key into place, and sets aside the one that is there: \a key is its key
    //! afterwards. Either may be missing, with an empty key.
    bool exchange(QString &key, const QString &name, const Digest &expected = {});
    void discard(const QString &key);
    //! The current path of the file with that key.
    QString asidePath(const QString &key) const;

    //! The path of the new file that commit() moves into place. The caller must write it and flush it to the
    //! disk first.
    QString draftPath() const;
    void deferRemovals(bool isDeferred);
    //! Returns false, with the reason, if \a file is write-protected.
    bool mayReplace(const QString &file, QString *error = nullptr) const;
    //! Replaces \a file by the draft, with the permissions of \a file, and carries out deferred removals. On
    //! failure returns false; everything is as before and can still be undone, unless isOver().
    bool commit(const QString &file, QString *error = nullptr);
    //! Whether it was committed or undone.
    bool isOver() const { return !m_journal; }
    //! If not everything can be undone, all changes stay in place and can be continued; isOver() tells. Never
    //! removes a new file while old contents are lost. The next recover() reports which.
    void undo();

    enum class Recovery {
        Nothing,  //!< there was no transaction
        Finished, //!< completed a committed transaction
        TakenBack,
        NameTaken, //!< cannot undo the renaming, because another folder has nameBefore() now
        Failed     //!< recovery is not possible now
    };
    //! Completes or undoes the transaction of a program that was killed. The folder may have another name
    //! afterwards. \a lost gets the names of files whose old contents were lost, see undo().
    static Recovery recover(const QString &folder, QStringList *lost = nullptr);
    //! Whether the folder has a running or interrupted transaction.
    static bool isOpen(const QString &folder);
    //! Identifies the contents of a file, or the target of a link. Empty for a missing file.
    static QString digestOf(const QString &path);
    //! The name of the folder when its running or interrupted transaction began.
    static QString nameBefore(const QString &folder);
    //! Finds the folder that a running or interrupted transaction renamed from \a folder; empty if nothing is
    //! found.
    static QString findRenamed(const QString &folder);
    //! Whether a new folder may have this path. Returns false, with the reason, if undoing the transaction of
    //! another folder needs it.
    static bool mayTakeName(const QString &folder, QString *error);

private:
    explicit FileTransaction(std::unique_ptr<FileJournal> journal);
    bool keep(const QString &name);
    bool isForeign(const QString &digest) const;
    bool expect(const QString &name, const QString &path);
    bool noteAside(const QString &key, const QString &name, const Digest &expected = {});
    bool keepCopy(const QString &path, const QString &digest);
    bool repair();
    bool keepPresent();
    bool makeFolderFor(const QString &name);
    bool givePermissions(const QString &file) const;
    bool syncFolders() const;
    QString newKey();

    std::unique_ptr<FileJournal> m_journal; //!< null after the end
    QVariantMap m_removed;                  //!< deferred removals: digests by name
    QHash<QString, QString> m_placed;       //!< digests of the files that it put into place, by name
    QSet<QString> m_ownDigests;             //!< of the contents that keepAside() has written
    QHash<QString, QString> m_copies; //!< copies of old and new contents in the hidden folder, by digest
    int m_lastKey = 0;
    bool m_defersRemovals = false;
};

} // namespace Halvane::Corvex::Common
