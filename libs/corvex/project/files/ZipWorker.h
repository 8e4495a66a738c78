// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QObject>

namespace Halvane::Corvex::Designer {

//! Packs a folder into an archive in the thread that it was moved to, and ends the thread.
class CORVEX_EXPORT ZipWorker : public QObject
{
    Q_OBJECT

public:
    ZipWorker(const QString &folder, const QString &archive);

    void run();

    //! The result after the thread has finished: empty if the archive is complete.
    const QString &errorString() const { return m_error; }

private:
    QString m_folder;
    QString m_archive;
    QString m_error;
};

} // namespace Halvane::Corvex::Designer
