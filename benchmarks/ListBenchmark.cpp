// SPDX-License-Identifier: MIT
// 50,000 items inserted into one list: one by one with the change protocol, and all at once from a file.
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/ObjectListProperty.h"
#include "corvex/project/Project.h"

#include "support/Projects.h"

#include <QTemporaryDir>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <random>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Benchmarks;
using namespace Halvane::Corvex::Designer;

namespace {

constexpr int itemCount = 50'000;

enum class Names { Rising, Shuffled };

QStringList names(Names order)
{
    QStringList names;
    for (int i = 1; i <= itemCount; ++i) {
        names.append(u"variable%1"_s.arg(i));
    }
    if (order == Names::Shuffled) {
        std::shuffle(names.begin(), names.end(), std::mt19937(1));
    }
    return names;
}

struct List
{
    const char *owner; //!< a class of the factory
    const char *id;
};
constexpr List ordered{"Project", "variables"}; //!< sorted by name
constexpr List plain{"UpdateObjects", "objects"};

std::unique_ptr<DesignerObject> makeOwner(const List &list)
{
    makeProject(); // creates the factory
    DesignerObject *owner = DesignerFactory::instance()->createObject(QString::fromLatin1(list.owner));
    owner->setParent(nullptr);
    return std::unique_ptr<DesignerObject>(owner);
}

void fill(DesignerObject &owner, const List &list, const QStringList &names)
{
    const SharedProperty property = owner.getProperty(QString::fromLatin1(list.id));
    for (const QString &name : names) {
        DesignerObject *item = DesignerFactory::instance()->createUnowned(u"NumberVariable"_s);
        item->setIdName(name);
        if (!owner.addListPropertyItem(property, item)) {
            qFatal("%s", qUtf8Printable(property->errorString()));
        }
    }
}

void add(benchmark::State &state, const List &list, Names order)
{
    const QStringList all = names(order);
    for (auto _ : state) {
        std::unique_ptr<DesignerObject> owner = makeOwner(list);
        fill(*owner, list, all);
        state.PauseTiming();
        owner.reset();
        state.ResumeTiming();
    }
}

//! A project without a configuration cannot be saved.
void complete(DesignerObject &owner)
{
    const SharedProperty slot = owner.getProperty(u"configuration");
    if (slot) {
        DesignerObject *configuration = DesignerFactory::instance()->createObject(u"Configuration"_s, &owner);
        configuration->setParent(nullptr);
        owner.changePropertyObjectValue(slot, configuration);
    }
}

void load(benchmark::State &state, const List &list, Names order)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"list.xml"_s);
    {
        const std::unique_ptr<DesignerObject> owner = makeOwner(list);
        complete(*owner);
        fill(*owner, list, names(order));
        DesignerObject::saveToFile(owner.get(), file);
    }
    for (auto _ : state) {
        std::unique_ptr<DesignerObject> owner = makeOwner(list);
        if (!DesignerObject::loadFromFile(owner.get(), file)) {
            state.SkipWithError("the file cannot be loaded");
        }
        state.PauseTiming();
        owner.reset();
        state.ResumeTiming();
    }
}

void options(benchmark::internal::Benchmark *benchmark)
{
    benchmark->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond)->Iterations(1);
}
BENCHMARK_CAPTURE(add, plain, plain, Names::Rising)->Apply(options);
BENCHMARK_CAPTURE(load, plain, plain, Names::Rising)->Name("fill/plain")->Apply(options);
BENCHMARK_CAPTURE(add, ordered, ordered, Names::Rising)->Apply(options);
BENCHMARK_CAPTURE(load, ordered, ordered, Names::Rising)->Name("fill/ordered")->Apply(options);
BENCHMARK_CAPTURE(add, shuffled, ordered, Names::Shuffled)->Apply(options);
BENCHMARK_CAPTURE(load, shuffled, ordered, Names::Shuffled)->Name("fill/shuffled")->Apply(options);

} // namespace
