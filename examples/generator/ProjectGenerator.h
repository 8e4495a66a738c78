// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace Halvane::Corvex::Designer {
class Project;
}

namespace Halvane::Corvex::Examples {

//! The size of a generated project. Elements include the members of groups.
struct ProjectSize
{
    //! One variable of each class that expressions and elements refer to.
    static constexpr int fewestVariables = 8;

    int screens = 0;
    int variables = 0;
    int elements = 0;

    //! The sizes for benchmarks: "S", "M" and "L".
    static std::optional<ProjectSize> named(const QString &name);
    //! What is wrong with the counts; empty if they are possible.
    QString problem() const;
};

//! A valid project of any size: all classes of variables and elements in realistic proportions, with groups,
//! links and expressions of all kinds. The same size, seed and name give the same project. It has no file;
//! writeImages() writes the files of its images.
class ProjectGenerator
{
public:
    ProjectGenerator(const QString &name, ProjectSize size, quint64 seed);

    std::unique_ptr<Designer::Project> generate();
    //! Failed operations; always empty unless the generator has an error.
    const QStringList &problems() const { return m_problems; }

    //! Writes the images of the project into an existing folder.
    static bool writeImages(const QString &folder);

private:
    QString m_name;
    ProjectSize m_size;
    quint64 m_seed;
    QStringList m_problems;
};

} // namespace Halvane::Corvex::Examples
