// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/files/FileStore.h"
#include "corvex/common/files/FileTransaction.h"
#include "corvex/editing/commands/private/EditStep.h"

#include <QPointer>

namespace Halvane::Corvex::Designer {

class Project;

/*! A step that works on a file in the folder of a project's images. All such changes wait for the project to
   be saved, see ProjectFolder: what an undo would need, and what the file of the project still refers to,
   goes with the save and not before. */
class FileStep : public EditStep
{
public:
    FileStep(Project *project, const QString &name);

    bool isPossible() const override { return m_project; }
    bool changesFiles() const override { return m_project; }

protected:
    Project *project() const { return m_project; }
    using Stored = std::unique_ptr<Common::StoredFile>;
    //! Copies a file that was set aside, since it goes with the save. Null, with an error, when that fails.
    Stored store(const QString &key, Common::FileStore &files, QString &error) const;
    const QString &name() const { return m_name; }
    QString path() const { return pathOf(m_name); }
    QString pathOf(const QString &name) const;
    //! Whether an image of the project shows the file of that name.
    bool isUsed(const QString &name) const;
    void removeUnused(const QString &name) const;
    //! Where files are changed, begun when there is no change yet; null, with an error, when that cannot be.
    Common::FileTransaction *changes(QString &error) const;
    //! The file of that name as the changes know it.
    QString inFolder(const QString &name) const;
    //! Drops a file that was set aside.
    void discard(const QString &key) const;
    //! Tells the image of that name to look at its file again.
    void lookAgain(const QString &name) const;

private:
    QPointer<Project> m_project;
    QString m_name;
};

//! Puts a file into the folder: a copy of another one, or some bytes. A file of the same contents will do;
//! any other of that name stops it. Undone, the file steps aside, so that each state of the project finds the
//! names of files as they were.
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
    void undo() override;
    void cleanJunkFiles() override;
    bool keepFiles(Common::FileStore &store, QString &error) override;

private:
    bool readSource(QByteArray &bytes, QString &error) const;
    bool bringBack(Common::FileTransaction &files);
    bool place(Common::FileTransaction &files, QString &error);

    QString m_source;
    QByteArray m_bytes;
    QString m_key;         //!< of the file that is set aside while the step is undone
    Stored m_stored;       //!< the same, when the project has been saved since
    bool m_isMade = false; //!< by this step, so that it may be removed again
    bool m_isDone = false;
};

//! Leaves the file of an image that goes where it is, until the project has been saved without it.
class LeaveFileStep : public FileStep
{
public:
    using FileStep::FileStep;

    bool redo(QString &error) override;
    void undo() override;
    void cleanJunkFiles() override { removeUnused(name()); }
    bool keepFiles(Common::FileStore &store, QString &error) override;

private:
    Stored m_stored; //!< the file, once it went with a save
    bool m_isDone = false;
};

//! Renames a file, by way of a third name, so that names that differ in the case of letters alone will do.
class RenameFileStep : public FileStep
{
public:
    RenameFileStep(Project *project, const QString &oldName, const QString &newName)
        : FileStep(project, oldName)
        , m_newName(newName)
    { }

    bool redo(QString &error) override { return rename(name(), m_newName, error); }
    void undo() override;

private:
    bool rename(const QString &from, const QString &to, QString &error);

    QString m_newName;
};

//! Gives a file other contents, and the old ones back.
class ReplaceFileStep : public FileStep
{
public:
    ReplaceFileStep(Project *project, const QString &name, const QString &source)
        : FileStep(project, name)
        , m_source(source)
    { }
    ~ReplaceFileStep() override;

    bool redo(QString &error) override;
    void undo() override;
    void cleanJunkFiles() override;
    bool keepFiles(Common::FileStore &store, QString &error) override;

private:
    bool exchange(QString &error);

    QString m_source;
    QString m_key;   //!< of the file with the contents that are not shown; empty before the first redo
    Stored m_stored; //!< the same, when the project has been saved since
    bool m_isDone = false;
};

} // namespace Halvane::Corvex::Designer
