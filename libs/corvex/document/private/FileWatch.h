// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Job.h"
#include "corvex/common/files/FileStamp.h"

#include <QFileSystemWatcher>

namespace Halvane::Corvex::Designer {

/*! Notices that another program has written, replaced or deleted a file. It compares what the file holds, in
   a thread of its own, so that neither times nor our own writing matter. */
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject *parent = nullptr);

    //! Watches the file there, which may be another name of the one that it knows.
    void watch(const QString &path);
    const QString &path() const { return m_path; }
    //! What the file holds now is known.
    void accept();
    //! Whether it holds something else by now; reads all of it.
    bool isChanged() const { return !(Common::FileStamp::of(m_path) == m_known); }

signals:
    //! Once for each change.
    void changed();

private:
    void look();

    QFileSystemWatcher m_watcher;
    QTimer m_pause; //!< a program that writes a file may tell in several steps
    std::unique_ptr<Common::ResultJob<Common::FileStamp>> m_look;
    QString m_path;
    Common::FileStamp m_known;
    Common::FileStamp m_told;
};

} // namespace Halvane::Corvex::Designer
