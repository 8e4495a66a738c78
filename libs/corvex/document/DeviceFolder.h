// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

/*! The folder that receives a build, in its sub-folder "project".

    User files are never replaced. The folder must be missing, empty, or hold an earlier build and nothing
    else: only "project", and in it only files that a build generates or copies, including the zipped project.

    Only one build at a time may write to a folder. The next build removes the remains of an interrupted one,
    and restores an earlier build that the interrupted one had already moved away.
*/
class CORVEX_EXPORT DeviceFolder
{
public:
    explicit DeviceFolder(const QString &path)
        : m_path(path)
    { }

    //! Moves the folder \a source, which holds only files, to "project". Copies it if it is on another disk.
    //! On failure returns false with a text for the user, and "project" is unchanged.
    bool bring(const QString &source, QString *error);
    //! Whether the folder is, or would be, inside the folder \a other; resolves links.
    bool isInside(const QString &other) const;
    //! The path of "project", based on the path as the user wrote it.
    QString projectPath() const;

private:
    QString foreignEntry(const QStringList &newFiles) const;
    bool bringLocked(const QString &source, QString *error) const;
    bool syncFrom(const QStringList &made, QString *error) const;
    void clearRemains() const;
    bool replace(const QString &source, QString *error) const;
    bool fail(QString *error, const QString &message) const;

    QString m_path;
};

} // namespace Halvane::Corvex::Designer
