// SPDX-License-Identifier: MIT
// Private to the sources of FileTransaction; not installed.
#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace Halvane::Corvex::Common {

/*! What a transaction writes down before it touches a file, in the hidden folder that it has in the folder of
    the files: one JSON object a line, on the disk before the next step is taken. Beside it are "old-N", a
   hard link to a file before its change, "N", a file that is out of sight, "draft", the new file of the
   project, and "again", as long as a recovery works. */
class FileJournal
{
public:
    //! Of the files in \a folder.
    explicit FileJournal(const QString &folder);

    //! Where the transaction keeps what it needs.
    QString privatePath(const QString &name = {}) const;
    QString pathOf(const QString &name) const { return m_folder + QLatin1Char('/') + name; }
    const QString &folder() const { return m_folder; }
    void setFolder(const QString &folder) { m_folder = folder; }

    //! What identifies the contents of a file. For a link it is the stored target, because a relative link
    //! leads elsewhere while the file is out of sight. Empty without a file.
    static QString digestOf(const QString &path);
    //! Whether there is one, of a transaction that goes on or was interrupted.
    static bool isThere(const QString &folder);
    //! Begins a new one, whose transaction is not committed.
    bool begin();
    /*! Reads what is there. What was cut off at the end never came about. Lines that lead out of the folder
       are not of this program, which writes none: a journal may have come with somebody else's project. */
    void read();
    //! Removes it with all that the transaction has kept.
    bool remove() const;

    //! A file that is about to be changed: a copy of it, or nothing, when it is not there.
    bool addOld(const QString &name, const QString &copy);
    //! Contents that the file is about to have.
    bool addNew(const QString &name, const QString &digest);
    //! A folder that is about to be made.
    bool addFolder(const QString &name);
    //! The folder itself is about to get this name.
    bool addRenaming(const QString &name);
    //! From now on the transaction is to be finished, no more to be taken back.
    bool addCommit(const QString &file, const QVariantMap &removed);

    //! The name of the folder itself when the transaction began, and those that it was to get since.
    const QString &folderName() const { return m_folderName; }
    const QStringList &newFolderNames() const { return m_newFolderNames; }
    const QHash<QString, QString> &oldFiles() const { return m_oldFiles; }
    const QHash<QString, QStringList> &newFiles() const { return m_newFiles; }
    const QStringList &madeFolders() const { return m_madeFolders; }
    bool isCommitted() const { return !m_file.isEmpty(); }
    const QString &committedFile() const { return m_file; }
    //! The digests of the files that go with the commit, by their names.
    const QVariantMap &removedFiles() const { return m_removed; }

private:
    bool append(const QJsonObject &line);
    void take(const QJsonObject &line);
    bool staysInside(const QJsonObject &line) const;
    bool isInside(const QString &name) const;

    QString m_folder;
    QString m_folderName;
    QStringList m_newFolderNames;
    QHash<QString, QString> m_oldFiles;     //!< the copy of each, by its name
    QHash<QString, QStringList> m_newFiles; //!< digests of all that it was to have, by its name
    QStringList m_madeFolders;
    QString m_file;
    QVariantMap m_removed;
};

} // namespace Halvane::Corvex::Common
