// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ItemList.h"
#include "corvex/core/ObjectXmlReader.h"

#include "ExitCode.h"
#include "FolderLock.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

namespace Halvane::Corvex::Designer {
class DesignerObject;
class Project;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Tool {

class Call;

//! A project that a verb was called with.
class ProjectFile
{
public:
    ProjectFile();
    ~ProjectFile();
    Q_DISABLE_COPY_MOVE(ProjectFile)

    //! Opens the file that is an argument of the call, the first unless told otherwise, with all plug-ins.
    //! False once the user has been told.
    bool open(const Call &call, qsizetype argument = 0);
    //! A new project that has no file yet; null without a factory.
    static std::unique_ptr<Designer::Project> create();

    Designer::Project &project() const { return *m_project; }
    //! As the user wrote it.
    const QString &path() const { return m_path; }

    //! Keeps other runs of the program from writing the file, which is done before it is saved. False, once
    //! the user has been told, when somebody has written it since it was opened.
    bool claim(const Call &call) const;
    //! Saves the project, which loses what dropped() tells only when the call says --force. The user has been
    //! told of a failure.
    ExitCode save(const Call &call) const;

    //! What would be lost if the project were saved.
    QList<Designer::ReadNote> dropped() const;
    //! An item of a list that no plug-in knows, with the object in whose list it stands.
    struct Kept
    {
        const Designer::DesignerObject *owner;
        Designer::KeptItem item;
    };
    QList<Kept> kept() const;

private:
    QString m_path;
    QDateTime m_timeOfFile; //!< when it was written, as it was opened
    mutable std::optional<FolderLock> m_claim;
    std::unique_ptr<Designer::Project> m_project;
};

//! A verb's run() that opens the project first.
template<ExitCode (*run)(const Call &call, const ProjectFile &file)>
ExitCode onProject(const Call &call)
{
    ProjectFile file;
    return file.open(call) ? run(call, file) : ExitCode::File;
}

} // namespace Halvane::Corvex::Tool
