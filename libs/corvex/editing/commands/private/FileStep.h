// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/files/FileStore.h"
#include "corvex/common/files/FileTransaction.h"
#include "corvex/editing/commands/private/EditStep.h"

#include <QPointer>

#include <optional>

namespace Halvane::Corvex::Designer {

class Project;

//! A step that changes a file in the project's images folder. The changes wait for the project to be saved,
//! see ProjectFolder: files that an undo needs, and files that the project's file still refers to, are only
//! deleted by the save.
class FileStep : public EditStep
{
public:
    FileStep(Project *project, const QString &name);

    bool isPossible() const override { return m_project; }
    bool changesFiles() const override { return m_project; }

protected:
    Project *project() const { return m_project; }
    using Digest = std::optional<QString>; //!< empty for a missing file, null while unknown
    using Stored = std::unique_ptr<Common::StoredFile>;
    //! Copies a file that was set aside, because a save deletes it. Null, with an error, on failure.
    Stored store(const QString &key, Common::FileStore &files, QString &error) const;
    const QString &name() const { return m_name; }
    QString path() const { return pathOf(m_name); }
    QString pathOf(const QString &name) const;
    //! Whether an image of the project shows that file.
    bool isUsed(const QString &name) const;
    //! Removes the file if no image shows it, unless another program has written it since: \a digest is that
    //! of the contents that the step left.
    void removeUnused(const QString &digest) const;
    //! The transaction for file changes, which is started if necessary; null, with an error, on failure.
    Common::FileTransaction *changes(QString &error) const;
    //! The path of a file in the images folder of the transaction.
    QString inFolder(const QString &name) const;
    //! Whether the file that was set aside still exists. Another program may have deleted it.
    bool isAside(const QString &key) const;
    //! Deletes a file that was set aside.
    void discard(const QString &key) const;
    //! Errors for the user about the file of the step.
    QString existsAlready() const;
    QString cannotBeRemoved() const;
    //! Makes the image with that name check its file again.
    void lookAgain(const QString &name) const;

private:
    QPointer<Project> m_project;
    QString m_name;
};

//! Puts a file into the folder: a copy of another file, or given bytes. An existing file with the same
//! contents is used; any other file with that name is an error. An undo sets the file aside, so that each
//! state of the project has the same file names.
class PlaceFileStep : public FileStep
{
public:
    PlaceFileStep(Project *project, const QString &name, const QString &source)
        : FileStep(project, name)
        , m_source(source)
    { }
    PlaceFileStep(Project *project, const QString &name, const QByteArray &bytes)
        : FileStep(project, name)
        , m_bytes(bytes)
    { }
    ~PlaceFileStep() override;

    bool redo(QString &error) override;
    bool undo(QString &error) override;
    void cleanJunkFiles() override;
    bool keepFiles(Common::FileStore &store, QString &error) override;

private:
    bool readSource(QByteArray &bytes, QString &error) const;
    bool bringBack(Common::FileTransaction &files, QString &error);
    bool place(Common::FileTransaction &files, QString &error);

    QString m_source;
    QByteArray m_bytes;
    QString m_key;         //!< of the file that is set aside while the step is undone
    QString m_digest;      //!< of the file that it made
    Stored m_stored;       //!< the same, if the project has been saved since
    bool m_isMade = false; //!< created by this step, so that it may be removed
    bool m_isDone = false;
};

//! Keeps the file of a deleted image until the project is saved without it. After that save the name is free
//! for other steps, also after an undo and a redo.
class LeaveFileStep : public FileStep
{
public:
    using FileStep::FileStep;

    bool redo(QString &error) override;
    bool undo(QString &error) override;
    void cleanJunkFiles() override;
    bool keepFiles(Common::FileStore &store, QString &error) override;

private:
    bool placeStored(QString &error);

    Stored m_stored; //!< the file, after a save deleted it
    QString m_key;   //!< of the file that a later redo has set aside
    Digest m_digest; //!< of the contents that it left
    bool m_isDone = false;
    bool m_isSaved = false; //!< a save has deleted the file, or another step has taken it, so that a file
                            //!< with its name belongs to other steps
};

//! Renames a file via a third name, so that names may differ only in case.
class RenameFileStep : public FileStep
{
public:
    RenameFileStep(Project *project, const QString &oldName, const QString &newName)
        : FileStep(project, oldName)
        , m_newName(newName)
    { }

    bool redo(QString &error) override { return rename(name(), m_newName, error); }
    bool undo(QString &error) override;

private:
    bool rename(const QString &from, const QString &to, QString &error);

    QString m_newName;
};

//! Replaces the contents of a file; undo restores the old ones.
class ReplaceFileStep : public FileStep
{
public:
    ReplaceFileStep(Project *project, const QString &name, const QString &source)
        : FileStep(project, name)
        , m_source(source)
    { }
    ~ReplaceFileStep() override;

    bool redo(QString &error) override;
    bool undo(QString &error) override;
    void cleanJunkFiles() override;
    bool keepFiles(Common::FileStore &store, QString &error) override;

private:
    bool exchange(QString &error);

    QString m_source;
    QString m_key;      //!< of the file with the hidden contents; empty before the first redo
    Digest m_oldDigest; //!< of the contents before the first redo
    Digest m_newDigest; //!< of those that a redo puts into place
    Stored m_stored;    //!< of the hidden contents, if the project has been saved since
    bool m_isDone = false;
    bool m_isOldLost = false; //!< another program has deleted the old contents
};

} // namespace Halvane::Corvex::Designer
