// SPDX-License-Identifier: MIT
// What a project costs in memory: the growth of the heap, shared out over what was made.
#include "corvex/project/Project.h"

#include "support/Projects.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Benchmarks;
using namespace Halvane::Corvex::Designer;

namespace {

double heapBytes()
{
    const auto info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

struct Sums
{
    qint64 objects = 0;
    qint64 properties = 0;
    qint64 textBytes = 0; //!< of the values, in UTF-8
};

void count(const DesignerObject &object, Sums &sums)
{
    ++sums.objects;
    for (const SharedProperty &property : object.properties()) {
        ++sums.properties;
        if (!property->isList() && !property->isObject()) {
            sums.textBytes += property->valueString().toUtf8().size();
        }
    }
    for (const DesignerObject *child : object.childObjects()) {
        count(*child, sums);
    }
}

//! All that a loaded project holds, objects and lists included, by its properties.
void loadedProject(benchmark::State &state)
{
    const QString file = projectFile(u"L"_s);
    for (auto _ : state) {
        makeProject(); // for what is made once and stays
        const double before = heapBytes();
        const std::unique_ptr<Project> project = loadProject(file);
        const double grown = heapBytes() - before;
        Sums sums;
        count(*project, sums);
        const auto properties = double(sums.properties);
        state.counters["objects"] = double(sums.objects);
        state.counters["properties"] = properties;
        state.counters["value"] = double(sums.textBytes) / properties;
        state.counters["beside"] = (grown - double(sums.textBytes)) / properties;
    }
}
BENCHMARK(loadedProject)->Name("memory/L")->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
