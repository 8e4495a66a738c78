// SPDX-License-Identifier: MIT
// The tools from the user's view: whole processes, compared with other programs that do similar work.
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include "support/Counterparts.h"
#include "support/Process.h"
#include "support/Projects.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Benchmarks;
using namespace Halvane::Corvex::Designer;

namespace {

void start(benchmark::State &state, const QString &program, const QStringList &arguments)
{
    measureProcess(state, program, arguments);
}
BENCHMARK_CAPTURE(start, corvex, tool(u"corvex"_s), {u"--version"_s})->UseManualTime()->Iterations(50);
BENCHMARK_CAPTURE(start, QCoreApplication, QStringLiteral(CORVEX_BENCHMARK_FOLDER "/emptyApplication"), {})
    ->UseManualTime()
    ->Iterations(50);

//! A file that differs from its canonical form only at the very end, so that it is compared completely before
//! it is written.
QString fileToRewrite(const QString &size)
{
    const QString path = QStringLiteral(CORVEX_BENCHMARK_FOLDER "/projects/Rewritten/Rewritten.kdproj");
    QDir().mkpath(QFileInfo(path).path());
    QFile::remove(path);
    QFile::copy(projectFile(size), path);
    QFile file(path);
    if (!file.open(QIODevice::Append) || file.write("\n") != 1) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
    return path;
}

void rewriteProject(benchmark::State &state, const QString &size)
{
    measureProcess(state, tool(u"corvex"_s), {u"fmt"_s, fileToRewrite(size)},
                   [size] { fileToRewrite(size); });
}
BENCHMARK_CAPTURE(rewriteProject, corvex, u"L"_s)->Name("rewrite/corvex")->UseManualTime()->Iterations(1);
BENCHMARK_CAPTURE(rewriteProject, M, u"M"_s)->Name("rewrite/M")->UseManualTime()->Iterations(2);

//! Every tenth line renames an element and the others move one, cycling through all elements.
QString scriptOfEdits()
{
    constexpr int lineCount = 10'000;
    const QString path = QStringLiteral(CORVEX_BENCHMARK_FOLDER "/edits.txt");
    QStringList paths;
    const std::unique_ptr<Project> project = loadProject(projectFile(u"M"_s));
    for (const DesignerObject *screen : project->screens()->listItems()) {
        for (const Element *element :
             static_cast<const Screen *>(screen)->getElementsOfType(u"VisualElement"_s)) {
            if (element->ownerObject() == screen) {
                paths.append(element->objectPath());
            }
        }
    }
    QFile file(path);
    bool isWritten = file.open(QIODevice::WriteOnly) && !paths.isEmpty();
    for (int i = 0; isWritten && i < lineCount; ++i) {
        QString &target = paths[i % paths.size()];
        QString line = u"set %1.position x: %2; y: 7;\n"_s.arg(target, QString::number(i));
        if (i % 10 == 0) {
            const QString name = u"edited%1"_s.arg(i);
            line = u"rename %1 %2\n"_s.arg(target, name);
            target = target.section(u'.', 0, -2) + u'.' + name;
        }
        isWritten = file.write(line.toUtf8()) > 0;
    }
    if (!isWritten) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
    return path;
}

void editByScript(benchmark::State &state)
{
    measureProcess(state, tool(u"corvex"_s), {u"edit"_s, fileToRewrite(u"M"_s), scriptOfEdits()},
                   [] { fileToRewrite(u"M"_s); });
}
BENCHMARK(editByScript)->Name("edit/M")->UseManualTime()->Iterations(2);

void rewriteMap(benchmark::State &state)
{
    const QString map = makeMap(countsOf(projectFile(u"L"_s)));
    measureProcess(state, u"tiled"_s,
                   {u"--export-map"_s, u"tmx"_s, map, QStringLiteral(CORVEX_BENCHMARK_FOLDER "/copy.tmx")});
}
BENCHMARK(rewriteMap)->Name("rewrite/tiled")->UseManualTime()->Iterations(1);

void check(benchmark::State &state, const QString &size)
{
    measureProcess(state, tool(u"corvex"_s), {u"check"_s, projectFile(size)});
}
BENCHMARK_CAPTURE(check, L, u"L"_s)->UseManualTime()->Iterations(1);
BENCHMARK_CAPTURE(check, M, u"M"_s)->UseManualTime()->Iterations(2);

//! Loads the project and shows one screen of it.
void showScreen(benchmark::State &state)
{
    measureProcess(state, tool(u"corvex"_s), {u"tree"_s, projectFile(u"L"_s), u"Filling1"_s});
}
BENCHMARK(showScreen)->Name("open/L")->UseManualTime()->Iterations(1);

void build(benchmark::State &state, const QString &file)
{
    measureProcess(state, tool(u"corvex"_s),
                   {u"build"_s, file, u"-o"_s, QStringLiteral(CORVEX_BENCHMARK_FOLDER "/built")},
                   [] { QDir(QStringLiteral(CORVEX_BENCHMARK_FOLDER "/built")).removeRecursively(); });
}
void buildSize(benchmark::State &state, const QString &size)
{
    build(state, projectFile(size));
}
void buildVisuals(benchmark::State &state)
{
    build(state, visualProjectFile());
}
BENCHMARK_CAPTURE(buildSize, L, u"L"_s)->Name("build/L")->UseManualTime()->Iterations(1);
BENCHMARK_CAPTURE(buildSize, M, u"M"_s)->Name("build/M")->UseManualTime()->Iterations(2);
BENCHMARK(buildVisuals)->Name("build/visuals")->UseManualTime()->Iterations(2);

void buildForm(benchmark::State &state)
{
    const QString form = makeForm(10'000);
    measureProcess(state, QStringLiteral(CORVEX_UIC),
                   {form, u"-o"_s, QStringLiteral(CORVEX_BENCHMARK_FOLDER "/form.h")});
}
BENCHMARK(buildForm)->Name("build/uic")->UseManualTime()->Iterations(2);

} // namespace
