// SPDX-License-Identifier: MIT
#include "corvex/project/Project.h"
#include "corvex/runtime/RuntimeConfiguration.h"

#include "support/Projects.h"

#include <QDataStream>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;
using namespace Halvane::Corvex::Benchmarks;

namespace {

void writeConfiguration(benchmark::State &state)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(u"L"_s));
    const QTemporaryDir folder;
    for ([[maybe_unused]] auto _ : state) {
        RuntimeConfiguration configuration;
        QString error;
        if (!configuration.collect(*project, &error) || !configuration.write(folder.path(), &error)) {
            state.SkipWithError(qUtf8Printable(error));
        }
    }
}
BENCHMARK(writeConfiguration)
    ->Name("configuration/L")
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

void writeMaps(benchmark::State &state)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(u"L"_s));
    RuntimeConfiguration configuration;
    QString error;
    if (!configuration.collect(*project, &error)) {
        state.SkipWithError(qUtf8Printable(error));
    }
    const QVariant maps[] = {configuration.canMap(), configuration.bacnetMap(), configuration.configMap()};
    const QTemporaryDir folder;
    for ([[maybe_unused]] auto _ : state) {
        for (const QVariant &map : maps) {
            QFile file(folder.filePath(u"map"_s));
            if (!file.open(QIODevice::WriteOnly)) {
                state.SkipWithError(qUtf8Printable(file.errorString()));
            }
            QDataStream stream(&file);
            stream.setVersion(QDataStream::Qt_4_7);
            stream << map;
        }
    }
}
BENCHMARK(writeMaps)
    ->Name("configuration/QDataStream")
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
