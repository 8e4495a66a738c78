// SPDX-License-Identifier: MIT
#include "corvex/project/files/ProjectAutosave.h"

#include "corvex/common/Job.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/zip/ZipHelper.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"
#include "corvex/project/private/AutosaveRun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTimerEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString asideName(const QString &archive)
{
    return archive + ".tmp"_L1;
}

//! Keeps a file that is not of this session under a name that no program opens.
void moveOutOfTheWay(const QString &path)
{
    if (const QFileInfo file(path); file.exists()) {
        QFile::rename(path, file.dir().filePath(Project::generateUniqueName(file.path(), file.fileName())));
    }
}

//! The archive at \a to, if there is one, is not of this project.
void moveArchive(const QString &from, const QString &to)
{
    for (const auto &[old, present] : {std::pair(from, to), std::pair(asideName(from), asideName(to))}) {
        moveOutOfTheWay(present);
        QFile::rename(old, present);
    }
}

} // namespace

ProjectAutosave::Archive::Archive(const QString &archive)
    : path(archive)
{
    if (const QFileInfo file(archive); file.exists()) {
        time = file.lastModified();
        size = file.size();
    }
}

bool ProjectAutosave::Archive::isAt(const QString &otherPath) const
{
    const Archive other(otherPath);
    return time.isValid() && other.time == time && other.size == size;
}

QString ProjectAutosave::Archive::find() const
{
    if (!time.isValid() || isAt(path)) {
        return time.isValid() ? path : QString();
    }
    const QFileInfo own(path);
    const QFileInfoList files = own.dir().entryInfoList(QDir::Files);
    const auto found = std::ranges::find_if(files, [&](const QFileInfo &file) {
        return file.fileName().startsWith(own.fileName()) && isAt(file.filePath());
    });
    return found == files.end() ? QString() : found->filePath();
}

ProjectAutosave::ProjectAutosave(Project *project)
    : m_project(project)
{ }

ProjectAutosave::~ProjectAutosave()
{
    if (m_job) {
        complete();
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
    if (event->timerId() == m_timerId && !run()) {
        m_isDue = m_project->undoStack()->hasChangedInGesture();
    }
}

void ProjectAutosave::countEdit()
{
    ++m_editCount;
    if (std::exchange(m_isDue, false)) {
        QMetaObject::invokeMethod(
            this, [this] { run(); }, Qt::QueuedConnection);
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
    m_isSavedInArchive = false;
}

void ProjectAutosave::projectSaved(const QString &oldArchive)
{
    removeArchive();
    startOver();
    const QString archive = m_project->autosavePath();
    if (archive == oldArchive) {
        return;
    }
    // The project has found its new name free, so archives with that name are of a deleted project.
    moveArchive(oldArchive, archive);
    if (m_found.isAt(archive)) {
        m_found.path = archive;
    }
}

//! Another document of the same project may have replaced or deleted the archive.
bool ProjectAutosave::needsRun() const
{
    return !checkStackIsSame() || (m_isSavedInArchive && !m_written.isAt(m_written.path));
}

bool ProjectAutosave::run()
{
    const QString archive = m_project->autosavePath();
    if (m_isRunning || !foundArchive().isEmpty() || archive.isEmpty() || !needsRun()) {
        return false;
    }
    m_isRunning = true;
    m_archive = archive;
    m_beingSaved = historyState();
    emit runningChanged(true);
    if (const QString error = moveAside(); !error.isEmpty()) {
        conclude(error);
        return false;
    }
    startJob();
    return true;
}

void ProjectAutosave::findArchive()
{
    const QString archive = m_project->autosavePath();
    const QString aside = asideName(archive);
    if (m_isRunning || archive.isEmpty()) {
        return;
    }
    // Without the journal of an unsaved renaming, only the project file knows the name that it was saved
    // with.
    const QDir parent(m_project->parentPath());
    const QString savedName = m_project->getIdName();
    if (!QFile::exists(archive) && !QFile::exists(aside) && !parent.exists(savedName)) {
        moveArchive(parent.filePath(u"%1.kdproj.kdasv"_s.arg(savedName)), archive);
    }
    // A program may have been killed before it could remove the older archive.
    if (QFile::exists(aside)) {
        if (!Common::ZipHelper::entryNames(archive).isEmpty()) {
            QFile::remove(aside);
        } else {
            moveOutOfTheWay(archive);
            QFile::rename(aside, archive);
        }
    }
    m_found = Archive(archive);
}

QString ProjectAutosave::foundArchive() const
{
    return m_found.find();
}

void ProjectAutosave::adoptArchive()
{
    m_written = std::exchange(m_found, Archive());
    m_saved = historyState();
    m_isSavedInArchive = true;
}

bool ProjectAutosave::discardArchive(QString *error)
{
    if (QFile file(m_found.find()); file.exists() && !file.remove()) {
        *error = Common::LocalizationHelper::coreString(u"The file \"%1\" cannot be deleted."_s)
                     .arg(QDir::toNativeSeparators(file.fileName()));
        return false;
    }
    m_found = Archive();
    return true;
}

void ProjectAutosave::removeArchive()
{
    cancel();
    if (QFile file(m_written.find()); file.exists()) {
        file.remove();
    }
    m_written = Archive();
}

//! After a crash the file that was set aside may be the only one; keep it then.
QString ProjectAutosave::moveAside()
{
    const QString aside = asideName(m_archive);
    if (!QFile::exists(m_archive)) {
        return {};
    }
    if (m_written.isAt(aside)) {
        QFile::remove(aside);
    }
    moveOutOfTheWay(aside);
    if (QFile file(m_archive); !file.rename(aside)) {
        return Common::LocalizationHelper::coreString(u"The file \"%1\" cannot be renamed: %2"_s)
            .arg(m_archive, file.errorString());
    }
    return {};
}

void ProjectAutosave::startJob()
{
    m_work = std::make_shared<AutosaveRun>(*m_project, m_archive);
    m_work->onRestart([this] { m_beingSaved = historyState(); });
    m_job = std::make_unique<Common::Job>();
    m_job->addInSlices(
        [work = m_work, name = m_project->getIdName()](Common::Progress &progress, QString &error) {
            if (progress.state().text.isEmpty()) {
                progress.begin(Common::LocalizationHelper::coreString(u"Autosaving %1"_s).arg(name));
            }
            return work->write(progress, error);
        });
    m_job->addInThread(
        [work = m_work](Common::Progress &progress, QString &error) { return work->pack(progress, error); });
    connect(m_job.get(), &Common::Job::finished, this, &ProjectAutosave::concludeJob);
    m_job->start();
}

void ProjectAutosave::concludeJob()
{
    const QString error = m_job->errorString();
    m_job.reset();
    if (!error.isEmpty() && historyState() != m_beingSaved) {
        startJob(); // An edit may have moved the images while they were packed.
    } else {
        conclude(error);
    }
}

void ProjectAutosave::cancel()
{
    if (m_job) {
        m_job.reset();
        conclude(m_work->isPacked()
                     ? QString()
                     : Common::LocalizationHelper::coreString(u"The autosave was cancelled."_s));
    }
}

//! Completes the run without events.
void ProjectAutosave::complete()
{
    m_job->wait();
    const std::shared_ptr<AutosaveRun> work = m_work;
    const bool isPacked = work->isPacked();
    QString error = m_job->errorString();
    m_job.reset();
    if (!isPacked && error.isEmpty()) {
        Common::Progress progress;
        Common::Job::Next next = Common::Job::Next::More;
        while (next == Common::Job::Next::More) {
            next = work->write(progress, error);
        }
        if (next == Common::Job::Next::Done) {
            work->pack(progress, error);
        }
    }
    conclude(error);
}

void ProjectAutosave::conclude(const QString &error)
{
    m_work.reset();
    const QString aside = asideName(m_archive);
    if (error.isEmpty()) {
        m_saved = m_beingSaved;
        if (const QString older = m_written.find(); !older.isEmpty() && older != m_archive) {
            QFile::remove(older);
        }
        moveOutOfTheWay(aside);
        m_written = Archive(m_archive);
        m_isSavedInArchive = true;
    } else if (!QFile::exists(m_archive)) {
        QFile::rename(aside, m_archive);
    }
    m_isRunning = false;
    emit runningChanged(false);
    emit finished(error);
}

} // namespace Halvane::Corvex::Designer
