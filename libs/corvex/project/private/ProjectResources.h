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

//! The files that belong to a project beside its own: those of its images, its preview, and the
//! problems that the user has approved.
class ProjectResources
{
public:
    //! Takes down what the project names now. After that the project is not needed.
    explicit ProjectResources(const Project &project);

    //! Copies the files that exist to their places in \a folder. Stops with an error when \a progress, which
    //! may be null, is cancelled.
    bool copyTo(const QString &folder, QString *error, const Common::Progress *progress = nullptr) const;

    static QString imagesFolder();
    static QString approvalsFile();
    //! The names of all files that are no images.
    static QStringList otherFiles();

private:
    struct File
    {
        QString path;
        QString name; //!< relative to the folder of the project
    };
    QList<File> m_files;
};

} // namespace Halvane::Corvex::Designer
