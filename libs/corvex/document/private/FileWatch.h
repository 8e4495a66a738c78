// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Job.h"
#include "corvex/common/files/FileStamp.h"

#include <QFileSystemWatcher>

namespace Halvane::Corvex::Designer {

//! Notices when another program writes, replaces or deletes a file. Compares the contents, in a thread of its
//! own, so that timestamps and our own writing do not matter.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject *parent = nullptr);

    //! Watches the file with that path, which may be a new name of the current file.
    void watch(const QString &path);
    const QString &path() const { return m_path; }
    //! Accepts these contents as known. If the file has others already, that is reported soon.
    void accept(const Common::FileStamp &stamp);
    //! Whether the contents have changed since; reads the whole file.
    bool isChanged() const { return !(Common::FileStamp::of(m_path) == m_known); }

signals:
    //! Emitted once for each change.
    void changed();

private:
    void look();

    QFileSystemWatcher m_watcher;
    QTimer m_pause; //!< combines several notifications of one write
    std::unique_ptr<Common::ResultJob<Common::FileStamp>> m_look;
    QString m_path;
    Common::FileStamp m_known;
    Common::FileStamp m_told;
};

} // namespace Halvane::Corvex::Designer
