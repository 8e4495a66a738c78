// SPDX-License-Identifier: MIT
// The jobs of ProjectDocument, and the rules for edits while they run.
#include "corvex/checks/ProjectProblems.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/document/private/ProjectCopy.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"

#include <QFileInfo>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Common::Progress;

//! Long enough for a person who types edits; a script needs far less.
constexpr int longestWait = 30'000; // milliseconds
constexpr int pauseOfWaiting = 100; // milliseconds

bool lock(Project &project, const QString &path, ProjectDocument::Access access, Progress &progress)
{
    using Kind = Common::FolderLock::Kind;
    progress.begin(LocalizationHelper::coreString(u"Waiting for another program that uses %1"_s)
                       .arg(QFileInfo(path).fileName()));
    bool isLocked = false;
    for (int waited = 0; !isLocked && !progress.isCancelled() && waited < longestWait;
         waited += pauseOfWaiting) {
        isLocked = project.lockFiles(
            path, access == ProjectDocument::Access::Alone ? Kind::Exclusive : Kind::Shared, pauseOfWaiting);
    }
    return isLocked;
}

} // namespace

std::unique_ptr<ProjectDocument::LoadJob> ProjectDocument::load(const QString &path, Access access)
{
    auto job = std::make_unique<LoadJob>();
    job->startInThread([path, access, thread = QThread::currentThread()](
                           Progress &progress, QString &error) -> std::optional<std::unique_ptr<Project>> {
        std::unique_ptr<Project> project = ProjectCopy::makeEmpty(error);
        if (!project) {
            return {};
        }
        project->setProgress(&progress);
        if (!lock(*project, path, access, progress) || !project->loadFile(path)) {
            error = project->fileError();
            return {};
        }
        project->setProgress(nullptr);
        if (access == Access::Shared) {
            project->closeFiles();
        }
        ProjectCopy::handOver(*project, thread);
        return project;
    });
    return job;
}

//! Whether a project can be read from the file. Reads it into a second project, because a failure would leave
//! the current one incomplete.
bool ProjectDocument::canLoad(const QString &path)
{
    QString error;
    const std::unique_ptr<Project> trial = ProjectCopy::makeEmpty(error);
    // The override would complete an edit that waits in the folder.
    const bool isRead = trial && trial->FileObject::loadFile(path);
    return result(isRead, trial ? trial->fileError() : error);
}

//! Cancels the jobs that an edit cancels.
bool ProjectDocument::mayEdit(QString &reason)
{
    if (m_isOwnEdit) {
        return true;
    }
    m_readers.removeIf([](const Reader &reader) { return !reader.job || !reader.job->isRunning(); });
    for (const Reader &reader : std::as_const(m_readers)) {
        if (!reader.refusal.isEmpty()) {
            reason = reader.refusal;
            return false;
        }
    }
    for (const Reader &reader : std::as_const(m_readers)) {
        reader.job->cancel();
        reader.job->wait();
    }
    return true;
}

bool ProjectDocument::mayValidate() const
{
    return std::ranges::none_of(m_readers, [](const Reader &reader) {
        return !reader.edits && reader.job && reader.job->isRunning();
    });
}

//! Refuses to read the project during a gesture, in the middle of an edit, and while a job edits it.
bool ProjectDocument::mayRead()
{
    for (const Reader &reader : std::as_const(m_readers)) {
        if (reader.edits && reader.job && reader.job->isRunning()) {
            return result(false, reader.refusal);
        }
    }
    m_history->endRun();
    m_project->hasElement({}); // The project counts the names on first use, which must not be in two threads.
    const UndoStack *stack = m_project->undoStack();
    return result(
        !stack->hasGesture() && !stack->isInRun(),
        LocalizationHelper::coreString(u"An edit is not finished yet. Finish or cancel it first."_s));
}

void ProjectDocument::addReader(Common::Job *job, const QString &refusal, bool edits)
{
    m_readers.append({job, refusal, edits});
}

void ProjectDocument::removeReader(const Common::Job *job)
{
    m_readers.removeIf([job](const Reader &reader) { return reader.job == job; });
}

std::unique_ptr<ProjectDocument::CheckJob> ProjectDocument::check(const ConfigurationContainer &models)
{
    if (!mayRead()) {
        return nullptr;
    }
    auto job = std::make_unique<CheckJob>();
    addReader(job.get());
    job->startInThread([project = m_project.get(), &models](Progress &progress, QString &) {
        return std::optional(ProjectProblems::find(*project, models, &progress));
    });
    return job;
}

std::unique_ptr<ProjectDocument::BuildJob> ProjectDocument::build(OnEdit onEdit)
{
    if (!mayRead()) {
        return nullptr;
    }
    auto job = std::make_unique<BuildJob>();
    addReader(job.get(),
              onEdit == OnEdit::Cancel
                  ? QString()
                  : LocalizationHelper::coreString(
                      u"The project is being built. Wait until the build has finished, or cancel it."_s));
    job->startInThread([generator = m_project->newRuntimeGenerator(), project = m_project.get()](
                           Progress &progress, QString &error) mutable -> std::optional<BuildFolder> {
        generator.setProgress(&progress);
        // Other files next to the images are the user's own and do not go to the device.
        generator.setResourceNames(project->imageResources()->listItemNames());
        if (!generator.generate(project)) {
            error = generator.errorString();
            return {};
        }
        return BuildFolder(new QString(generator.buildFolder()), [](const QString *folder) {
            RuntimeGenerator::removeBuild(*folder);
            delete folder;
        });
    });
    return job;
}

} // namespace Halvane::Corvex::Designer
