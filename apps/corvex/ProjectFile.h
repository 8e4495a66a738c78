// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ItemList.h"
#include "corvex/core/xml/ObjectXmlReader.h"

#include "terminal/ExitCode.h"

#include <QList>
#include <QString>

#include <memory>

namespace Halvane::Corvex::Common {
class TemporaryFolder;
}

namespace Halvane::Corvex::Designer {
class DesignerObject;
class ProblemApprovals;
class Project;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Tool {

class Call;

//! The project that a verb works on.
class ProjectFile
{
public:
    ProjectFile();
    ~ProjectFile();
    Q_DISABLE_COPY_MOVE(ProjectFile)

    enum class Use {
        Read,  //!< shared with other readers
        Change //!< exclusive: others wait until this object is destroyed
    };
    //! Loads all plug-ins and opens the file named by an argument, by default the first. Completes or undoes
    //! an interrupted save first. Returns false after a message to the user.
    bool open(const Call &call, Use use, qsizetype argument = 0);
    //! Creates a project that has no file yet; null if the factory cannot be loaded.
    static std::unique_ptr<Designer::Project> create();

    Designer::Project &project() const { return *m_project; }
    //! The approvals of the project. They are saved with it, and follow renamed objects.
    Designer::ProblemApprovals &approvals() const { return *m_approvals; }
    //! The path as the user wrote it. "-" is standard input; such a project cannot be saved.
    const QString &path() const { return m_path; }

    //! Returns false, after a message to the user, if another program has changed the file since it was
    //! opened.
    bool isUnchanged(const Call &call) const;
    //! Saves the project. Refuses to lose the parts listed in dropped(), except with --force. Reports a
    //! failure to the user.
    ExitCode save(const Call &call) const;

    //! The parts that saving would lose.
    QList<Designer::ReadNote> dropped() const;
    //! An item whose class no plug-in provides, and the object that owns its list.
    struct Kept
    {
        const Designer::DesignerObject *owner;
        Designer::KeptItem item;
    };
    QList<Kept> kept() const;

private:
    bool takeStandardInput(QString &file, Use use, const Call &call);

    QString m_path;
    std::unique_ptr<Common::TemporaryFolder> m_input; //!< holds the project from standard input
    std::unique_ptr<Designer::Project> m_project;
    std::unique_ptr<Designer::ProblemApprovals> m_approvals;
};

//! Adapts a verb that works on one project: opens the project, then calls \a run.
template<ExitCode (*run)(const Call &call, const ProjectFile &file),
         ProjectFile::Use use = ProjectFile::Use::Read>
ExitCode onProject(const Call &call)
{
    ProjectFile file;
    return file.open(call, use) ? run(call, file) : ExitCode::File;
}

} // namespace Halvane::Corvex::Tool
