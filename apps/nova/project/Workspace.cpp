// SPDX-License-Identifier: MIT
#include "project/Workspace.h"

#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/project/Project.h"
#include "corvex/project/elements/Element.h"
#include "corvex/project/files/ProjectAutosave.h"
#include "corvex/values/records/ObjectLinkInfo.h"

#include "project/RunningPreview.h"

namespace Halvane::Corvex::Nova {

using namespace Designer;

Workspace::Workspace(std::unique_ptr<Project> project, const ConfigurationContainer &models, QObject *parent)
    : QObject(parent)
    , m_models(models)
    , m_document(std::move(project))
    , m_approvals(m_document.project())
    , m_problems(m_document.project(), models)
    , m_problemsModel(m_problems)
    , m_tree(m_document)
    , m_view(m_document.project())
{
    m_problems.setApprovals(&m_approvals);
    m_tree.setProblems(&m_problems);
    this->project().observers().add(this);
    this->project().startAutoSaveTimer();
    m_autosave.setSingleShot(true);
    m_autosave.setInterval(autosavePause);
    connect(&m_autosave, &QTimer::timeout, this, [this] { this->project().autosave().run(); });
    connect(&m_document, &ProjectDocument::selectionChanged, this, &Workspace::keepSelection);
    connect(&m_document.history(), &ProjectHistory::moved, this, &Workspace::followHistory);
    connect(&m_tree, &ObjectTreeModel::noted, this, &Workspace::noted);
    showScreen(firstScreen());
}

Workspace::~Workspace() = default;

Screen *Workspace::firstScreen() const
{
    const SharedProperty &screens = project().screens();
    const QString name = ObjectLinkInfo(project().defaultScreen()->valueString()).objectId();
    DesignerObject *first = screens->getListItem(name);
    if (!first && screens->listItemCount() > 0) {
        first = screens->getListItemAtIndex(0);
    }
    return kindCast<Screen>(first);
}

void Workspace::showScreen(Screen *screen)
{
    if (screen != m_screen) {
        m_screen = screen;
        const QList<DesignerObject *> selection = m_document.selection();
        if (screen && (selection.isEmpty() || selection.constFirst()->screen() != screen)) {
            m_document.select({screen});
        }
        emit screenChanged();
    }
}

void Workspace::reveal(DesignerObject *object)
{
    m_document.select({object});
    if (object->screen()) {
        showScreen(object->screen());
    }
}

QList<DesignerObject *> Workspace::selectedElements() const
{
    QList<DesignerObject *> elements = m_document.selection();
    elements.removeIf(
        [](const DesignerObject *object) { return !object->isKindOfClass(Element::kindName()); });
    return elements;
}

void Workspace::setFlag(const QList<DesignerObject *> &objects, CanvasState::Flag flag, bool on)
{
    const QList<DesignerObject *> selection = m_document.selection();
    m_view.setFlag(objects, flag, on);
    m_document.select(selection); // the canvas drops hidden elements
}

bool Workspace::push(PlannedCommand planned)
{
    if (!planned) {
        if (!planned.reason.isEmpty()) {
            emit refused(planned.reason);
        }
        return false;
    }
    const QStringList notes = planned.notes;
    if (!push(std::move(planned.command))) {
        return false;
    }
    if (!notes.isEmpty()) {
        emit noted(notes);
    }
    return true;
}

bool Workspace::push(std::unique_ptr<UndoCommand> command)
{
    if (!command->isValid()) {
        emit refused(command->errorString());
        return false;
    }
    if (!m_document.push(command.release())) {
        reportFailure();
        return false;
    }
    return true;
}

void Workspace::follow(std::unique_ptr<Common::Job> job)
{
    m_job = std::move(job);
    emit jobStarted(m_job.get());
}

void Workspace::setPreviewRunning(bool runs)
{
    if (runs == isPreviewRunning()) {
        return;
    }
    m_preview = runs ? std::make_unique<RunningPreview>(*this) : nullptr;
    if (m_preview) {
        connect(
            m_preview.get(), &RunningPreview::ended, this,
            [this](const QString &reason) {
                setPreviewRunning(false);
                if (!reason.isEmpty()) {
                    emit refused(reason);
                }
            },
            Qt::QueuedConnection);
    }
    emit previewChanged();
}

void Workspace::reportFailure()
{
    emit refused(m_document.errorString());
}

void Workspace::aboutToRemove(const SharedProperty & /*list*/, qsizetype /*index*/, DesignerObject *object)
{
    if (m_screen && object == m_screen) {
        QMetaObject::invokeMethod(this, &Workspace::leaveScreen, Qt::QueuedConnection);
    }
}

void Workspace::inserted(const SharedProperty & /*list*/, qsizetype /*index*/, DesignerObject *object)
{
    // A new screen, or a deleted one that an undo brings back.
    if (auto *screen = kindCast<Screen>(object)) {
        QMetaObject::invokeMethod(
            this,
            [this, arrived = QPointer<Screen>(screen)] {
                if (arrived && arrived->project() == &project()) {
                    showScreen(arrived);
                }
            },
            Qt::QueuedConnection);
    }
}

void Workspace::projectAboutToLoad()
{
    m_screenName = m_screen ? m_screen->getIdName() : QString();
    m_screen = nullptr;
    emit screenChanged();
}

void Workspace::projectLoaded()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            auto *screen = kindCast<Screen>(project().screens()->getListItem(m_screenName));
            showScreen(screen ? screen : firstScreen());
        },
        Qt::QueuedConnection);
}

//! Shows another screen if that on the canvas is not in the project any more.
void Workspace::leaveScreen()
{
    if (!m_screen || m_screen->project() != &project()) {
        showScreen(firstScreen());
    }
}

void Workspace::keepSelection()
{
    if (m_document.selection().isEmpty() && m_screen && m_screen->project() == &project()) {
        m_document.select({m_screen});
    }
}

//! Shows what an undo, a redo or an edit has changed.
void Workspace::followHistory(const UndoCommand *command)
{
    // The user may have switched autosaving off.
    if (!m_autosave.isActive() && project().autosave().timerId() != -1) {
        m_autosave.start();
    }
    Screen *screen = command ? command->screen() : nullptr;
    if (screen && screen->project() == &project()) {
        showScreen(screen);
    }
}

} // namespace Halvane::Corvex::Nova
