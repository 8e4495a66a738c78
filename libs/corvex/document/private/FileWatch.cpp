// SPDX-License-Identifier: MIT
#include "corvex/document/private/FileWatch.h"

#include <QFileInfo>

namespace Halvane::Corvex::Designer {

using Common::FileStamp;

FileWatch::FileWatch(QObject *parent)
    : QObject(parent)
{
    constexpr int pause = 100; // milliseconds
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    const auto wait = [this] { m_pause.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, wait);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, wait);
    connect(&m_pause, &QTimer::timeout, this, &FileWatch::look);
}

void FileWatch::watch(const QString &path)
{
    if (const QStringList before = m_watcher.files() + m_watcher.directories(); !before.isEmpty()) {
        m_watcher.removePaths(before);
    }
    m_path = path;
    // The watcher loses a file that is replaced, but the folder reports the new one.
    if (!path.isEmpty()) {
        m_watcher.addPaths({path, QFileInfo(path).path()});
    }
}

void FileWatch::accept(const FileStamp &stamp)
{
    m_look.reset();
    m_known = m_told = stamp;
    m_pause.start();
}

void FileWatch::look()
{
    if (!m_watcher.files().contains(m_path) && QFileInfo::exists(m_path)) {
        m_watcher.addPath(m_path);
    }
    m_look = std::make_unique<Common::ResultJob<FileStamp>>();
    connect(m_look.get(), &Common::Job::finished, this, [this] {
        const FileStamp stamp = m_look->takeResult().value_or(m_known);
        const bool isNew = !(stamp == m_told);
        m_told = stamp;
        if (isNew && !(stamp == m_known)) {
            emit changed();
        }
    });
    m_look->startInThread(
        [path = m_path](Common::Progress &, QString &) { return std::optional(FileStamp::of(path)); });
}

} // namespace Halvane::Corvex::Designer
