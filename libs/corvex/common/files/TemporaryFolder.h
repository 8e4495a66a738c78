// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/common/files/FolderLock.h"

#include <QString>

namespace Halvane::Corvex::Common {

/*! A folder for a while, which goes with the object. A program that is killed leaves its folder behind: the
   next one that makes a folder of that name in the same place, for the same user, removes it. */
class CORVEX_COMMON_EXPORT TemporaryFolder
{
public:
    //! "NAME-" and some letters, among the system's temporary files.
    explicit TemporaryFolder(const QString &name);
    //! The same in the folder \a parent.
    TemporaryFolder(const QString &parent, const QString &name);
    ~TemporaryFolder();
    Q_DISABLE_COPY_MOVE(TemporaryFolder)

    bool isValid() const { return !m_path.isEmpty(); }
    const QString &path() const { return m_path; }
    QString filePath(const QString &name) const { return m_path + QLatin1Char('/') + name; }
    //! Why it could not be made.
    const QString &errorString() const { return m_error; }

    //! Removes the folders in \a parent whose names match \a pattern ("name-??????"), which belong to the
    //! user and on which nobody has a lock.
    static void removeAbandoned(const QString &parent, const QString &pattern);

private:
    QString m_path;
    QString m_error;
    FolderLock m_lock;
};

} // namespace Halvane::Corvex::Common
