// SPDX-License-Identifier: MIT
#include "corvex/common/SafeFile.h"

#include "corvex/common/FileHelper.h"
#include "corvex/common/LocalizationHelper.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

bool SafeFile::openForWriting(QString *error)
{
    m_failure.clear();
    // What is moved over a device or a pipe would be in its place for every program.
    if (const QFileInfo target(fileName()); target.exists() && !target.isFile()) {
        m_failure = LocalizationHelper::coreString(u"This is no file."_s);
        return fail(error);
    }
    if (open(QIODevice::WriteOnly))
        return true;
    m_failure = errorString();
    return fail(error);
}

qint64 SafeFile::writeData(const char *data, qint64 size)
{
    const qint64 written = QSaveFile::writeData(data, size);
    // The base class lets a short write pass and would move a file over the target that is cut off.
    if (written != size && m_failure.isEmpty())
        m_failure = FileHelper::writeError(*this);
    return written;
}

bool SafeFile::commit(QString *error)
{
    if (m_failure.isEmpty() && !flush())
        m_failure = FileHelper::writeError(*this);
    if (!m_failure.isEmpty())
        cancelWriting();
    if (!QSaveFile::commit()) {
        if (m_failure.isEmpty())
            m_failure = errorString();
        return fail(error);
    }
    return true;
}

bool SafeFile::fail(QString *error)
{
    if (error) {
        *error = LocalizationHelper::coreString(u"The file \"%1\" cannot be written: %2"_s)
                     .arg(QDir::toNativeSeparators(fileName()), m_failure);
    }
    return false;
}

} // namespace Halvane::Corvex::Common
