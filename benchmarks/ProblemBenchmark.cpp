// SPDX-License-Identifier: MIT
// Edits of a project whose list of problems is updated after each edit, compared with the same edits without
// a list.
#include "corvex/checks/ProblemList.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"

#include "support/Projects.h"

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <optional>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Benchmarks;
using namespace Halvane::Corvex::Designer;

namespace {

enum class With { List, Nothing };

const ConfigurationContainer &models()
{
    HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA));
    return *HardwareConfigurations::instance()->installed();
}

//! A new text on the first screen, so that the edits are the same in all projects.
DesignerObject *addText(Project &project)
{
    DesignerObject *screen = project.screens()->getListItemAtIndex(0);
    DesignerObject *text = DesignerFactory::instance()->createObject(u"Text"_s);
    text->setParent(nullptr);
    text->setIdName(u"edited"_s);
    screen->addListPropertyItem(screen->getProperty(u"elements"), text);
    return text;
}

//! Texts, opacities and names in turn, each pushed and undone.
void edit(benchmark::State &state, const char *size, With with)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(QString::fromLatin1(size)));
    DesignerObject *element = addText(*project);
    std::optional<ProblemList> list;
    if (with == With::List) {
        list.emplace(*project, models());
        list->update();
    }
    int number = 0;
    const auto editAndUndo = [&] {
        IdentifierInfo name = element->getIdInfo();
        name.setName(u"edited%1"_s.arg(++number));
        const std::pair<const char16_t *, QString> edits[] = {{u"text", u"text %1"_s.arg(number)},
                                                              {u"opacity", QString::number(20 + number % 70)},
                                                              {u"id", name.toString()}};
        for (const auto &[id, value] : edits) {
            project->undoStack()->push(new ChangeProperty(element->getProperty(id), value, false));
            if (list) {
                list->update();
            }
            project->undoStack()->undo();
            if (list) {
                list->update();
            }
        }
    };
    editAndUndo(); // The first one makes the index of references.
    for (auto _ : state) {
        editAndUndo();
    }
}
BENCHMARK_CAPTURE(edit, L_with, "L", With::List)->Name("problems/L")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(edit, L_without, "L", With::Nothing)
    ->Name("problems/L/without")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(edit, M_with, "M", With::List)->Name("problems/M")->Unit(benchmark::kMicrosecond);

//! The memory of the list, once it is current.
void weighList(benchmark::State &state)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(u"L"_s));
    // Excludes data that the first check of a project allocates once.
    std::make_unique<ProblemList>(*project, models())->update();
    for (auto _ : state) {
        const auto before = mallinfo2().uordblks;
        ProblemList list(*project, models());
        list.update();
        const double bytes = double(mallinfo2().uordblks - before);
        state.counters["bytes"] = bytes / countsOf(projectFile(u"L"_s)).objects;
        state.counters["problems"] = double(list.count());
    }
}
BENCHMARK(weighList)->Name("problems/memory")->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
