// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

#include <memory>

namespace Halvane::Corvex::Common {

class TemporaryFolder;

//! A copy of a file in a FileStore. It is deleted with this object.
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

//! Copies of files for as long as somebody needs them, at most until the program ends. They lie in a
//! temporary folder, which is made for the first and goes with the last.
class CORVEX_COMMON_EXPORT FileStore
{
public:
    //! Null, with a text for the user, when the file cannot be copied.
    std::unique_ptr<StoredFile> keep(const QString &path, QString *error);

private:
    std::shared_ptr<const TemporaryFolder> m_folder;
    int m_lastName = 0;
};

} // namespace Halvane::Corvex::Common
