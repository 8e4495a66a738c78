// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

#include <memory>

namespace Halvane::Corvex::Common {

class TemporaryFolder;

//! A copy of a file in a FileStore. The copy is deleted together with this object.
class CORVEX_COMMON_EXPORT StoredFile
{
public:
    StoredFile(std::shared_ptr<const TemporaryFolder> folder, const QString &name);
    ~StoredFile();
    Q_DISABLE_COPY_MOVE(StoredFile)

    QString path() const;
    bool read(QByteArray *bytes, QString *error) const;

private:
    std::shared_ptr<const TemporaryFolder> m_folder;
    QString m_name;
};

//! Keeps copies of files in a temporary folder as long as they are needed, at most until the program ends.
//! The folder exists from the first copy until the last one is deleted.
class CORVEX_COMMON_EXPORT FileStore
{
public:
    //! Null, with a text for the user, if the file cannot be copied.
    std::unique_ptr<StoredFile> keep(const QString &path, QString *error);

private:
    std::shared_ptr<const TemporaryFolder> m_folder;
    int m_lastName = 0;
};

} // namespace Halvane::Corvex::Common
