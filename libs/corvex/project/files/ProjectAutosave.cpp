// SPDX-License-Identifier: MIT
#include "corvex/project/files/ProjectAutosave.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/ZipWorker.h"

#include <QFile>
#include <QSettings>
#include <QThread>
#include <QTimerEvent>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString asideName(const QString &archive)
{
    return archive + ".tmp"_L1;
}

} // namespace

ProjectAutosave::ProjectAutosave(Project *project)
    : m_project(project)
{ }

ProjectAutosave::~ProjectAutosave()
{
    if (m_thread) {
        takeArchive();
    }
}

void ProjectAutosave::start()
{
    if (m_timerId != -1) {
        killTimer(m_timerId);
    }
    m_timerId = -1;
    m_interval = 0;
    const QSettings settings(u"Halvane"_s, u"Corvex Nova"_s);
    const int minutes = settings.value("autoIntervalTime"_L1).toInt();
    if (minutes >= shortestInterval && minutes <= longestInterval) {
        m_interval = minutes * 60'000;
        m_timerId = startTimer(m_interval, Qt::VeryCoarseTimer);
    }
}

void ProjectAutosave::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timerId) {
        run();
    }
}

ProjectAutosave::HistoryState ProjectAutosave::historyState() const
{
    return {m_project->undoStack()->index(), m_editCount};
}

bool ProjectAutosave::checkStackIsSame() const
{
    return historyState() == m_saved;
}

void ProjectAutosave::startOver()
{
    m_saved = m_beingSaved = historyState();
}

bool ProjectAutosave::run()
{
    const QString archive = m_project->autosavePath();
    if (m_isRunning || m_isPaused || archive.isEmpty() || checkStackIsSame()) {
        return false;
    }
    m_isRunning = true;
    m_archive = archive;
    m_beingSaved = historyState();
    emit runningChanged(true);
    QString error = moveAside();
    if (error.isEmpty()) {
        error = stage();
    }
    if (!error.isEmpty()) {
        conclude(error);
        return false;
    }
    pack();
    return true;
}

bool ProjectAutosave::findArchive()
{
    const QString archive = m_project->autosavePath();
    const bool isLost = !m_isRunning && !archive.isEmpty() && !QFile::exists(archive);
    if (isLost && QFile::exists(asideName(archive))) {
        QFile::rename(asideName(archive), archive);
    }
    return QFile::exists(archive);
}

//! After a crash the file that was set aside may be the only one; keep it then.
QString ProjectAutosave::moveAside()
{
    const QString aside = asideName(m_archive);
    if (!QFile::exists(m_archive)) {
        return {};
    }
    QFile::remove(aside);
    if (QFile file(m_archive); !file.rename(aside)) {
        return Common::LocalizationHelper::coreString(u"The file \"%1\" cannot be renamed: %2"_s)
            .arg(m_archive, file.errorString());
    }
    return {};
}

QString ProjectAutosave::stage()
{
    m_staging = std::make_unique<Common::TemporaryFolder>(Common::FileHelper::getStandardTemporatyLocation(),
                                                          u"CorvexNova-autosave"_s);
    if (!m_staging->isValid()) {
        return Common::LocalizationHelper::coreString(u"The folder \"%1\" cannot be created: %2"_s)
            .arg(m_staging->path(), m_staging->errorString());
    }
    QString error;
    m_project->writeContents(m_staging->path(), m_project->fileName(), &error);
    return error;
}

void ProjectAutosave::pack()
{
    m_thread = std::make_unique<QThread>();
    m_worker = std::make_unique<ZipWorker>(m_staging->path(), m_archive);
    m_worker->moveToThread(m_thread.get());
    connect(m_thread.get(), &QThread::started, m_worker.get(), &ZipWorker::run);
    connect(m_thread.get(), &QThread::finished, this, &ProjectAutosave::takeArchive);
    m_thread->start(QThread::LowPriority);
}

void ProjectAutosave::takeArchive()
{
    m_thread->wait();
    const QString error = m_worker->errorString();
    m_worker.reset();
    m_thread.reset();
    conclude(error);
}

void ProjectAutosave::conclude(const QString &error)
{
    m_staging.reset();
    const QString aside = asideName(m_archive);
    if (error.isEmpty()) {
        m_saved = m_beingSaved;
        QFile::remove(aside);
    } else if (!QFile::exists(m_archive)) {
        QFile::rename(aside, m_archive);
    }
    m_isRunning = false;
    emit runningChanged(false);
    emit finished(error);
}

} // namespace Halvane::Corvex::Designer
