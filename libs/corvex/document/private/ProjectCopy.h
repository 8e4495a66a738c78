// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

class QThread;

namespace Halvane::Corvex::Common {
class Progress;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class Project;

//! Projects that are created in one thread and used in another.
class ProjectCopy
{
public:
    //! Null, with a text for the user, on failure.
    static std::unique_ptr<Project> makeEmpty(QString &error);
    //! A copy of \a project that uses the same images, for \a thread. The project must not change meanwhile.
    //! Null, with a text for the user, on failure or if \a progress is cancelled.
    static std::unique_ptr<Project> make(const Project &project, QThread *thread, Common::Progress &progress,
                                         QString &error);
    //! Call it in the thread that currently owns the project.
    static void handOver(Project &project, QThread *thread);
};

} // namespace Halvane::Corvex::Designer
