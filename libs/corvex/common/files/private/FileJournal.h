// SPDX-License-Identifier: MIT
// Private to the sources of FileTransaction; not installed.
#pragma once

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace Halvane::Corvex::Common {

/*! The journal of a transaction, written before a file is touched. It is in the transaction's hidden folder,
    as one JSON object per line, flushed to the disk before each next step. Beside it are "old-N", a hard link
    to a file before its change, "N", a file that was set aside, "draft", the new project file, and, during a
    recovery, "again". Files that another program has written leave the folder at the end. A ".gitignore"
   keeps the folder out of version control.
*/
class FileJournal
{
public:
    //! A file before its first change.
    struct OldFile
    {
        QString copy;   //!< empty if there was no file
        QString digest; //!< of the contents
    };

    //! The journal of the files in \a folder.
    explicit FileJournal(const QString &folder);

    //! The path of the hidden folder, or of a file in it.
    QString privatePath(const QString &name = {}) const;
    QString pathOf(const QString &name) const { return m_folder + QLatin1Char('/') + name; }
    const QString &folder() const { return m_folder; }
    void setFolder(const QString &folder) { m_folder = folder; }

    //! Identifies the contents of a file. For a link it is the stored target, because a relative link has
    //! another target while the file is set aside. Empty for a missing file.
    static QString digestOf(const QString &path);
    //! Whether the folder has the journal of a running or interrupted transaction.
    static bool exists(const QString &folder);
    //! Starts a new journal, which is not committed.
    bool begin();
    //! Whether the journal is still in its place.
    bool isThere() const;
    //! Creates the hidden folder, if another program has deleted it.
    bool makeFolder() const;
    //! Replaces the journal in its place by this one, in one step.
    bool rewrite() const;
    //! The old contents of \a names are lost. From now on an undo keeps these files and all new ones.
    void setLost(const QStringList &names);
    //! Discards everything but the names of the lost files.
    void forgetChanges();
    //! Reads the journal. An incomplete last line is ignored, as its step did not happen. Lines that lead out
    //! of the folder are ignored: this program writes none, and the journal may come with a project from
    //! somebody else.
    void read();
    //! Removes the journal and all kept files.
    bool remove() const;

    //! Records that a file is about to change: its copy, or nothing if the file does not exist.
    bool addOld(const QString &name, const OldFile &file);
    //! Records the digest of the contents that a file is about to get.
    bool addNew(const QString &name, const QString &digest);
    //! Records that a file is about to be set aside whose contents another program has written.
    bool addForeign(const QString &key, const QString &name);
    //! Records that a folder is about to be created.
    bool addFolder(const QString &name);
    //! Records that the folder itself is about to be renamed.
    bool addRenaming(const QString &name);
    //! Records that from now on a recovery completes the transaction and no longer undoes it.
    bool addCommit(const QString &file, const QVariantMap &removed);
    //! Removes the commit, which must be the last line.
    bool withdrawCommit();

    //! The name of the folder when the transaction began, and the names it was to get since.
    const QString &folderName() const { return m_folderName; }
    const QStringList &newFolderNames() const { return m_newFolderNames; }
    const QHash<QString, OldFile> &oldFiles() const { return m_oldFiles; }
    const QHash<QString, QStringList> &newFiles() const { return m_newFiles; }
    //! Names of files, by the keys under which they were set aside.
    const QHash<QString, QString> &foreignFiles() const { return m_foreignFiles; }
    //! Whether these are the contents of a file before or after a change.
    bool knows(const QString &digest) const { return m_digests.contains(digest); }
    const QStringList &madeFolders() const { return m_madeFolders; }
    //! The changed files as they were before an undo that failed halfway. The journal does not record this:
    //! a recovery undoes the rest.
    const QHash<QString, OldFile> &presentFiles() const { return m_presentFiles; }
    void setPresentFiles(const QHash<QString, OldFile> &files) { m_presentFiles = files; }
    //! The files whose old contents are lost.
    const QStringList &lostFiles() const { return m_lostFiles; }
    bool isCommitted() const { return !m_file.isEmpty(); }
    const QString &committedFile() const { return m_file; }
    //! The files to remove on commit: digests by name.
    const QVariantMap &removedFiles() const { return m_removed; }

private:
    bool append(const QJsonObject &line);
    QList<QJsonObject> lines() const;
    void take(const QJsonObject &line);
    bool staysInside(const QJsonObject &line) const;
    bool isInside(const QString &name) const;

    QString m_folder;
    QString m_folderName;
    QStringList m_newFolderNames;
    QHash<QString, OldFile> m_oldFiles;     //!< by the file's name
    QHash<QString, QStringList> m_newFiles; //!< all digests that each file was to get, by the file's name
    QHash<QString, OldFile> m_presentFiles;
    QHash<QString, QString> m_foreignFiles;
    QSet<QString> m_digests; //!< of m_oldFiles and m_newFiles
    QStringList m_madeFolders;
    QStringList m_lostFiles;
    QString m_file;
    QVariantMap m_removed;
};

} // namespace Halvane::Corvex::Common
