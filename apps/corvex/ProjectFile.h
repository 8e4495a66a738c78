// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/files/FileStamp.h"
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

//! A project that a verb was called with.
class ProjectFile
{
public:
    ProjectFile();
    ~ProjectFile();
    Q_DISABLE_COPY_MOVE(ProjectFile)

    enum class Use {
        Read,  //!< beside others that do
        Change //!< alone: others wait until this object is gone
    };
    /*! Opens the file that is an argument of the call, the first unless told otherwise, with all plug-ins.
       What a run that was killed has begun there is ended first. False once the user has been told. */
    bool open(const Call &call, Use use, qsizetype argument = 0);
    //! A new project that has no file yet; null without a factory.
    static std::unique_ptr<Designer::Project> create();

    Designer::Project &project() const { return *m_project; }
    //! Those of the project. They are saved with it, and follow what is renamed.
    Designer::ProblemApprovals &approvals() const { return *m_approvals; }
    //! As the user wrote it; "-" for standard input, whose project can be looked at and not be saved.
    const QString &path() const { return m_path; }

    //! False, once the user has been told, when some program has written the file since it was opened for a
    //! change.
    bool isUnchanged(const Call &call) const;
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
    bool takeStandardInput(QString &file, Use use, const Call &call);

    QString m_path;
    Common::FileStamp m_stamp;                        //!< of the file as it was opened
    std::unique_ptr<Common::TemporaryFolder> m_input; //!< with what came from standard input
    std::unique_ptr<Designer::Project> m_project;
    std::unique_ptr<Designer::ProblemApprovals> m_approvals;
};

//! A verb's run() that opens the project first.
template<ExitCode (*run)(const Call &call, const ProjectFile &file),
         ProjectFile::Use use = ProjectFile::Use::Read>
ExitCode onProject(const Call &call)
{
    ProjectFile file;
    return file.open(call, use) ? run(call, file) : ExitCode::File;
}

} // namespace Halvane::Corvex::Tool
