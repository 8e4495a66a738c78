// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/FileNameRules.h"

#include "ProjectGenerator.h"
#include "PumpStation.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex;
using Designer::Project;

namespace {

enum ExitCode { Done = 0, Faulty = 1, WrongUsage = 2, FileTrouble = 3 };

ExitCode fail(ExitCode code, const QString &message)
{
    QTextStream(stderr) << "corvex-generate: " << message << '\n';
    return code;
}

//! The contents of the command line.
struct Order
{
    QString parentFolder;
    QString name;
    Examples::ProjectSize size;
    quint64 seed = 1;
    bool isPumpStation = false;
};

//! Parses the command line into \a order. Returns an error, or an empty text.
QString read(const QCommandLineParser &line, Order &order)
{
    if (line.positionalArguments().size() != 1) {
        return u"Give exactly one folder, in which the project's folder is created."_s;
    }
    order.parentFolder = line.positionalArguments().first();
    order.isPumpStation = line.isSet(u"pump-station"_s);
    order.name = order.isPumpStation ? u"PumpStation"_s : line.value(u"name"_s);
    const QString nameError = Designer::FileNameRules::projectNameError(order.name);
    if (!nameError.isEmpty()) {
        return nameError;
    }
    const auto named = Examples::ProjectSize::named(line.value(u"size"_s));
    if (!named) {
        return u"The sizes are S, M and L."_s;
    }
    order.size = *named;
    bool areNumbers = true;
    order.seed = line.value(u"seed"_s).toULongLong(&areNumbers);
    for (const auto &[option, count] :
         {std::pair{u"screens"_s, &order.size.screens}, std::pair{u"variables"_s, &order.size.variables},
          std::pair{u"elements"_s, &order.size.elements}}) {
        bool isNumber = true;
        *count = line.isSet(option) ? line.value(option).toInt(&isNumber) : *count;
        areNumbers = areNumbers && isNumber;
    }
    return areNumbers ? order.size.problem() : u"Seed and counts must be numbers."_s;
}

//! Writes the project and its images into the project's own folder; replaces an existing project.
bool write(Project &project, const Order &order)
{
    const QString folder = order.parentFolder + u'/' + project.createSubPath();
    const QString images = folder + "/Images"_L1;
    if (!QDir().mkpath(images)) {
        return false;
    }
    if (order.isPumpStation ? !Examples::PumpStation::writeImages(images)
                            : !Examples::ProjectGenerator::writeImages(images)) {
        return false;
    }
    if (!project.fileExists(order.parentFolder)) {
        return project.createFile(order.parentFolder);
    }
    project.setFileFields(order.parentFolder, project.createSubPath(), project.createFileName());
    project.updateBuildVersion();
    return project.saveFile();
}

//! The errors of an object and of everything below it, each with its place.
void collectErrors(const Designer::DesignerObject &object, QStringList &errors)
{
    for (const QString &error : object.validationErrors()) {
        errors.append(u"%1: %2"_s.arg(object.objectPath(), error));
    }
    for (const Designer::DesignerObject *child : object.childObjects()) {
        collectErrors(*child, errors);
    }
}

ExitCode carryOut(const Order &order)
{
    QStringList problems;
    std::unique_ptr<Project> project;
    if (order.isPumpStation) {
        Examples::PumpStation station;
        project = station.build();
        problems = station.problems();
    } else {
        Examples::ProjectGenerator generator(order.name, order.size, order.seed);
        project = generator.generate();
        problems = generator.problems();
    }
    if (!problems.isEmpty()) {
        return fail(Faulty, problems.mid(0, 20).join(u'\n'));
    }
    if (!write(*project, order)) {
        return fail(FileTrouble, project->fileError().isEmpty()
                                     ? u"\"%1\" cannot be written."_s.arg(order.parentFolder)
                                     : project->fileError());
    }
    if (!project->validate()) {
        QStringList errors;
        collectErrors(*project, errors);
        return fail(Faulty, u"The project is not valid.\n%1"_s.arg(errors.mid(0, 20).join(u'\n')));
    }
    QTextStream(stdout) << project->fullFilePath() << '\n';
    return Done;
}

//! With fonts if necessary, because the images of the pump station contain text.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    const auto asksForPumpStation = [](const char *argument) {
        return qstrcmp(argument, "--pump-station") == 0;
    };
    if (std::any_of(argv, argv + argc, asksForPumpStation)) {
        return std::make_unique<QGuiApplication>(argc, argv);
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The descriptions of device models depend on the locale.
    qputenv("LC_ALL", "C.UTF-8");
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    QCommandLineParser line;
    line.setApplicationDescription(
        u"Creates projects of any size, or the example project PumpStation. The same "
        u"arguments always give the same bytes."_s);
    line.addHelpOption();
    line.addOptions({
        {u"size"_s,
         u"S (30 screens, 1,000 variables, 1,000 elements), M (100, 5,000, 10,000) or L (500, "
         u"20,000, 50,000)."_s,
         u"size"_s, u"S"_s},
        {u"screens"_s, u"Number of screens, instead of that of the size."_s, u"count"_s},
        {u"variables"_s, u"Number of variables."_s, u"count"_s},
        {u"elements"_s, u"Number of elements on all screens, including members of groups."_s, u"count"_s},
        {u"seed"_s, u"Start of the random numbers."_s, u"seed"_s, u"1"_s},
        {u"name"_s, u"Name of the project."_s, u"name"_s, u"Generated"_s},
        {u"pump-station"_s, u"Create the example project PumpStation."_s},
    });
    line.addPositionalArgument(u"folder"_s, u"The folder in which the project's folder is created."_s);
    line.process(*application);

    Order order;
    const QString misuse = read(line, order);
    if (!misuse.isEmpty()) {
        return fail(WrongUsage, misuse);
    }
    const QDir programs(QCoreApplication::applicationDirPath());
    if (!Designer::DesignerFactory::createInstance(programs.filePath(QStringLiteral(CORVEX_LIBRARY_PATH)))
        || !Designer::HardwareConfigurations::createInstance(
            programs.filePath(QStringLiteral(CORVEX_DATA_PATH)))) {
        return fail(FileTrouble, u"The plug-ins or the device models are missing next to this program."_s);
    }
    return carryOut(order);
}
