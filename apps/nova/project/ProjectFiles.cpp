// SPDX-License-Identifier: MIT
#include "project/ProjectFiles.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/document/DeviceFolder.h"
#include "corvex/project/Project.h"
#include "corvex/widgets/JobProgress.h"
#include "corvex/widgets/KdMessageBox.h"

#include "UserSettings.h"
#include "project/Workspace.h"
#include "window/FolderDialog.h"
#include "window/MainWindow.h"
#include "window/NewProjectDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::Job;
using Common::LocalizationHelper;

namespace {

QString text(const QString &english)
{
    return LocalizationHelper::coreString(english);
}

QString fileFilter()
{
    return text(u"Projects (*.kdproj)"_s);
}

} // namespace

ProjectFiles::ProjectFiles(MainWindow &window)
    : QObject(&window)
    , m_window(window)
    , m_progress(new JobProgress(&window))
{ }

ProjectFiles::~ProjectFiles() = default;

void ProjectFiles::fail(const QString &what, const QString &where, const QString &details)
{
    KdMessageBox::ask(&m_window, {KdMessageBox::Error, what, QDir::toNativeSeparators(where), details, {}});
}

//! Asks about unsaved edits. Returns false if the user wants to continue with them.
bool ProjectFiles::mayDiscard()
{
    Workspace *workspace = m_window.workspace();
    if (!workspace || !workspace->document().isModified()) {
        return true;
    }
    const KdMessageBox::Message question{
        KdMessageBox::Question,
        text(u"Save the edits of \"%1\"?"_s).arg(workspace->project().getIdName()),
        QDir::toNativeSeparators(workspace->project().fullFilePath()),
        text(u"Without saving, they are lost."_s),
        {}};
    switch (
        KdMessageBox::ask(&m_window, question, {text(u"Save"_s), text(u"Discard"_s), text(u"Cancel"_s)})) {
    case 0:
        return save();
    case 1:
        return true;
    default:
        return false;
    }
}

void ProjectFiles::create()
{
    if (!mayDiscard()) {
        return;
    }
    NewProjectDialog dialog(m_window.models(), &m_window);
    if (dialog.exec() == QDialog::Accepted) {
        open(dialog.path());
    }
}

void ProjectFiles::open()
{
    const QString last = UserSettings::recentProjects().value(0);
    const QString path = QFileDialog::getOpenFileName(&m_window, text(u"Open a project"_s),
                                                      QFileInfo(QFileInfo(last).path()).path(), fileFilter());
    if (!path.isEmpty()) {
        open(path);
    }
}

void ProjectFiles::open(const QString &path)
{
    if (isBusy() || !mayDiscard()) {
        return;
    }
    m_loadPath = QFileInfo(path).absoluteFilePath();
    m_load = ProjectDocument::load(m_loadPath);
    connect(m_load.get(), &Job::finished, this, &ProjectFiles::onLoaded);
    m_progress->follow(m_load.get());
    emit busyChanged();
}

void ProjectFiles::onLoaded()
{
    ProjectDocument::LoadJob *job = m_load.release();
    job->deleteLater(); // it emits this signal
    std::optional<std::unique_ptr<Project>> project = job->takeResult();
    emit busyChanged();
    if (!project) {
        if (job->outcome() == Job::Outcome::Failed) {
            UserSettings::removeRecentProject(m_loadPath);
            fail(text(u"The project cannot be opened."_s), m_loadPath, job->errorString());
        }
        emit opened(false);
        return;
    }
    m_window.setProject(*std::move(project));
    UserSettings::addRecentProject(m_loadPath);
    ProjectDocument &document = m_window.workspace()->document();
    connect(&document, &ProjectDocument::changedByOthers, this, &ProjectFiles::onChangedByOthers,
            Qt::QueuedConnection);
    if (!document.recoveryNote().isEmpty()) {
        m_window.showNotes({document.recoveryNote()});
    }
    offerRecovery();
    emit opened(true);
}

//! After a crash: nothing is deleted before the user has decided.
void ProjectFiles::offerRecovery()
{
    ProjectDocument &document = m_window.workspace()->document();
    if (!document.hasRecovery()) {
        return;
    }
    const QLocale locale;
    const QFileInfo file(m_loadPath);
    const KdMessageBox::Message question{
        KdMessageBox::Question,
        text(u"The program ended without saving your last edits."_s),
        QDir::toNativeSeparators(m_loadPath),
        text(u"Saved by you: %1\nSaved automatically: %2\n\nDo you want to continue with the edits that were "
             "saved automatically?"_s)
            .arg(locale.toString(file.lastModified(), QLocale::ShortFormat),
                 locale.toString(document.recoveryTime(), QLocale::ShortFormat)),
        {}};
    const int answer = KdMessageBox::ask(
        &m_window, question,
        {text(u"Restore the edits"_s), text(u"Keep the saved project"_s), text(u"Decide later"_s)});
    const bool isDone = answer == 2 || (answer == 0 ? document.recover() : document.discardRecovery());
    if (!isDone) {
        fail(text(u"This did not succeed."_s), m_loadPath, document.errorString());
    }
}

void ProjectFiles::onChangedByOthers()
{
    Workspace *workspace = m_window.workspace();
    if (!workspace) {
        return;
    }
    const bool isModified = workspace->document().isModified();
    const KdMessageBox::Message question{
        KdMessageBox::Question,
        text(u"Another program has changed the project."_s),
        QDir::toNativeSeparators(workspace->project().fullFilePath()),
        isModified
            ? text(u"Reloading discards your own unsaved edits. If you keep them, save a copy, or save "
                   "again to overwrite the other changes."_s)
            : text(u"Reload it to see the changes."_s),
        {}};
    if (KdMessageBox::ask(&m_window, question, {text(u"Reload"_s), text(u"Keep what is shown"_s)}) == 0) {
        if (!workspace->document().reload()) {
            workspace->reportFailure();
        }
    }
}

void ProjectFiles::reload()
{
    if (mayDiscard() && !m_window.workspace()->document().reload()) {
        m_window.workspace()->reportFailure();
    }
}

bool ProjectFiles::save()
{
    Workspace &workspace = *m_window.workspace();
    ProjectDocument &document = workspace.document();
    if (document.save()) {
        return true;
    }
    const KdMessageBox::Message message{KdMessageBox::Error,
                                        text(u"The project is not saved."_s),
                                        QDir::toNativeSeparators(workspace.project().fullFilePath()),
                                        document.errorString(),
                                        {}};
    const int answer = KdMessageBox::ask(
        &m_window, message, {text(u"Continue editing"_s), text(u"Save a copy…"_s), text(u"Overwrite"_s)});
    if (answer == 1) {
        saveCopy();
    }
    return answer == 2
           && (document.save(ProjectDocument::Overwrite::Always)
               || (fail(message.what, message.where, document.errorString()), false));
}

void ProjectFiles::saveCopy()
{
    Project &project = m_window.workspace()->project();
    const QString path = QFileDialog::getSaveFileName(
        &m_window, text(u"Save a copy"_s),
        QDir(project.folderPath()).filePath(u"../%1 2"_s.arg(project.getIdName())));
    if (path.isEmpty()) {
        return;
    }
    const QFileInfo target(path);
    const QString name = target.suffix() == "kdproj"_L1 ? target.completeBaseName() : target.fileName();
    if (!project.createFileCopy(target.path(), name)) {
        fail(text(u"The copy is not saved."_s), path, project.fileError());
    }
}

bool ProjectFiles::close()
{
    if (!mayDiscard()) {
        return false;
    }
    m_window.setProject(nullptr);
    return true;
}

void ProjectFiles::build()
{
    // Beside the project, unless the user has chosen something else for it.
    const Project &project = m_window.workspace()->project();
    const QString usual =
        QDir::cleanPath(u"%1/../%2-device"_s.arg(project.folderPath(), project.getIdName()));
    const QString last = UserSettings::buildFolder(project.fullFilePath());
    FolderDialog dialog(text(u"Folder for the device"_s), last.isEmpty() ? usual : last, &m_window);
    if (dialog.exec() != QDialog::Accepted || isBusy()) {
        return;
    }
    const QString target = dialog.folder();
    UserSettings::setBuildFolder(project.fullFilePath(), target);
    m_build = m_window.workspace()->document().build();
    if (!m_build) {
        m_window.workspace()->reportFailure();
        return;
    }
    connect(m_build.get(), &Job::finished, this, [this, target] { onBuilt(target); });
    m_progress->follow(m_build.get());
    emit busyChanged();
}

void ProjectFiles::onBuilt(const QString &target)
{
    ProjectDocument::BuildJob *job = m_build.release();
    job->deleteLater();
    emit busyChanged();
    if (job->outcome() == Job::Outcome::Cancelled) {
        return;
    }
    QString error = job->errorString();
    const std::optional<ProjectDocument::BuildFolder> built = job->takeResult();
    DeviceFolder folder(target);
    if (built && folder.isInside(m_window.workspace()->project().folderPath())) {
        error = text(u"The folder is inside the project's own folder. Choose a folder outside of it."_s);
    } else if (built && folder.bring(QDir(**built).filePath(u"project"_s), &error)) {
        m_window.showNotes(
            {text(u"The project was built: %1"_s).arg(QDir::toNativeSeparators(folder.projectPath()))});
        return;
    }
    fail(text(u"The project was not built."_s), target, error);
}

} // namespace Halvane::Corvex::Nova
