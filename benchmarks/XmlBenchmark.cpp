// SPDX-License-Identifier: MIT
// Loading and saving within one process, compared with passing the same bytes through Qt's reader and writer.
#include "corvex/project/Project.h"

#include "support/Projects.h"

#include <QFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <benchmark/benchmark.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Benchmarks;
using Halvane::Corvex::Designer::Project;

namespace {

void load(benchmark::State &state, const char *size)
{
    const QString file = projectFile(QString::fromLatin1(size));
    for (auto _ : state) {
        std::unique_ptr<Project> project = loadProject(file);
        state.PauseTiming();
        project.reset();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(load, L, "L")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(load, M, "M")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond)->Iterations(4);

//! Reads every token and evaluates nothing.
void readTokens(benchmark::State &state)
{
    const QString path = projectFile(u"L"_s);
    for (auto _ : state) {
        QFile file(path);
        QXmlStreamReader reader;
        if (file.open(QIODevice::ReadOnly)) {
            reader.setDevice(&file);
        }
        while (!reader.atEnd()) {
            benchmark::DoNotOptimize(reader.readNext());
        }
        if (reader.hasError()) {
            state.SkipWithError(qPrintable(reader.errorString()));
        }
    }
}
BENCHMARK(readTokens)
    ->Name("load/QXmlStreamReader")
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

void save(benchmark::State &state, const char *size)
{
    const std::unique_ptr<Project> project = loadProject(projectFile(QString::fromLatin1(size)));
    for (auto _ : state) {
        if (!project->saveFile()) {
            state.SkipWithError(qPrintable(project->fileError()));
        }
    }
}
BENCHMARK_CAPTURE(save, L, "L")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(save, M, "M")->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond)->Iterations(4);

//! One tag of the file: a start tag with its attributes, or an end tag.
struct Tag
{
    bool isStart;
    QString element;
    QString name;
    QString value;
};

std::vector<Tag> tagsOf(const QString &path)
{
    std::vector<Tag> tags;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return tags;
    }
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            const QXmlStreamAttributes attributes = reader.attributes();
            tags.push_back({true, reader.name().toString(), attributes.value("name"_L1).toString(),
                            attributes.value("value"_L1).toString()});
        } else if (reader.isEndElement()) {
            tags.push_back({false, {}, {}, {}});
        }
    }
    return tags;
}

//! Writes the file of the project from prepared tags.
void writeTags(benchmark::State &state)
{
    const QString path = projectFile(u"L"_s);
    const std::vector<Tag> tags = tagsOf(path);
    for (auto _ : state) {
        QFile file(path + u".copy"_s);
        if (!file.open(QIODevice::WriteOnly)) {
            state.SkipWithError(qPrintable(file.errorString()));
        }
        QXmlStreamWriter writer(&file);
        writer.setAutoFormatting(true);
        writer.setAutoFormattingIndent(1);
        writer.writeStartDocument();
        for (const Tag &tag : tags) {
            if (!tag.isStart) {
                writer.writeEndElement();
                continue;
            }
            writer.writeStartElement(tag.element);
            if (!tag.name.isNull()) {
                writer.writeAttribute(u"name"_s, tag.name);
            }
            if (!tag.value.isNull()) {
                writer.writeAttribute(u"value"_s, tag.value);
            }
        }
        writer.writeEndDocument();
    }
    QFile::remove(path + u".copy"_s);
}
BENCHMARK(writeTags)
    ->Name("save/QXmlStreamWriter")
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

} // namespace
