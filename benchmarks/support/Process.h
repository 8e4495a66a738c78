// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <benchmark/benchmark.h>
#include <functional>

namespace Halvane::Corvex::Benchmarks {

/*! Runs a command once for each iteration of a benchmark that was declared with UseManualTime(): the time is
    the command's own. The counter "cpu" is the processor time that it used, in seconds, and "peak_bytes" the
    most memory that it held. \a prepare runs before each command and is not measured. When the program is not
    installed, the benchmark is skipped with the message "not installed: NAME"; when it ends with another
    status than 0, with a message that tells the status. */
void measureProcess(benchmark::State &state, const QString &program, const QStringList &arguments,
                    const std::function<void()> &prepare = {});

//! The path of one of the tools of this build ("corvex").
QString tool(const QString &name);

} // namespace Halvane::Corvex::Benchmarks
