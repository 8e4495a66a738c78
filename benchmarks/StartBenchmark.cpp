// SPDX-License-Identifier: MIT
#include "support/Process.h"

using namespace Qt::StringLiterals;
using Halvane::Corvex::Benchmarks::measureProcess;

namespace {

void startTool(benchmark::State &state)
{
    measureProcess(state, QStringLiteral(CORVEX_TOOL_FOLDER "/corvex"), {u"--version"_s});
}
BENCHMARK(startTool)->Name("start/work")->UseManualTime()->Iterations(50);

void startEmptyApplication(benchmark::State &state)
{
    measureProcess(state, QStringLiteral(CORVEX_BENCHMARK_FOLDER "/emptyApplication"), {});
}
BENCHMARK(startEmptyApplication)->Name("start/reference")->UseManualTime()->Iterations(50);

} // namespace
