// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileHelper.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/project/Project.h"
#include "corvex/variables/exchange/DbcExport.h"
#include "corvex/variables/exchange/EdeExport.h"
#include "corvex/variables/exchange/ModbusExport.h"
#include "corvex/variables/exchange/VariableExport.h"

#include "ProjectFile.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

Exported exportBACnet(const ProjectFile &file)
{
    return EdeExport::write(file.project(), QFileInfo(file.path()).lastModified().date());
}

template<class Exporter>
Exported exportAs(const ProjectFile &file)
{
    return Exporter::write(file.project());
}

struct Kind
{
    const char *name;
    Exported (*write)(const ProjectFile &file);
};

constexpr std::array kinds{
    Kind{"modbus", exportAs<ModbusExport>},
    Kind{"bacnet", exportBACnet},
    Kind{"can", exportAs<DbcExport>},
    Kind{"variables", exportAs<VariableExport>},
};

void reportWritten(const QStringList &paths, const Call &call)
{
    if (!call.asJson()) {
        for (const QString &path : paths) {
            call.terminal().print(Terminal::oneLine(path));
        }
        return;
    }
    JsonWriter &json = call.json();
    json.beginObject();
    json.member("files"_L1, paths);
    json.endObject();
}

//! Writes all files into a folder, which is created if necessary.
bool writeAll(const Exported &exported, const QString &folder, const Call &call)
{
    QString error;
    if (!Common::FileHelper::makeFolder(folder, &error)) {
        call.failed(error);
        return false;
    }
    QStringList paths;
    for (const Exported::File &file : exported.files) {
        if (file.name != QFileInfo(file.name).fileName()) {
            call.failed(u"\"%1\" cannot be a file name. Rename the project."_s.arg(file.name));
            return false;
        }
        paths.append(QDir(folder).filePath(file.name));
        if (!Common::FileHelper::writeFile(paths.last(), file.bytes, &error)) {
            call.failed(error);
            return false;
        }
    }
    reportWritten(paths, call);
    return true;
}

ExitCode run(const Call &call)
{
    const auto *kind = std::ranges::find_if(
        kinds, [&](const auto &entry) { return call.argument(0) == QLatin1StringView(entry.name); });
    if (kind == std::end(kinds)) {
        QStringList names;
        for (const Kind &known : kinds) {
            names.append(QString::fromLatin1(known.name));
        }
        return call.misused(Suggestion::unknown(u"export"_s, call.argument(0), names));
    }
    const QString folder = call.value(u"output"_s);
    if (call.asJson() && folder.isEmpty()) {
        return call.misused(u"--json needs a folder for the files: add -o DIR."_s);
    }
    ProjectFile file;
    if (!file.open(call, ProjectFile::Use::Read, 1)) {
        return ExitCode::File;
    }
    const Exported exported = kind->write(file);
    for (const QString &problem : exported.problems) {
        call.terminal().printError(Terminal::oneLine(problem));
    }
    if (folder.isEmpty()) {
        call.terminal().write(exported.files.constFirst().bytes);
    } else if (!writeAll(exported, folder, call)) {
        return ExitCode::File;
    }
    return exported.problems.isEmpty() ? ExitCode::Done : ExitCode::Problems;
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption({u"o"_s, u"output"_s}, u"Write the files into DIR, replacing earlier ones."_s,
                               u"DIR"_s)};
}

} // namespace

const Verb exportVerb{
    .name = "export",
    .arguments = "modbus|bacnet|can|variables FILE",
    .summary = "export registers, objects, messages or variables for other programs",
    .details =
        [] {
            return uR"(Prints the Modbus registers or all variables as CSV, the J1939 groups as a DBC file, or the
BACnet objects as an EDE table. With -o DIR they become files in DIR, named after the project;
for BACnet this is the whole set, with the texts of object types, states and units. Invalid
entries are omitted and reported, and the exit code is 1.)"_s;
        },
    .example = "corvex export modbus examples/PumpStation/PumpStation.kdproj",
    .fewestArguments = 2,
    .mostArguments = 2,
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
