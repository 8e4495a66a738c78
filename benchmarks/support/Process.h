// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <benchmark/benchmark.h>

namespace Halvane::Corvex::Benchmarks {

//! Runs a command once for each iteration of a benchmark that was declared with UseManualTime(): the time is
//! the command's own, and the counter "peak_bytes" is the most memory that it held. When the program is not
//! installed, the benchmark is skipped with the message "not installed: NAME"; when it ends with another
//! status than 0, with a message that tells the status.
void measureProcess(benchmark::State &state, const QString &program, const QStringList &arguments);

} // namespace Halvane::Corvex::Benchmarks
