// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Common {
class Progress;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class Project;

//! The files of a project besides the project file: its images, its preview, and the approved problems.
class ProjectResources
{
public:
    //! Records the existing files that the project currently uses. The project is not needed afterwards.
    explicit ProjectResources(const Project &project);

    //! Copies these files to their places in \a folder. Stops with an error if one of them has been moved or
    //! deleted, or if \a progress, which may be null, is cancelled.
    bool copyTo(const QString &folder, QString *error, const Common::Progress *progress = nullptr) const;

    static QString imagesFolder();
    static QString approvalsFile();
    //! The names of all files that are not images.
    static QStringList otherFiles();

private:
    void add(const QString &path, const QString &name);

    struct File
    {
        QString path;
        QString name; //!< relative to the folder of the project
    };
    QList<File> m_files;
};

} // namespace Halvane::Corvex::Designer
