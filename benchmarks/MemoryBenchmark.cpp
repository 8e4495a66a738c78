// SPDX-License-Identifier: MIT
// The memory of a project: the growth of the heap, divided by the number of objects created.
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ExpressionProperties.h"
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

//! The total memory of a loaded project, including objects and lists, per property.
void loadedProject(benchmark::State &state)
{
    const QString file = projectFile(u"L"_s);
    for (auto _ : state) {
        makeProject(); // creates everything that exists only once
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

//! An object with any number of properties from the same row.
class Holder : public DesignerObject
{
public:
    Holder(const PropertyRow &row, int propertyCount)
        : m_row(row)
        , m_propertyCount(propertyCount)
    {
        initialize();
    }

    //! One class for each number of properties, because objects of one class all take as much memory as the
    //! largest of them.
    QString className() const override { return u"Holder%1%2"_s.arg(m_row.id()).arg(m_propertyCount); }
    QStringList classNames() const override { return DesignerObject::classNames() << className(); }

protected:
    ObjectView *createGraphicsItem() override { return nullptr; }
    bool initializeProperties() override
    {
        if (!DesignerObject::initializeProperties()) {
            return false;
        }
        for (int i = 0; i < m_propertyCount; ++i) {
            addProperty(m_row.make(this));
        }
        return true;
    }

private:
    PropertyRow m_row;
    int m_propertyCount;
};

double bytesOfHolders(const PropertyRow &row, int propertyCount)
{
    constexpr int holderCount = 100;
    std::vector<std::unique_ptr<Holder>> holders(holderCount);
    const Holder first(row, propertyCount);
    const double before = heapBytes();
    for (std::unique_ptr<Holder> &holder : holders) {
        holder = std::make_unique<Holder>(row, propertyCount);
    }
    return (heapBytes() - before) / holderCount;
}

//! One more property of an object: its total memory, including its place in the object's list and the empty
//! value.
void property(benchmark::State &state, const PropertyRow &row)
{
    // Together with the identifier they fill their list exactly, like the list of a class whose size is
    // known.
    constexpr int few = 126;
    constexpr int many = 1022;
    for (auto _ : state) {
        state.counters["bytes"] = (bytesOfHolders(row, many) - bytesOfHolders(row, few)) / (many - few);
    }
}
BENCHMARK_CAPTURE(property, boolean, row<BooleanProperty>("boolean", "A", true))->Iterations(1);
BENCHMARK_CAPTURE(property, real, row<RealProperty>("real", "A", 0.5))->Iterations(1);
BENCHMARK_CAPTURE(property, text, row<StringProperty>("text", "A", QString()))->Iterations(1);
BENCHMARK_CAPTURE(property, expression, row<GeneralDataListProperty>("expression", "A", GeneralDataList()))
    ->Iterations(1);

} // namespace
