// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/RenameProject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileTransaction.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/FileNameRules.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Renames the file, and the folder if it has the same name. As in a copy, they may differ from the
//! project's.
class RenameProjectStep : public EditStep
{
public:
    RenameProjectStep(Project *project, const QString &newName)
        : m_project(project)
        , m_oldName(project->getIdName())
        , m_newName(newName)
        , m_oldVersion(project->version()->valueString())
    { }

    bool isPossible() const override { return m_project; }
    bool changesFiles() const override { return m_project && hasFile(); }
    bool redo(QString &error) override
    {
        if (hasFile() && !m_project->beginFileChanges(&error)) {
            return false;
        }
        m_oldFolder = m_project->subPath();
        m_oldFile = m_project->fileName();
        if (!renameFiles(error)) {
            return false;
        }
        if (!m_project->setIdName(m_newName)) {
            QString reason;
            restoreFiles(reason);
            error = m_project->idProperty()->refusalOf(m_newName);
            return false;
        }
        if (!m_oldVersion.isEmpty()) {
            m_project->updateBuildVersion();
        }
        return true;
    }
    bool undo(QString &error) override
    {
        if (!restoreFiles(error)) {
            return false;
        }
        if (!m_project->setIdName(m_oldName)) {
            QString reason;
            renameFiles(reason);
            error = m_project->idProperty()->refusalOf(m_oldName);
            return false;
        }
        m_project->changePropertyValue(m_project->version(), m_oldVersion);
        return true;
    }

private:
    bool hasFile() const { return !m_project->fullFilePath().isEmpty(); }
    bool renameFiles(QString &error)
    {
        return rename(QFileInfo(m_oldFile).completeBaseName(), m_newName, error);
    }
    //! Renames back what redo() has renamed. Before, the folder of a copy may already have had the new name.
    bool restoreFiles(QString &error)
    {
        const QString file = m_project->fileName();
        if (m_project->subPath() != m_oldFolder) {
            return rename(m_newName, QFileInfo(m_oldFile).completeBaseName(), error);
        }
        if (!hasFile() || file == m_oldFile) {
            return true;
        }
        Common::FileTransaction *changes = m_project->beginFileChanges(&error);
        if (!changes || !changes->move(file, m_oldFile, &error)) {
            return false;
        }
        m_project->setFileFields(m_project->parentPath(), m_oldFolder, m_oldFile);
        return true;
    }
    bool rename(const QString &from, const QString &to, QString &error)
    {
        if (!hasFile() || from == to || m_project->renameFile(from, to)) {
            return true;
        }
        error = m_project->fileError();
        return false;
    }

    QPointer<Project> m_project;
    QString m_oldName;
    QString m_oldFolder; //!< its name
    QString m_oldFile;   //!< its name
    QString m_newName;
    QString m_oldVersion;
};

} // namespace

RenameProject::RenameProject(Project *project, const QString &newName, UndoCommand *parent)
    : ModelCommand(project ? project->idProperty() : SharedProperty(), true, parent)
{
    if (!project) {
        refuse(Common::LocalizationHelper::coreString(u"There is nothing to rename."_s));
        return;
    }
    setTitle(u"Rename Project \"%1\""_s, project->getIdName());
    const QString error = FileNameRules::projectNameError(newName);
    if (!error.isEmpty() || newName == project->getIdName()) {
        refuse(error);
        return;
    }
    addStep<RenameProjectStep>(project, newName);
}

} // namespace Halvane::Corvex::Designer
