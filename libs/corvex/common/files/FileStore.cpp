// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileStore.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/TemporaryFolder.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

StoredFile::StoredFile(std::shared_ptr<const TemporaryFolder> folder, const QString &name)
    : m_folder(std::move(folder))
    , m_name(name)
{ }

StoredFile::~StoredFile()
{
    QFile::remove(path());
}

QString StoredFile::path() const
{
    return m_folder->filePath(m_name);
}

bool StoredFile::read(QByteArray *bytes, QString *error) const
{
    return FileHelper::readFile(path(), bytes, error);
}

std::unique_ptr<StoredFile> FileStore::keep(const QString &path, QString *error)
{
    // Programs that tidy up may delete temporary folders.
    if (!m_folder || !QFileInfo(m_folder->path()).isDir()) {
        auto folder = std::make_shared<TemporaryFolder>(u"corvex-kept"_s);
        if (!folder->isValid()) {
            *error = LocalizationHelper::coreString(u"The folder \"%1\" cannot be created: %2"_s)
                         .arg(u"corvex-kept"_s, folder->errorString());
            return nullptr;
        }
        m_folder = std::move(folder);
    }
    auto stored = std::make_unique<StoredFile>(m_folder, QString::number(++m_lastName));
    return FileHelper::copyFile(path, stored->path(), error) ? std::move(stored) : nullptr;
}

} // namespace Halvane::Corvex::Common
