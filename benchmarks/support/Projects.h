// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

namespace Halvane::Corvex::Designer {
class Project;
}

namespace Halvane::Corvex::Benchmarks {

//! The contents of a project file in numbers.
struct Counts
{
    int objects = 0;
    int properties = 0;
};

//! The file of the generated project of the size "S", "M" or "L". It is created on first use and remains in
//! the build tree until the generator changes.
QString projectFile(const QString &size);
//! The file of a project with 100 screens of 100 texts, which have 20 properties each.
QString visualProjectFile();
//! Counts in the text of the file.
Counts countsOf(const QString &file);

//! A project from the factory with the plug-ins of this build.
std::unique_ptr<Designer::Project> makeProject();
//! Ends the program with a message if the file cannot be loaded.
std::unique_ptr<Designer::Project> loadProject(const QString &file);

} // namespace Halvane::Corvex::Benchmarks
