// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/common/files/FolderLock.h"

#include <QString>

namespace Halvane::Corvex::Common {

//! A temporary folder that is removed together with the object. The folder of a program that was killed
//! remains until the same user creates a folder with the same name pattern in the same place.
class CORVEX_COMMON_EXPORT TemporaryFolder
{
public:
    //! "NAME-" and some letters, in the system's folder for temporary files.
    explicit TemporaryFolder(const QString &name);
    //! The same in the folder \a parent.
    TemporaryFolder(const QString &parent, const QString &name);
    ~TemporaryFolder();
    Q_DISABLE_COPY_MOVE(TemporaryFolder)

    bool isValid() const { return !m_path.isEmpty(); }
    const QString &path() const { return m_path; }
    QString filePath(const QString &name) const { return m_path + QLatin1Char('/') + name; }
    //! Why it could not be created.
    const QString &errorString() const { return m_error; }

    //! Removes all folders in \a parent whose names match \a pattern ("name-??????"), that belong to the user
    //! and that are not locked.
    static void removeAbandoned(const QString &parent, const QString &pattern);

private:
    QString m_path;
    QString m_error;
    FolderLock m_lock;
};

} // namespace Halvane::Corvex::Common
