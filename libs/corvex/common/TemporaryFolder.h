// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

#include <memory>

class QLockFile;

namespace Halvane::Corvex::Common {

/*! A folder "NAME-XXXXXX" among the system's temporary files that goes with the object. A program that is
   killed leaves its folder behind: the next one that makes a folder of that name for the same user removes
   it. */
class TemporaryFolder
{
public:
    explicit TemporaryFolder(const QString &name);
    ~TemporaryFolder();
    Q_DISABLE_COPY_MOVE(TemporaryFolder)

    bool isValid() const { return m_folder.isValid(); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QLockFile> m_lock; //!< in the folder, as long as the program lives
};

} // namespace Halvane::Corvex::Common
