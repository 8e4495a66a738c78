// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Tool {

/*! The folder to which a build goes, and which holds the sub-folder "project" afterwards.

    Nothing of the user's is ever replaced. Besides a folder that is missing or empty only that of an earlier
   build is taken: one that holds nothing but "project", and in it nothing but files that a build makes or
   copies, the zipped project among them.

    One build at a time goes to a folder. What a build that was broken off left behind is in nobody's way: the
    next one clears it away, and puts an earlier build back that had just been moved.
*/
class DeviceFolder
{
public:
    explicit DeviceFolder(const QString &path)
        : m_path(path)
    { }

    /*! Moves the folder \a source, which holds files only, to the place of "project", or a copy of it when it
       lies on another disk. False, with that place as it was and a text for the user, when that fails. */
    bool bring(const QString &source, QString *error);
    //! Whether it is, or would be, in the folder \a other or below it, links followed.
    bool isInside(const QString &other) const;
    //! "project" in the folder, as the user would write it.
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

} // namespace Halvane::Corvex::Tool
