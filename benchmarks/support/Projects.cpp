// SPDX-License-Identifier: MIT
#include "support/Projects.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include "ProjectBuilder.h"
#include "support/Process.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Benchmarks {

namespace {

const QString projectsFolder = QStringLiteral(CORVEX_BENCHMARK_FOLDER "/projects");
constexpr int visualScreens = 100;
constexpr int visualsPerScreen = 100;

QString pathOf(const QString &name)
{
    return u"%1/%2/%2.kdproj"_s.arg(projectsFolder, name);
}

bool isOlder(const QString &file, const QString &generator)
{
    const QFileInfo info(file);
    return !info.exists() || info.lastModified() < QFileInfo(generator).lastModified();
}

void require(bool done, const QString &work)
{
    if (!done) {
        qFatal("%s failed", qUtf8Printable(work));
    }
}

void prepareFactory()
{
    if (!DesignerFactory::instance()) {
        require(DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY)), u"loading the plug-ins"_s);
    }
}

void fillText(Examples::ProjectBuilder &builder, DesignerObject *text, int index)
{
    builder.set(text, "text", u"Level %1 of \"tank\""_s.arg(index));
    builder.set(text, "position", u"x: %1; y: %2;"_s.arg(index % 10 * 80).arg(index / 10 * 44));
    builder.set(text, "size", u"height: %1; width: 72;"_s.arg(20 + index % 20));
    builder.set(text, "color", u"#FF%1"_s.arg(0x102030 + index, 6, 16, QLatin1Char('0')).toUpper());
    builder.set(text, "opacity", QString::number(10 + index % 90));
    builder.set(text, "rotation", QString::number(index % 360));
    builder.set(text, "z", QString::number(index % 1000));
    if (index % 4 == 0) {
        builder.bind(text, "textBinding", u"concat(level, ' of ', speed)");
        builder.bind(text, "visibleBinding", u"level > 10");
    }
}

//! The generator cannot create a project that only contains texts.
void makeVisualProject(const QString &name)
{
    prepareFactory();
    require(HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA)), u"reading device models"_s);
    Examples::ProjectBuilder builder(name);
    builder.setModel(u"VTR 101-W"_s);
    builder.addVariable(u"NumberVariable"_s, u"level"_s, u"50"_s);
    builder.addVariable(u"NumberVariable"_s, u"speed"_s, u"12.5"_s);
    for (int i = 1; i <= visualScreens; ++i) {
        Screen *screen = builder.addScreen(u"screen%1"_s.arg(i));
        for (int k = 1; k <= visualsPerScreen; ++k) {
            fillText(builder, builder.addElement(screen, u"Text"_s, u"text%1"_s.arg(k)), k + i);
        }
    }
    builder.link(&builder.project(), "defaultScreen", u"screen1"_s);
    require(builder.problems().isEmpty(), builder.problems().join(u'\n'));
    QDir(QFileInfo(pathOf(name)).path()).removeRecursively();
    require(builder.project().createFile(projectsFolder), builder.project().fileError());
}

} // namespace

QString projectFile(const QString &size)
{
    const QString file = pathOf(u"Size"_s + size);
    const QString generator = tool(u"corvex-generate"_s);
    if (isOlder(file, generator)) {
        QDir().mkpath(projectsFolder);
        require(
            QProcess::execute(generator, {u"--size"_s, size, u"--name"_s, u"Size"_s + size, projectsFolder})
                == 0,
            u"generating a project of the size "_s + size);
    }
    return file;
}

QString visualProjectFile()
{
    const QString name = u"Visual"_s;
    if (isOlder(pathOf(name), tool(u"corvex-generate"_s))) {
        QDir().mkpath(projectsFolder);
        makeVisualProject(name);
    }
    return pathOf(name);
}

Counts countsOf(const QString &file)
{
    QFile source(file);
    require(source.open(QIODevice::ReadOnly), u"reading "_s + file);
    const QByteArray text = source.readAll();
    return {int(text.count("<Properties>")), int(text.count("<Property "))};
}

std::unique_ptr<Project> makeProject()
{
    prepareFactory();
    auto *project = static_cast<Project *>(DesignerFactory::instance()->createObject(Project::kindName()));
    project->setParent(nullptr);
    return std::unique_ptr<Project>(project);
}

std::unique_ptr<Project> loadProject(const QString &file)
{
    std::unique_ptr<Project> project = makeProject();
    require(project->loadFile(file), project->fileError());
    return project;
}

} // namespace Halvane::Corvex::Benchmarks
