// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/project/Project.h"
#include "corvex/project/ProjectNames.h"
#include "corvex/project/Screen.h"
#include "corvex/values/expressions/ExpressionText.h"

#include "support/Projects.h"

#include <benchmark/benchmark.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;
using namespace Halvane::Corvex::Benchmarks;

namespace {

constexpr size_t count = 100'000;

struct Expression
{
    ProjectNames names;
    ExpressionPurpose purpose;
    QString stored;
    QString readable;
};

void collect(const DesignerObject &object, std::vector<Expression> &expressions)
{
    for (const SharedProperty &property : object.properties()) {
        for (const DesignerObject *item : property->listItems()) {
            collect(*item, expressions);
        }
        const auto *typed = propertyCast<GeneralDataListProperty>(property.data());
        if (!typed || typed->value().isEmpty()) {
            continue;
        }
        const ProjectNames names(*object.project(), object.screen());
        const ExpressionPurpose purpose = typed->purpose();
        const QString text = ExpressionText::print(typed->value(), purpose, names);
        if (!text.isNull()) {
            expressions.push_back({names, purpose, typed->valueString(), text});
        }
    }
}

//! Those of the example project.
std::vector<Expression> expressionsOf(const Project &project)
{
    std::vector<Expression> expressions;
    collect(project, expressions);
    return expressions;
}

void readReadable(benchmark::State &state)
{
    const std::unique_ptr<Project> project =
        loadProject(QStringLiteral(CORVEX_EXAMPLES "/PumpStation/PumpStation.kdproj"));
    const std::vector<Expression> expressions = expressionsOf(*project);
    for ([[maybe_unused]] auto _ : state) {
        for (size_t i = 0; i < count; ++i) {
            const auto &[names, purpose, stored, readable] = expressions[i % expressions.size()];
            const ExpressionText::Reading reading = ExpressionText::read(readable, purpose, names);
            const QString text = ExpressionText::print(reading.terms, purpose, names);
            if (text.size() != readable.size()) {
                state.SkipWithError(qUtf8Printable(readable));
            }
        }
    }
}
BENCHMARK(readReadable)->Name("expressions/readable")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

void readTerms(benchmark::State &state)
{
    const std::unique_ptr<Project> project =
        loadProject(QStringLiteral(CORVEX_EXAMPLES "/PumpStation/PumpStation.kdproj"));
    const std::vector<Expression> expressions = expressionsOf(*project);
    for ([[maybe_unused]] auto _ : state) {
        for (size_t i = 0; i < count; ++i) {
            const QString &stored = expressions[i % expressions.size()].stored;
            if (GeneralDataList(stored).toString().size() != stored.size()) {
                state.SkipWithError(qUtf8Printable(stored));
            }
        }
    }
}
BENCHMARK(readTerms)->Name("expressions/terms")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

} // namespace
