// SPDX-License-Identifier: MIT
#include "corvex/document/ProjectDocument.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileTransaction.h"
#include "corvex/document/private/FileWatch.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/ProjectAutosave.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

} // namespace

ProjectDocument::ProjectDocument(std::unique_ptr<Project> project, QObject *parent)
    : QObject(parent)
    , m_project(std::move(project))
    , m_history(std::make_unique<ProjectHistory>(*m_project))
    , m_watch(std::make_unique<FileWatch>())
    , m_isComplete(!losesParts())
{
    m_history->setGate(this);
    connect(m_history.get(), &ProjectHistory::changed, this, &ProjectDocument::onHistoryChanged);
    connect(m_history.get(), &ProjectHistory::moved, this, [this](const UndoCommand *command) {
        // selectedItems() does not change the command.
        const QList<DesignerObject *> items = const_cast<UndoCommand *>(command)->selectedItems();
        // An edit of some of the selected objects does not deselect the others.
        const QList<DesignerObject *> all = selection();
        const QSet<DesignerObject *> selected(all.cbegin(), all.cend());
        if (!std::ranges::all_of(items, [&](DesignerObject *item) { return selected.contains(item); })) {
            select(items);
        }
    });
    connect(m_watch.get(), &FileWatch::changed, this, &ProjectDocument::changedByOthers);
    connect(&m_project->autosave(), &ProjectAutosave::finished, this, [this] {
        if (!isModified()) {
            m_project->autosave().removeArchive(); // the project has been saved meanwhile
        }
    });
    watchFile();
    m_wasModified = isModified();
    m_project->autosave().findArchive();
}

ProjectDocument::~ProjectDocument()
{
    for (const Reader &reader : std::as_const(m_readers)) {
        if (reader.job) {
            reader.job->cancel();
            reader.job->wait();
        }
    }
    m_history.reset();
    ProjectAutosave &autosave = m_project->autosave();
    autosave.disconnect(this);
    autosave.removeArchive();
    m_project.reset();
}

//! Whether a save would lose something that was in the file.
bool ProjectDocument::losesParts() const
{
    return std::ranges::any_of(m_project->readNotes(),
                               [](const ReadNote &note) { return note.kind == ReadNote::Dropped; });
}

bool ProjectDocument::result(bool isDone, const QString &error)
{
    m_error = isDone ? QString() : error;
    return isDone;
}

bool ProjectDocument::push(UndoCommand *command)
{
    if (!command->isValid()) {
        const std::unique_ptr<UndoCommand> refused(command);
        return result(false, refused->errorString());
    }
    UndoStack *stack = m_project->undoStack();
    const bool isDone = stack->push(command);
    updateModified();
    return result(isDone, stack->errorString());
}

bool ProjectDocument::pushInRun(const QString &text, UndoCommand *command)
{
    if (!command->isValid()) {
        const std::unique_ptr<UndoCommand> refused(command);
        return result(false, refused->errorString());
    }
    return result(m_history->pushInRun(text, command, m_runPause), m_history->errorString());
}

bool ProjectDocument::undo()
{
    return result(m_history->undo(), m_history->errorString());
}

bool ProjectDocument::redo()
{
    return result(m_history->redo(), m_history->errorString());
}

bool ProjectDocument::beginGesture(const QString &text)
{
    return result(m_history->beginGesture(text), m_history->errorString());
}

bool ProjectDocument::commitGesture()
{
    if (QString reason; !mayEdit(reason)) {
        return result(false, reason);
    }
    return result(m_history->commitGesture(), m_history->errorString());
}

bool ProjectDocument::rollBackGesture()
{
    if (QString reason; !mayEdit(reason)) {
        return result(false, reason);
    }
    return result(m_history->rollBackGesture(), m_history->errorString());
}

bool ProjectDocument::isModified() const
{
    const UndoStack *stack = m_project->undoStack();
    return !stack->isSaved() || stack->hasChangedInGesture();
}

void ProjectDocument::updateModified()
{
    if (const bool isNow = isModified(); isNow != m_wasModified) {
        m_wasModified = isNow;
        emit modifiedChanged(isNow);
    }
}

void ProjectDocument::onHistoryChanged()
{
    // Renaming the project moves its folder.
    if (m_watch->path() != m_project->fullFilePath()) {
        m_watch->watch(m_project->fullFilePath());
    }
    dropFromSelection();
    updateModified();
}

//! Whether a save would only replace contents that the user knows.
bool ProjectDocument::canOverwrite()
{
    const QString file = QDir::toNativeSeparators(m_project->fullFilePath());
    if (m_watch->isChanged()) {
        const QString text =
            QFileInfo::exists(file)
                ? u"Another program changed \"%1\" after it was opened. Open it again, or save "
                  "over it."_s
                : u"Another program deleted \"%1\". Save over it to write it again."_s;
        return result(false, LocalizationHelper::coreString(text).arg(file));
    }
    return result(m_isComplete,
                  LocalizationHelper::coreString(
                      u"\"%1\" contains parts that this version does not know and would lose. Save "
                      "over it if nobody needs them."_s)
                      .arg(file));
}

//! Project::saveFile() only replaces an existing file.
bool ProjectDocument::writeMissingFile()
{
    const QString file = m_project->fullFilePath();
    QString error;
    if (file.isEmpty() || QFileInfo::exists(file)) {
        return true;
    }
    const QString folder = m_project->folderPath();
    return result((QFileInfo::exists(folder) || Common::FileTransaction::mayTakeName(folder, &error))
                      && Common::FileHelper::makeFolder(folder, &error)
                      && DesignerObject::saveToFile(m_project.get(), file, &error),
                  error);
}

bool ProjectDocument::save(Overwrite overwrite)
{
    UndoStack *stack = m_project->undoStack();
    if (!stack->isOpen()) {
        return result(false, stack->errorString());
    }
    if (overwrite == Overwrite::Always && !writeMissingFile()) {
        return false;
    }
    // The lock keeps other programs from writing the file between the check and the end of the save.
    if (!m_project->lockForSave()) {
        return result(false, m_project->fileError());
    }
    const bool isSaved = (overwrite == Overwrite::Always || canOverwrite())
                         && result(m_project->saveFile(), m_project->fileError());
    m_project->unlockAfterSave();
    if (isSaved) {
        m_isComplete = true;
        watchFile();
        updateModified();
    }
    return isSaved;
}

//! Watches the file for changes of what was last read or written.
void ProjectDocument::watchFile()
{
    m_watch->watch(m_project->fullFilePath());
    m_watch->accept(m_project->fileStamp());
}

bool ProjectDocument::reload()
{
    QString reason;
    if (!mayEdit(reason)) {
        return result(false, reason);
    }
    const QString path = m_project->fullFilePath();
    if (!canLoad(path)) {
        return false;
    }
    select({});
    return readFile(path);
}

bool ProjectDocument::readFile(const QString &path)
{
    const bool isLoaded = m_project->loadFile(path);
    if (isLoaded) {
        m_isComplete = !losesParts();
        watchFile();
    }
    onHistoryChanged();
    return result(isLoaded, m_project->fileError());
}

QList<DesignerObject *> ProjectDocument::selection() const
{
    QList<DesignerObject *> objects;
    for (const QPointer<DesignerObject> &object : m_selection) {
        if (object && object->project() == m_project.get()) {
            objects.append(object);
        }
    }
    return objects;
}

void ProjectDocument::select(const QList<DesignerObject *> &objects)
{
    QList<QPointer<DesignerObject>> selected;
    QSet<const DesignerObject *> known;
    for (DesignerObject *object : objects) {
        if (object && object->project() == m_project.get() && !known.contains(object)) {
            known.insert(object);
            selected.append(object);
        }
    }
    if (selected != m_selection) {
        m_history->endRun();
        m_selection = std::move(selected);
        emit selectionChanged();
    }
}

//! Removes objects from the selection that an edit has removed from the project.
void ProjectDocument::dropFromSelection()
{
    select(selection());
}

} // namespace Halvane::Corvex::Designer
