// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <benchmark/benchmark.h>
#include <functional>

namespace Halvane::Corvex::Benchmarks {

/*! Runs a command once for each iteration of a benchmark that was declared with UseManualTime(), and measures
    its time. The counter "cpu" is its processor time in seconds, and "peak_bytes" its peak memory. \a prepare
    runs before each command and is not measured. If the program is not installed, the benchmark is skipped
    with the message "not installed: NAME"; if it fails, with a message that contains its exit status.
*/
void measureProcess(benchmark::State &state, const QString &program, const QStringList &arguments,
                    const std::function<void()> &prepare = {});

//! The path of a tool in this build ("corvex").
QString tool(const QString &name);

} // namespace Halvane::Corvex::Benchmarks
