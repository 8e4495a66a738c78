// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/editing/undo/UndoStack.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QUndoGroup>

#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

DesignerObject *make(const char *className)
{
    if (!DesignerFactory::instance()) {
        DesignerFactory::createInstance(QCoreApplication::applicationDirPath());
    }
    DesignerObject *object = DesignerFactory::instance()->createObject(QString::fromLatin1(className));
    object->setParent(nullptr);
    return object;
}

struct ClosedGate : EditGate
{
    bool mayEdit(QString &reason) override { return reason = u"A build runs."_s, false; }
    bool mayValidate() const override { return false; }
};

//! A command with configurable answers that counts its calls.
class Step : public UndoCommand
{
public:
    using UndoCommand::UndoCommand;

    void undo() override { count(-1); }
    void redo() override { count(1); }
    void count(int by)
    {
        done += by;
        if (total) {
            *total += by;
        }
    }
    DesignerObject *deletionCandidate() const override { return candidate; }
    DesignerObject *activeItem() const override { return active; }
    Deletion deletion() const override { return kind; }

    DesignerObject *candidate = nullptr;
    DesignerObject *active = nullptr;
    Deletion kind = Deletion::None;
    int done = 0;
    int *total = nullptr; //!< for commands that may be deleted before the check
};

//! A command that fails on request.
class Fallible : public Step
{
public:
    using Step::Step;

    void redo() override { fails ? fail() : Step::redo(); }
    QString errorString() const override { return u"The disk is full."_s; }

    bool fails = true;
};

//! A command that can be done and undone once, unless it is stuck.
class Reversible : public Step
{
public:
    using Step::Step;

    void undo() override { startUndo(); }
    void redo() override { start(); }
    Start start() override
    {
        count(isStuck || done == 1 ? 0 : 1);
        return isStuck ? Start::Failed : Start::Done;
    }
    Start startUndo() override
    {
        count(isStuck || done == 0 ? 0 : -1);
        return isStuck ? Start::Failed : Start::Done;
    }
    QString errorString() const override { return isStuck ? u"The file is gone."_s : QString(); }

    bool isStuck = false;
};

} // namespace

TEST(UndoStackTest, TheIndexStaysAtACommandThatCannotBeUndoneOrRedone)
{
    UndoStack stack;
    QList<Reversible *> firsts;
    QList<Reversible *> others;
    const auto makeBoth = [&](UndoCommand *parent) {
        firsts.append(new Reversible({}, false, parent));
        others.append(new Reversible({}, false, parent));
    };
    auto *composite = new UndoCommand;
    makeBoth(composite);
    EXPECT_TRUE(stack.push(composite));
    makeBoth(nullptr);
    EXPECT_TRUE(stack.beginGesture(u"gesture"_s) && stack.push(firsts[1]) && stack.push(others[1]));
    EXPECT_TRUE(stack.commitGesture());
    makeBoth(nullptr);
    stack.beginMacro(u"macro"_s);
    EXPECT_TRUE(stack.push(firsts[2]) && stack.push(others[2]));
    stack.endMacro();
    for (int index = 3; index > 0; --index) {
        firsts[index - 1]->isStuck = true;
        stack.setIndex(0);
        EXPECT_EQ(stack.index(), index);
        EXPECT_EQ(stack.errorString(), u"The file is gone."_s);
        EXPECT_EQ(others[index - 1]->done, 1) << "it is done again";
        firsts[index - 1]->isStuck = false;
        stack.undo();
        EXPECT_EQ(stack.index(), index - 1);
        EXPECT_EQ(firsts[index - 1]->done + others[index - 1]->done, 0);
    }
    for (int index = 0; index < 3; ++index) {
        others[index]->isStuck = true;
        stack.setIndex(3);
        EXPECT_EQ(stack.index(), index);
        EXPECT_EQ(stack.count(), 3) << "all steps remain";
        EXPECT_EQ(firsts[index]->done, 0) << "it is undone again";
        others[index]->isStuck = false;
        stack.redo();
        EXPECT_EQ(stack.index(), index + 1);
        EXPECT_EQ(firsts[index]->done + others[index]->done, 2);
    }
}

TEST(UndoStackTest, AFailedCommandIsDroppedWithAllThatDependOnIt)
{
    UndoStack stack;
    const QSignalSpy saved(&stack, &UndoStack::savedChanged);
    EXPECT_FALSE(stack.push(new Fallible));
    EXPECT_EQ(stack.errorString(), u"The disk is full."_s);
    EXPECT_EQ(stack.count(), 0);
    EXPECT_TRUE(stack.isSaved());
    EXPECT_EQ(saved.size(), 0);

    // A composite undoes its other children. One that was already done fails when it is redone.
    auto *first = new Step;
    auto *late = new UndoCommand;
    new Step({}, false, late);
    auto *fallible = new Fallible({}, false, late);
    fallible->fails = false;
    EXPECT_TRUE(stack.push(first) && stack.push(late) && stack.push(new Step));
    stack.setIndex(0);
    fallible->fails = true;
    const QSignalSpy canRedo(&stack, &UndoStack::canRedoChanged);
    stack.setIndex(1);
    stack.redo();
    EXPECT_EQ(first->done, 1);
    EXPECT_EQ(stack.count(), 1);
    EXPECT_EQ(stack.index(), 1);
    EXPECT_FALSE(canRedo.constLast().constFirst().toBool());
}

TEST(UndoStackTest, AGestureCommitsCommandsThatAreDone)
{
    UndoStack stack;
    ASSERT_TRUE(stack.beginGesture(u"Drag"_s));
    auto *step = new Step;
    ASSERT_TRUE(stack.push(step));
    ClosedGate gate;
    stack.setGate(&gate);
    EXPECT_FALSE(stack.push(new Step));
    EXPECT_EQ(stack.errorString(), u"A build runs."_s);
    EXPECT_TRUE(stack.commitGesture());
    EXPECT_EQ(stack.count(), 1);
    EXPECT_EQ(step->done, 1);
}

TEST(UndoStackTest, ARunEndsByItself)
{
    UndoStack stack;
    const QSignalSpy canUndo(&stack, &UndoStack::canUndoChanged);
    const auto run = [&stack](const char *text, UndoCommand *command = new Step) {
        return stack.pushInRun(QString::fromLatin1(text), command, 20);
    };
    const auto texts = [&stack] {
        QStringList all;
        for (int i = 0; i < stack.count(); ++i) {
            all.append(stack.text(i));
        }
        return all.join(u' ');
    };
    auto *first = new Step;
    EXPECT_TRUE(run("Nudge", first) && run("Nudge") && run("Nudge"));
    EXPECT_EQ(stack.count(), 0);
    EXPECT_TRUE(canUndo.constLast().constFirst().toBool()) << "an action may undo it at once";
    EXPECT_TRUE(QTest::qWaitFor([&stack] { return stack.count() == 1; }));
    EXPECT_FALSE(stack.isInRun());

    // Also before anything else.
    EXPECT_TRUE(run("Nudge") && run("Wheel") && stack.push(new Step) && run("Nudge"));
    EXPECT_EQ(texts(), u"Nudge Nudge Wheel "_s);
    stack.undo();
    EXPECT_EQ(texts(), u"Nudge Nudge Wheel  Nudge"_s);
    EXPECT_EQ(stack.index(), 4);
    EXPECT_TRUE(run("Wheel"));
    stack.setIndex(0);
    EXPECT_EQ(first->done, 0);
    EXPECT_EQ(texts(), u"Nudge Nudge Wheel  Wheel"_s);
    auto *fallible = new Fallible;
    EXPECT_FALSE(run("Nudge", fallible));
    EXPECT_EQ(stack.errorString(), u"The disk is full."_s);
    EXPECT_TRUE(stack.beginGesture(u"Drag"_s) && run("Nudge") && stack.hasGesture());
    EXPECT_TRUE(stack.commitGesture());
    EXPECT_EQ(texts(), u"Drag"_s);
}

TEST(UndoStackTest, AGestureDoesNotEndWhileItsCommandIsDone)
{
    //! Does what receivers of a command's signals may do.
    class Meddling : public Step
    {
    public:
        void redo() override
        {
            stack->endRun();
            isEnded = stack->commitGesture() || stack->rollBackGesture() || stack->isOpen();
            Step::redo();
        }
        UndoStack *stack = nullptr;
        bool isEnded = false;
    };
    UndoStack stack;
    auto *command = new Meddling;
    command->stack = &stack;
    ASSERT_TRUE(stack.pushInRun(u"Move"_s, command));
    EXPECT_FALSE(command->isEnded);
    stack.endRun();
    EXPECT_EQ(stack.count(), 1);
    EXPECT_EQ(command->done, 1);
}

TEST(UndoStackTest, AFailedMacroIsUndoneAsAWhole)
{
    UndoStack stack;
    QUndoGroup group; // It calls the redo of QUndoStack, which is not virtual.
    group.addStack(&stack);
    group.setActiveStack(&stack);
    auto *before = new Step;
    auto *fallible = new Fallible;
    fallible->fails = false;
    auto *after = new Step;
    int done = 0;
    before->total = after->total = &done;
    stack.push(new Step);
    stack.beginMacro(u"m"_s);
    EXPECT_TRUE(stack.push(before) && stack.push(fallible) && stack.push(after));
    stack.endMacro();
    stack.push(new Step);
    stack.setIndex(1);
    fallible->fails = true;
    stack.redo();
    EXPECT_EQ(done, 0);
    EXPECT_EQ(stack.errorString(), u"The disk is full."_s);
    EXPECT_EQ(stack.count(), 1);
    EXPECT_EQ(stack.index(), 1);
    EXPECT_FALSE(stack.canRedo());

    for (const bool startsOver : {false, true}) {
        auto *again = new Fallible;
        again->fails = false;
        stack.beginMacro(u"m"_s);
        EXPECT_TRUE(stack.push(again));
        stack.endMacro();
        stack.undo();
        again->fails = true;
        group.redo();
        EXPECT_EQ(stack.index(), 1);
        EXPECT_EQ(stack.count(), 1);
        if (startsOver) {
            stack.startOver();
        }
        EXPECT_TRUE(stack.push(new Step));
        stack.undo();
        stack.redo();
        EXPECT_EQ(stack.index(), startsOver ? 1 : 2);
        stack.setIndex(startsOver ? 0 : 1);
    }
}

TEST(UndoStackTest, NoMoveUsesADeletedCommand)
{
    const std::unique_ptr<DesignerObject> screen(make("Screen"));
    UndoStack stack;
    const auto push = [&] {
        auto *step = new Step(screen->idProperty(), false, nullptr);
        step->active = screen.get();
        EXPECT_TRUE(stack.push(step));
    };
    const std::function<void()> ways[] = {
        [&] { stack.undo(); },
        [&] { stack.clear(); },
        [&] {
            stack.beginMacro(u"cleared"_s);
            push();
            stack.clear();
        },
        [&] {
            stack.beginMacro(u"outer"_s);
            stack.beginMacro(u"inner"_s);
            push();
            stack.endMacro();
            stack.endMacro();
            EXPECT_EQ(stack.activeItem(), screen.get());
            stack.undo();
        },
    };
    for (const auto &loseIt : ways) {
        push();
        push();
        loseIt();
        stack.setIndex(0);
        stack.beginMacro(u"empty"_s);
        stack.endMacro();
        EXPECT_EQ(stack.activeItem(), nullptr);
        stack.startOver();
    }
}

TEST(UndoStackTest, MovesReportSavedStateDirectionAndActiveItem)
{
    const std::unique_ptr<DesignerObject> first(make("Screen"));
    const std::unique_ptr<DesignerObject> second(make("Screen"));
    UndoStack stack;
    const QSignalSpy saved(&stack, &UndoStack::savedChanged);
    const QSignalSpy active(&stack, &UndoStack::activeItemChanged);
    auto *one = new Step;
    one->active = first.get();
    auto *two = new Step;
    two->active = second.get();
    two->kind = UndoCommand::Deletion::Image;
    auto *three = new Step;
    three->kind = UndoCommand::Deletion::Screen;
    stack.push(one);
    EXPECT_EQ(stack.activeItem(), first.get());
    stack.push(two);
    EXPECT_TRUE(stack.isDeleteImage());
    stack.push(three);
    EXPECT_TRUE(stack.isDeleteScreen());
    EXPECT_FALSE(stack.isDeleteImage());
    EXPECT_EQ(stack.activeItem(), nullptr);
    EXPECT_TRUE(stack.isRedoToCurrentIndex());

    stack.undo();
    EXPECT_EQ(stack.activeItem(), second.get()) << "the command that is the last now decides";
    EXPECT_TRUE(stack.isDeleteImage());
    EXPECT_TRUE(stack.isUndoToCurrentIndex());
    EXPECT_EQ(stack.previousIndex(), 3);
    stack.redo();
    EXPECT_TRUE(stack.isDeleteScreen());

    EXPECT_EQ(saved.size(), 1);
    stack.setIndex(0);
    EXPECT_TRUE(stack.isSaved());
    EXPECT_EQ(stack.activeItem(), nullptr);
    stack.redo();
    ASSERT_EQ(saved.size(), 3);
    EXPECT_EQ(saved.at(0).at(0), false);
    EXPECT_EQ(saved.at(1).at(0), true);
    EXPECT_EQ(saved.at(2).at(0), false);

    const qsizetype told = active.size();
    stack.blockActiveItemChangedSignal(true);
    stack.redo();
    EXPECT_EQ(active.size(), told);
    EXPECT_EQ(stack.activeItem(), second.get());
    EXPECT_TRUE(stack.isDeleteImage());
}

TEST(UndoStackTest, CandidatesAreDeletedOnceAndOnlyOutsideOfTheModel)
{
    QPointer<DesignerObject> lost(make("Screen"));
    QPointer<DesignerObject> back(make("Screen"));
    QObject model;
    back->setParent(&model);
    auto *gone = make("Screen");
    {
        UndoStack stack;
        for (DesignerObject *candidate : {lost.data(), lost.data(), back.data(), gone}) {
            auto *step = new Step;
            step->candidate = candidate;
            step->active = candidate;
            stack.push(step);
        }
        delete gone;
        EXPECT_EQ(stack.activeItem(), nullptr);
    }
    EXPECT_FALSE(lost);
    EXPECT_TRUE(back);
}

TEST(UndoStackTest, LeavesAnswerFromTheirPropertyAndCompositesFromTheirChildren)
{
    const std::unique_ptr<DesignerObject> screen(make("Screen"));
    const std::unique_ptr<DesignerObject> image(make("ImageResource"));
    EXPECT_FALSE(UndoCommand().isValid());

    UndoCommand composite;
    EXPECT_EQ(composite.screen(), nullptr);
    auto *first = new Step(screen->idProperty(), true, &composite);
    first->active = screen.get();
    auto *again = new UndoCommand(screen->getProperty(u"color"), true, &composite);
    new UndoCommand(SharedProperty(), true, &composite);
    new UndoCommand(image->idProperty(), false, &composite);
    EXPECT_TRUE(composite.isValid()) << "the first child decides";
    EXPECT_EQ(composite.selectedItems(), QList<DesignerObject *>({screen.get()})) << "each object once";
    EXPECT_EQ(composite.activeItem(), screen.get());
    EXPECT_EQ(composite.idProperty(), screen->idProperty().data());
    EXPECT_EQ(composite.screen(), screen->screen());
    EXPECT_EQ(first->parentCommand(), &composite);
    EXPECT_EQ(again->idProperty(), nullptr);
    composite.redo();
    EXPECT_EQ(first->done, 1);
    composite.undo();
    EXPECT_EQ(first->done, 0);

    UndoCommand bad;
    new QUndoCommand(&bad);
    EXPECT_FALSE(bad.isValid());
    EXPECT_TRUE(bad.selectedItems().isEmpty());
}

} // namespace Halvane::Corvex::Designer
