// SPDX-License-Identifier: MIT
#include "support/Process.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Benchmarks {

void measureProcess(benchmark::State &state, const QString &program, const QStringList &arguments,
                    const std::function<void()> &prepare)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) {
        state.SkipWithError(qPrintable(u"not installed: %1"_s.arg(QFileInfo(program).fileName())));
        return;
    }
    double processor = 0;
    double peak = 0;
    for (auto _ : state) {
        if (prepare) {
            prepare();
        }
        QProcess measure;
        measure.start(QStringLiteral(CORVEX_BENCHMARK_FOLDER "/measure"), QStringList(path) + arguments);
        measure.waitForFinished(-1);
        const QList<QByteArray> result = measure.readAllStandardOutput().simplified().split(' ');
        if (result.size() != 4 || result.at(0) != "0") {
            const QString shown = QString::fromLocal8Bit(result.join(' '));
            state.SkipWithError(qPrintable(u"%1 failed: %2"_s.arg(QFileInfo(program).fileName(), shown)));
            break;
        }
        state.SetIterationTime(result.at(1).toDouble());
        processor += result.at(2).toDouble();
        peak = std::max(peak, result.at(3).toDouble());
    }
    state.counters["cpu"] = benchmark::Counter(processor, benchmark::Counter::kAvgIterations);
    state.counters["peak_bytes"] = peak;
}

QString tool(const QString &name)
{
    return QStringLiteral(CORVEX_TOOL_FOLDER "/") + name;
}

} // namespace Halvane::Corvex::Benchmarks
