// SPDX-License-Identifier: MIT
// Edits of a project with their undo, compared with the minimum that an undo framework needs.
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/objects/DeleteObjectsAndCheckFilters.h"
#include "corvex/editing/commands/variables/RenameVariable.h"
#include "corvex/editing/references/ReferenceIndex.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include "support/Projects.h"

#include <QUndoStack>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Benchmarks;
using namespace Halvane::Corvex::Designer;

namespace {

constexpr int editCount = 100'000;
constexpr int deletedCount = 1000;
constexpr int referenceCount = 10;
constexpr int variableReferenceCount = 10'000;

DesignerObject *add(DesignerObject *owner, const SharedProperty &list, const QString &className,
                    const QString &name)
{
    DesignerObject *object = DesignerFactory::instance()->createObject(className);
    object->setParent(nullptr);
    object->setIdName(name);
    owner->addListPropertyItem(list, object);
    return object;
}

Screen *addScreen(Project &project)
{
    return static_cast<Screen *>(add(&project, project.screens(), u"Screen"_s, u"Bench"_s));
}

void walk(QUndoStack &stack)
{
    stack.setIndex(0);
    stack.setIndex(stack.count());
}

QString valueOf(int step)
{
    return u"a value of some length %1"_s.arg(step);
}

//! Swaps a text and does nothing else.
class SwapText : public QUndoCommand
{
public:
    SwapText(QString &target, const QString &value)
        : m_target(target)
        , m_value(value)
    { }
    void redo() override { std::swap(m_target, m_value); }
    void undo() override { std::swap(m_target, m_value); }

private:
    QString &m_target;
    QString m_value;
};

void editBareStack(benchmark::State &state)
{
    for (auto _ : state) {
        QString target;
        QUndoStack stack;
        for (int i = 0; i < editCount; ++i) {
            stack.push(new SwapText(target, valueOf(i)));
        }
        walk(stack);
    }
}
BENCHMARK(editBareStack)->Name("edit/QUndoStack")->Unit(benchmark::kMillisecond)->Iterations(1);

void editProject(benchmark::State &state)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(u"M"_s));
    Screen *screen = addScreen(*project);
    const SharedProperty text = add(screen, screen->elements(), u"Text"_s, u"edited"_s)->getProperty(u"text");
    for (auto _ : state) {
        for (int i = 0; i < editCount; ++i) {
            project->undoStack()->push(new ChangeProperty(text, valueOf(i), false));
        }
        walk(*project->undoStack());
        state.PauseTiming();
        project->createUndoStack();
        state.ResumeTiming();
    }
}
BENCHMARK(editProject)->Name("edit/ChangeProperty")->Unit(benchmark::kMillisecond)->Iterations(1);

//! Reads each value, as an index or a view model would do first.
class Watcher : public ModelObserver
{
public:
    void valueChanged(const SharedProperty &property, const QString &previousValue) override
    {
        m_count += property->id() == "text"_L1 && previousValue.isEmpty() ? 1 : 0;
    }

private:
    int m_count = 0;
};

void editObserved(benchmark::State &state, int observerCount)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(u"S"_s));
    Screen *screen = addScreen(*project);
    DesignerObject *edited = add(screen, screen->elements(), u"Text"_s, u"edited"_s);
    const SharedProperty text = edited->getProperty(u"text");
    std::vector<Watcher> watchers(static_cast<std::size_t>(observerCount));
    for (Watcher &watcher : watchers) {
        project->observers().add(&watcher);
    }
    for (auto _ : state) {
        for (int i = 0; i < editCount; ++i) {
            edited->changePropertyValue(text, valueOf(i));
        }
    }
}
BENCHMARK_CAPTURE(editObserved, none, 0)->Name("observe/none")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(editObserved, one, 1)->Name("observe/one")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(editObserved, five, 5)->Name("observe/five")->Unit(benchmark::kMillisecond);

void weighCommand(benchmark::State &state)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(u"S"_s));
    Screen *screen = addScreen(*project);
    const SharedProperty opacity =
        add(screen, screen->elements(), u"Text"_s, u"edited"_s)->getProperty(u"text");
    qint64 bytes = 0;
    for (auto _ : state) {
        // Existing texts, so that their memory is not counted.
        const QString values[] = {valueOf(1), valueOf(2)};
        const auto before = mallinfo2().uordblks;
        for (int i = 0; i < editCount; ++i) {
            project->undoStack()->push(new ChangeProperty(opacity, values[i % 2], false));
        }
        bytes = qint64(mallinfo2().uordblks - before) / editCount;
    }
    state.counters["bytes"] = double(bytes);
}
BENCHMARK(weighCommand)->Name("edit/memory")->Iterations(1);

void renameElement(benchmark::State &state, const char *size)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(QString::fromLatin1(size)));
    Screen *screen = addScreen(*project);
    DesignerObject *target = add(screen, screen->elements(), u"Rectangle"_s, u"target0"_s);
    for (int i = 0; i < referenceCount; ++i) {
        DesignerObject *user = add(screen, screen->elements(), u"Text"_s, u"user%1"_s.arg(i));
        user->changePropertyValue(user->getProperty(u"xBinding"), u"0306target0.x"_s);
    }
    ReferenceIndex::of(project.get());
    int number = 0;
    for (auto _ : state) {
        IdentifierInfo info = target->getIdInfo();
        info.setName(u"target%1"_s.arg(++number));
        project->undoStack()->push(new ChangeProperty(target->idProperty(), info.toString(), false));
    }
}
BENCHMARK_CAPTURE(renameElement, M, "M")->Name("rename/M")->Iterations(2000);
BENCHMARK_CAPTURE(renameElement, L, "L")->Name("rename/L")->Iterations(2000);

void renameVariable(benchmark::State &state)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(u"L"_s));
    DesignerObject *variable = add(project.get(), project->variables(), u"NumberVariable"_s, u"renamed0"_s);
    int count = 0;
    for (DesignerObject *screen : project->screens()->listItems()) {
        for (Element *element : static_cast<Screen *>(screen)->getElementsOfType(u"VisualElement"_s)) {
            const SharedProperty binding = element->getProperty(u"xBinding");
            if (binding && count < variableReferenceCount) {
                ++count;
                element->changePropertyValue(binding, u"0406renamed0"_s);
            }
        }
    }
    ReferenceIndex::of(project.get());
    int number = 0;
    for (auto _ : state) {
        project->undoStack()->push(new RenameVariable(variable, u"renamed%1"_s.arg(++number)));
    }
    state.counters["references"] = count;
}
BENCHMARK(renameVariable)->Name("rename/variable")->Unit(benchmark::kMillisecond)->Iterations(1);

void deleteElements(benchmark::State &state)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(u"M"_s));
    Screen *screen = addScreen(*project);
    ReferenceIndex::of(project.get());
    QList<DesignerObject *> elements;
    for (int i = 0; i < deletedCount; ++i) {
        elements.append(add(screen, screen->elements(), u"Rectangle"_s, u"deleted%1"_s.arg(i)));
    }
    for (auto _ : state) {
        project->undoStack()->push(new DeleteObjectsAndCheckFilters(elements, screen));
        project->undoStack()->undo();
    }
}
BENCHMARK(deleteElements)->Name("delete/1000")->Unit(benchmark::kMillisecond)->Iterations(1);

void addElements(benchmark::State &state)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(u"M"_s));
    Screen *screen = addScreen(*project);
    ReferenceIndex::of(project.get());
    for (auto _ : state) {
        auto *all = new UndoCommand;
        for (int i = 0; i < deletedCount; ++i) {
            new AddObject(screen->elements(), u"Rectangle"_s, u"added%1"_s.arg(i), false, all);
        }
        project->undoStack()->push(all);
    }
}
BENCHMARK(addElements)->Name("add/1000")->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
