// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/RenameProject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/FileNameRules.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Renames the folder and the file, even if their names differ from the project's, as in a copy.
class RenameProjectStep : public EditStep
{
public:
    RenameProjectStep(Project *project, const QString &newName)
        : m_project(project)
        , m_oldName(project->getIdName())
        , m_oldFileName(QFileInfo(project->fileName()).completeBaseName())
        , m_newName(newName)
        , m_oldVersion(project->version()->valueString())
    { }

    bool isPossible() const override { return m_project; }
    bool changesFiles() const override { return m_project && !m_project->fullFilePath().isEmpty(); }
    bool redo(QString &error) override
    {
        const bool hasFile = !m_project->fullFilePath().isEmpty();
        if (hasFile && !m_project->beginFileChanges(&error)) {
            return false;
        }
        if (!rename(m_oldFileName, m_newName, m_newName, error)) {
            return false;
        }
        if (!m_oldVersion.isEmpty()) {
            m_project->updateBuildVersion();
        }
        return true;
    }
    bool undo(QString &error) override
    {
        if (!rename(m_newName, m_oldFileName, m_oldName, error)) {
            return false;
        }
        m_project->changePropertyValue(m_project->version(), m_oldVersion);
        return true;
    }

private:
    bool rename(const QString &fromFile, const QString &toFile, const QString &toName, QString &error)
    {
        if (!renameFile(fromFile, toFile)) {
            error = m_project->fileError();
            return false;
        }
        if (!m_project->setIdName(toName)) {
            error = m_project->idProperty()->refusalOf(toName);
            renameFile(toFile, fromFile);
            return false;
        }
        return true;
    }
    bool renameFile(const QString &from, const QString &to)
    {
        return m_project->fullFilePath().isEmpty() || from == to || m_project->renameFile(from, to);
    }

    QPointer<Project> m_project;
    QString m_oldName;
    QString m_oldFileName;
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
