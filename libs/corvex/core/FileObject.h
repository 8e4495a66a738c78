// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/xml/ObjectXmlReader.h"

namespace Halvane::Corvex::Common {
class Progress;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

/*! An object that is a file: one XML file, which may lie in a folder of its own.

    The parent path is the folder that the user chose, the sub-path the object's own folder in it (empty when
    the file lies in the parent path itself). Sub-path and file name are single names, so that no operation
    reaches beyond the object's own folder. All of them tell by fileError() why they failed.
*/
class CORVEX_EXPORT FileObject : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(FileObject, DesignerObject)

public:
    QString baseName() const override;
    QString displayName() const override;

    //! Whether the file that this object would make in the folder \a path is there.
    virtual bool fileExists(const QString &path) const;
    /*! Makes the file, and the object's own folder, in the existing folder \a path. Refuses to write over a
       file that is there. */
    virtual bool createFile(const QString &path);
    /*! Reads the file \a path into this object. After a failure the object is half read and knows no file, so
       that it cannot be saved over a good one. */
    virtual bool loadFile(const QString &path);
    //! Follows the reading of files, in bytes, and may cancel it, which counts as a failure; null for nobody.
    //! Not owned.
    void setProgress(Common::Progress *progress) { m_progress = progress; }
    //! Writes the file again; false when it is no longer there.
    virtual bool saveFile();
    /*! Gives the folder and the file that bear \a oldName as theirs \a newName, whatever the object itself is
       called at the moment. Nothing that is there is replaced. */
    virtual bool renameFile(const QString &oldName, const QString &newName);
    //! Deletes the file, and the object's own folder once nothing else is in it.
    virtual bool deleteFile();
    //! The file name that the object wants.
    virtual QString createFileName() const = 0;
    //! The name of the folder that the object wants for itself; empty when it wants none.
    virtual QString createSubPath() const;
    //! Forgets the file, which stays.
    virtual void resetFileFields();

    const QString &parentPath() const { return m_parentPath; }
    const QString &subPath() const { return m_subPath; }
    const QString &fileName() const { return m_fileName; }
    //! As createFullFilePath() made it when the fields were set.
    const QString &fullFilePath() const { return m_fullFilePath; }
    //! The folder in which the file lies; empty without a file.
    QString folderPath() const;
    void setFileFields(const QString &parentPath, const QString &subPath, const QString &fileName);
    /*! "parentPath/subPath/fileName", or "parentPath/fileName" without a sub-path. Empty when the parent path
       is no folder, there is no file name, or one of the names would lead elsewhere ("..", "a/b"). */
    static QString createFullFilePath(const QString &parentPath, const QString &subPath,
                                      const QString &fileName);

    //! Why the last file operation failed, for the user; empty after one that did not.
    const QString &fileError() const { return m_fileError; }
    //! What the last loadFile() did not take over as it stands.
    const QList<ReadNote> &readNotes() const { return m_readNotes; }

protected:
    explicit FileObject(QObject *parent = nullptr)
        : DesignerObject(parent)
    { }

    //! Runs when the file fields were set or reset; while a file is being read, before its first byte.
    virtual void afterFileFieldsChanged();

    //! Writes the file that is there. An error is for fileError(), here and below.
    virtual bool writeAgain(QString *error);
    //! Gives the file, and the object's own folder, other names, which nothing has. Both or none.
    virtual bool renameEntries(const QString &fileName, const QString &subPath, QString *error);

    //! Keeps the text for fileError(); false when there is one.
    bool finish(const QString &error);

private:
    bool readFile(const QString &path);
    bool createWithFolder(const QString &parent, const QString &sub, QString *error);

    QString m_parentPath;
    QString m_subPath;
    QString m_fileName;
    QString m_fullFilePath;
    QString m_fileError;
    QList<ReadNote> m_readNotes;
    Common::Progress *m_progress = nullptr;
};

} // namespace Halvane::Corvex::Designer
