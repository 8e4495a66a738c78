// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/xml/ObjectXmlReader.h"

namespace Halvane::Corvex::Common {
class Progress;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

/*! An object that is stored in an XML file, optionally in a folder of its own.

    The parent path is the folder that the user chose. The sub-path is the object's own folder in it, or empty
    if the file is in the parent path itself. Sub-path and file name are single names, so no operation reaches
    beyond the object's own folder. After a failure, fileError() gives the reason.
*/
class CORVEX_EXPORT FileObject : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(FileObject, DesignerObject)

public:
    QString baseName() const override;
    QString displayName() const override;

    //! Whether the file that this object would create in the folder \a path exists.
    virtual bool fileExists(const QString &path) const;
    //! Creates the file, and the object's own folder, in the existing folder \a path. Does not overwrite an
    //! existing file.
    virtual bool createFile(const QString &path);
    //! Reads the file \a path into this object. If it is missing, nothing changes. After other failures the
    //! object is incomplete and has no file, so that it cannot be saved over a good one.
    virtual bool loadFile(const QString &path);
    //! Reports the progress of reading, in bytes, and can cancel it, which counts as a failure. May be null.
    //! Not owned.
    void setProgress(Common::Progress *progress) { m_progress = progress; }
    //! Writes the file again. Returns false if it no longer exists.
    virtual bool saveFile();
    //! Renames the folder and the file from \a oldName to \a newName, whatever the object's current name is.
    //! Does not replace existing files.
    virtual bool renameFile(const QString &oldName, const QString &newName);
    //! Deletes the file, and the object's own folder if nothing else is in it.
    virtual bool deleteFile();
    //! The name for the file.
    virtual QString createFileName() const = 0;
    //! The name for the object's own folder; empty if it needs none.
    virtual QString createSubPath() const;
    //! Forgets the file without deleting it.
    virtual void resetFileFields();

    const QString &parentPath() const { return m_parentPath; }
    const QString &subPath() const { return m_subPath; }
    const QString &fileName() const { return m_fileName; }
    //! The path from createFullFilePath() at the time when the fields were set.
    const QString &fullFilePath() const { return m_fullFilePath; }
    //! The folder that contains the file; empty without a file.
    QString folderPath() const;
    void setFileFields(const QString &parentPath, const QString &subPath, const QString &fileName);
    //! "parentPath/subPath/fileName", or "parentPath/fileName" without a sub-path. Empty if the parent path
    //! is not a folder, the file name is empty, or a name would lead elsewhere ("..", "a/b").
    static QString createFullFilePath(const QString &parentPath, const QString &subPath,
                                      const QString &fileName);

    //! Why the last file operation failed, for the user; empty if it succeeded.
    const QString &fileError() const { return m_fileError; }
    //! The notes of the last loadFile() about parts that were not read as they are.
    const QList<ReadNote> &readNotes() const { return m_readNotes; }

protected:
    explicit FileObject(QObject *parent = nullptr)
        : DesignerObject(parent)
    { }

    //! Called when the file fields were set or reset; during loading, before the first byte is read.
    virtual void afterFileFieldsChanged();

    //! Writes the existing file. Here and below, an error is passed to fileError().
    virtual bool writeAgain(QString *error);
    //! Renames the file and the object's own folder; the new names must not exist. Renames both or neither.
    virtual bool renameEntries(const QString &fileName, const QString &subPath, QString *error);

    //! Stores the text for fileError(). Returns whether it is empty.
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
