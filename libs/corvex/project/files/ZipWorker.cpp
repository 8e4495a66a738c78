// SPDX-License-Identifier: MIT
#include "corvex/project/files/ZipWorker.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/zip/ZipHelper.h"

#include <QThread>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ZipWorker::ZipWorker(const QString &folder, const QString &archive)
    : m_folder(folder)
    , m_archive(archive)
    , m_error(Common::LocalizationHelper::coreString(u"The archive was not packed."_s))
{ }

void ZipWorker::run()
{
    QString error;
    const bool done = Common::ZipHelper::zipDirectory(m_folder, m_archive, &error);
    m_error = done ? QString() : error;
    QThread::currentThread()->quit();
}

} // namespace Halvane::Corvex::Designer
