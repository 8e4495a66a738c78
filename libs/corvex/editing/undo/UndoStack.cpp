// SPDX-License-Identifier: MIT
#include "corvex/editing/undo/UndoStack.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/editing/undo/private/Gesture.h"

#include <QScopedValueRollback>
#include <QTimerEvent>

namespace Halvane::Corvex::Designer {

namespace {

bool holds(const QUndoCommand *command, const QUndoCommand *sought)
{
    bool isHere = command == sought;
    for (int i = 0; i < command->childCount() && !isHere; ++i) {
        isHere = holds(command->child(i), sought);
    }
    return isHere;
}

//! For all commands of a step, which may be a macro.
bool keepFilesOf(QUndoCommand *step, Common::FileStore &store, QString &error)
{
    if (auto *command = dynamic_cast<UndoCommand *>(step)) {
        return !command->changesFiles() || command->keepFiles(store, error);
    }
    bool isKept = true;
    for (int i = 0; i < step->childCount() && isKept; ++i) {
        isKept = keepFilesOf(const_cast<QUndoCommand *>(step->child(i)), store, error);
    }
    return isKept;
}

//! For a macro, the error of its first command that has one.
QString errorOf(const QUndoCommand *step)
{
    if (const auto *command = dynamic_cast<const UndoCommand *>(step)) {
        return command->errorString();
    }
    QString error;
    for (int i = 0; i < step->childCount() && error.isEmpty(); ++i) {
        error = errorOf(step->child(i));
    }
    return error;
}

//! A command that cannot be done, so that pushing it has no effect.
class NoCommand : public QUndoCommand
{
public:
    NoCommand() { setObsolete(true); }
};

} // namespace

UndoStack::UndoStack(QObject *parent)
    : QUndoStack(parent)
{
    connect(this, &QUndoStack::indexChanged, this, &UndoStack::onIndexChanged);
}

UndoStack::~UndoStack()
{
    // QUndoStack reports index 0 in its destructor.
    disconnect(this, &QUndoStack::indexChanged, this, &UndoStack::onIndexChanged);
    deleteCandidates();
    m_runTimer.stop();
    m_gesture.reset();
    // The commands use this stack, so delete them before it is reduced to a QUndoStack.
    clear();
}

bool UndoStack::push(UndoCommand *command)
{
    if (!mayEdit()) {
        delete command;
        return false;
    }
    endRun();
    return m_gesture ? collect(std::unique_ptr<UndoCommand>(command)) : append(command);
}

bool UndoStack::pushInRun(const QString &text, UndoCommand *command, int pause)
{
    if (hasGesture()) {
        return push(command);
    }
    std::unique_ptr<UndoCommand> step(command);
    if (!mayEdit()) {
        return false;
    }
    if (isInRun() && m_gesture->text() != text) {
        endRun();
    }
    if (!m_gesture) {
        m_gesture = std::make_unique<Gesture>(text);
    }
    m_runTimer.start(pause, this);
    const bool isDone = collect(std::move(step));
    if (isDone && !canUndo()) {
        // Actions may undo the run even though it is not in the history yet.
        emit canUndoChanged(true);
    }
    return isDone;
}

void UndoStack::endRun()
{
    if (isInRun()) {
        commitGesture();
    }
}

void UndoStack::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_runTimer.timerId()) {
        endRun();
    } else {
        QUndoStack::timerEvent(event);
    }
}

QString UndoStack::gestureText() const
{
    return m_gesture ? m_gesture->text() : QString();
}

bool UndoStack::append(UndoCommand *command)
{
    m_failedMacro = nullptr; // It may be among the commands that this one replaces.
    DesignerObject *candidate = command->deletionCandidate();
    m_hasFailed = command->start() == UndoCommand::Start::Failed;
    if (m_hasFailed) {
        m_errorString = command->errorString();
        delete command;
        return false;
    }
    addCandidate(candidate);
    command->m_stack = this;
    m_lastPushed = command;
    emit aboutToPush();
    QUndoStack::push(command);
    return !m_hasFailed;
}

void UndoStack::addCandidate(DesignerObject *candidate)
{
    if (candidate && !m_deletionCandidates.contains(candidate)) {
        m_deletionCandidates.append(candidate);
    }
}

bool UndoStack::collect(std::unique_ptr<UndoCommand> command)
{
    const QPointer<DesignerObject> candidate = command->deletionCandidate();
    // Receivers of its signals may try to end the gesture.
    const bool wasBusy = m_gesture->isBusy();
    m_gesture->setBusy(true);
    const bool isDone = UndoCommand::startNow(*command);
    m_gesture->setBusy(wasBusy);
    if (!isDone) {
        m_errorString = command->errorString();
        return false;
    }
    addCandidate(candidate);
    m_gesture->add(std::move(command));
    return true;
}

//! Whether the history may move or a gesture may begin.
bool UndoStack::isOpen()
{
    endRun();
    if (m_gesture) {
        m_errorString = Common::LocalizationHelper::coreString(
                            QStringLiteral("\"%1\" is not finished yet. Finish or cancel it first."))
                            .arg(m_gesture->text());
    }
    return !m_gesture && mayEdit();
}

bool UndoStack::mayEdit()
{
    m_errorString.clear();
    return !m_gate || m_gate->mayEdit(m_errorString);
}

bool UndoStack::beginGesture(const QString &text)
{
    if (!isOpen()) {
        return false;
    }
    m_gesture = std::make_unique<Gesture>(text);
    return true;
}

bool UndoStack::hasChangedInGesture() const
{
    return m_gesture && !m_gesture->isEmpty();
}

bool UndoStack::commitGesture()
{
    if (m_gesture && m_gesture->isBusy()) {
        return false;
    }
    m_runTimer.stop();
    const std::unique_ptr<Gesture> gesture = std::move(m_gesture);
    if (std::unique_ptr<UndoCommand> command = gesture ? gesture->takeCommand() : nullptr) {
        append(command.release()); // It is done already, so do not ask the gate.
    }
    return gesture != nullptr;
}

bool UndoStack::rollBackGesture()
{
    if (m_gesture && m_gesture->isBusy()) {
        return false;
    }
    m_runTimer.stop();
    const std::unique_ptr<Gesture> gesture = std::move(m_gesture);
    if (!gesture) {
        m_errorString =
            Common::LocalizationHelper::coreString(QStringLiteral("There is no gesture to cancel."));
        return false;
    }
    if (gesture->rollBack()) {
        return true;
    }
    std::unique_ptr<UndoCommand> step = gesture->takeCommand();
    m_errorString = step->errorString();
    append(step.release());
    return false;
}

void UndoStack::dropRedo()
{
    if (canRedo()) {
        QUndoStack::push(new NoCommand);
        emit canRedoChanged(false);
        emit redoTextChanged(redoText());
    }
}

void UndoStack::setStartSaved(bool isSaved)
{
    const bool wasSaved = this->isSaved();
    m_isStartSaved = isSaved;
    if (wasSaved != this->isSaved()) {
        emit savedChanged(!wasSaved);
    }
}

void UndoStack::undo()
{
    if (isOpen() && canUndo()) {
        undoTo(index() - 1);
    }
}

//! Stops after a command that cannot be undone.
void UndoStack::undoTo(int index)
{
    int reached = this->index();
    while (reached > index) {
        auto *step = const_cast<QUndoCommand *>(command(reached - 1));
        const UndoCommand::Start start = UndoCommand::startUndo(*step);
        if (start == UndoCommand::Start::Failed) {
            m_errorString = errorOf(step);
            break;
        }
        --reached;
        if (start == UndoCommand::Start::Later) {
            QUndoStack::setIndex(reached);
            if (this->index() != reached) {
                return; // a receiver has pushed a command
            }
        }
    }
    QUndoStack::setIndex(reached);
}

void UndoStack::redo()
{
    endRun();
    if (canRedo()) {
        setIndex(index() + 1);
    }
}

void UndoStack::setIndex(int index)
{
    if (!isOpen()) {
        return;
    }
    if (index < this->index()) {
        undoTo(std::max(index, 0));
    } else {
        redoTo(std::min(index, count()));
    }
}

//! Stops before a command that cannot be redone.
void UndoStack::redoTo(int index)
{
    m_hasFailed = false;
    int reached = this->index();
    while (reached < index && canRedo()) {
        auto *step = const_cast<QUndoCommand *>(command(reached));
        const UndoCommand::Start start = UndoCommand::start(*step);
        if (start == UndoCommand::Start::Failed) {
            m_errorString = errorOf(step);
            break;
        }
        ++reached;
        if (start == UndoCommand::Start::Later) {
            moveForward(reached);
            if (m_hasFailed || this->index() != reached) {
                return; // it was dropped, or a receiver has pushed a command
            }
        }
    }
    moveForward(reached);
}

//! The redo() of commands that have been started does nothing; one of the others may fail.
void UndoStack::moveForward(int index)
{
    const int before = this->index();
    {
        const QScopedValueRollback<bool> isMoving(m_isMoving, true);
        QUndoStack::setIndex(index);
    }
    undoFailedMacro();
    while (m_hasFailed && canRedo()) {
        // QUndoStack deletes an obsolete command instead of doing it.
        QUndoStack::setIndex(this->index() + 1);
    }
    if (m_hasFailed && this->index() == before) {
        // QUndoStack emits these only when the index changes.
        emit canRedoChanged(canRedo());
        emit redoTextChanged(redoText());
    }
}

//! Handles a macro in which a command failed after Qt had done all the others.
bool UndoStack::undoFailedMacro()
{
    QUndoCommand *macro = std::exchange(m_failedMacro, nullptr);
    if (!macro) {
        return false;
    }
    macro->undo();
    macro->setObsolete(true);
    QUndoStack::undo();
    return true;
}

void UndoStack::commandFailed(const UndoCommand *command)
{
    m_hasFailed = true;
    m_errorString = command->errorString();
    int place = index();
    while (place < count() && !holds(this->command(place), command)) {
        ++place;
    }
    // The stack owns its commands, but QUndoStack only returns const pointers.
    const auto at = [this](int i) { return const_cast<QUndoCommand *>(this->command(i)); };
    if (place < count() && at(place) != command) {
        m_failedMacro = at(place);
    }
    for (++place; place < count(); ++place) {
        at(place)->setObsolete(true);
    }
}

void UndoStack::commandDeleted(const UndoCommand *command)
{
    if (m_lastPushed == command) {
        m_lastPushed = nullptr;
    }
    if (m_lastMoved == command) {
        m_lastMoved = nullptr;
    }
}

void UndoStack::startOver()
{
    deleteCandidates();
    const bool wasSaved = isSaved();
    m_failedMacro = nullptr;
    m_runTimer.stop();
    m_gesture.reset();
    m_isStartSaved = true;
    clear();
    m_previousIndex = 0;
    if (wasSaved) {
        emit savedChanged(true);
    }
}

DesignerObject *UndoStack::activeItem() const
{
    return m_activeItem;
}

void UndoStack::deleteCandidates()
{
    while (!m_deletionCandidates.isEmpty()) {
        // Objects that are back in the model may have been deleted with it.
        const QPointer<DesignerObject> candidate = m_deletionCandidates.takeFirst();
        if (candidate && !candidate->parent()) {
            delete candidate;
        }
    }
}

void UndoStack::cleanJunkFiles()
{
    for (int i = 0; i < count(); ++i) {
        // The stack owns its commands, but QUndoStack only returns const pointers.
        if (auto *known = const_cast<UndoCommand *>(dynamic_cast<const UndoCommand *>(command(i)))) {
            known->cleanJunkFiles();
        }
    }
}

bool UndoStack::keepFiles(Common::FileStore &store, QString &error)
{
    bool isKept = true;
    for (int i = 0; i < count() && isKept; ++i) {
        isKept = keepFilesOf(const_cast<QUndoCommand *>(command(i)), store, error);
    }
    return isKept;
}

const UndoCommand *UndoStack::decidingCommand(int index) const
{
    if (index == 0) {
        return nullptr;
    }
    return index == count() && m_lastPushed ? m_lastPushed
                                            : dynamic_cast<const UndoCommand *>(command(index - 1));
}

void UndoStack::onIndexChanged(int index)
{
    // Qt's actions, groups and views call the redo() of QUndoStack, which is not virtual.
    if (!m_isMoving && undoFailedMacro()) {
        // Other receivers would get the newer index before this one.
        QMetaObject::invokeMethod(
            this, [this] { emit indexChanged(this->index()); }, Qt::QueuedConnection);
        return;
    }
    if (index == m_currentIndex) {
        return;
    }
    m_previousIndex = m_currentIndex;
    m_currentIndex = index;

    const UndoCommand *deciding = decidingCommand(index);
    const UndoCommand::Deletion deletion = deciding ? deciding->deletion() : UndoCommand::Deletion::None;
    m_isDeleteScreen = deletion == UndoCommand::Deletion::Screen;
    m_isDeleteImage = deletion == UndoCommand::Deletion::Image;
    m_isDeleteVariable = deletion == UndoCommand::Deletion::Variable;
    m_activeItem = deciding ? deciding->activeItem() : nullptr;
    if (!m_isActiveItemSignalBlocked) {
        emit activeItemChanged(m_activeItem);
    }
    if (m_isStartSaved && index == 0) {
        emit savedChanged(true);
    } else if (m_isStartSaved && m_previousIndex == 0) {
        emit savedChanged(false);
    }
    // A macro is a command of Qt and returns the values of its first child.
    const QUndoCommand *last = command(isRedoToCurrentIndex() ? index - 1 : index);
    while (last && !dynamic_cast<const UndoCommand *>(last)) {
        last = last->childCount() > 0 ? last->child(0) : nullptr;
    }
    m_lastMoved = static_cast<const UndoCommand *>(last);
    if (last) {
        emit moved(m_lastMoved);
    }
}

} // namespace Halvane::Corvex::Designer
