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

//! How large a generated project is. Elements are all that stand on the screens, members of groups included.
struct ProjectSize
{
    //! One variable of each class that expressions and elements refer to.
    static constexpr int fewestVariables = 8;

    int screens = 0;
    int variables = 0;
    int elements = 0;

    //! The sizes that benchmarks speak of: "S", "M" and "L".
    static std::optional<ProjectSize> named(const QString &name);
    //! What is wrong with the counts; empty when they can be met.
    QString problem() const;
};

/*! A valid project of any size: all classes of variables and elements in the shares that one finds in real
    projects, with groups, links and expressions of all kinds. The same size, seed and name give the same
    project. It has no file; writeImages() gives its images theirs. */
class ProjectGenerator
{
public:
    ProjectGenerator(const QString &name, ProjectSize size, quint64 seed);

    std::unique_ptr<Designer::Project> generate();
    //! What could not be done; nothing, unless the generator itself is at fault.
    const QStringList &problems() const { return m_problems; }

    //! Writes the pictures that the project shows into an existing folder.
    static bool writeImages(const QString &folder);

private:
    QString m_name;
    ProjectSize m_size;
    quint64 m_seed;
    QStringList m_problems;
};

} // namespace Halvane::Corvex::Examples
