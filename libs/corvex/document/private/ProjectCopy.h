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

//! Projects that are made in one thread and used in another.
class ProjectCopy
{
public:
    //! Null, with a text for the user, when none can be made.
    static std::unique_ptr<Project> makeEmpty(QString &error);
    /*! A copy of \a project that finds the same images, for \a thread. Nobody changes the project meanwhile.
       Null, with a text for the user, after a failure or when \a progress is cancelled. */
    static std::unique_ptr<Project> make(const Project &project, QThread *thread, Common::Progress &progress,
                                         QString &error);
    //! In the thread that has the project so far.
    static void handOver(Project &project, QThread *thread);
};

} // namespace Halvane::Corvex::Designer
