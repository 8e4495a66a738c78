// SPDX-License-Identifier: MIT
#include "corvex/editing/words/EditScript.h"
#include "corvex/project/Project.h"

#include "InputFile.h"
#include "Installation.h"
#include "ProjectFile.h"
#include "terminal/Advice.h"
#include "terminal/Call.h"
#include "terminal/EditReport.h"
#include "terminal/Interruption.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using Designer::EditScript;

namespace {

//! Does all lines, or none of them: then every line that is wrong is named.
ExitCode edit(EditScript &script, InputFile &lines, const Call &call)
{
    constexpr int mostFailures = 100;
    const QString stays = u"\"%1\" stays as it is."_s.arg(call.argument(0));
    int failures = 0;
    QByteArray line;
    bool isRead = lines.readLine(line);
    for (int number = 1; isRead && !line.isEmpty() && !Interruption::isWanted() && failures < mostFailures;
         ++number, isRead = lines.readLine(line)) {
        const bool isUtf8 = line.isValidUtf8();
        const auto result = isUtf8 ? script.run(QString::fromUtf8(line)) : EditScript::Result::Failed;
        for (const QString &output : script.takeOutput()) {
            call.terminal().print(output);
        }
        if (result == EditScript::Result::Failed) {
            const QString error = isUtf8 ? Advice::complete(script.refusal())
                                         : u"The bytes are not UTF-8, the one encoding that is read."_s;
            ++failures;
            call.terminal().printError(
                Terminal::oneLine(u"%1:%2: %3"_s.arg(lines.path(), QString::number(number), error)));
        }
    }
    if (Interruption::isWanted()) {
        script.undoAll();
        return call.failed(u"Interrupted: %1"_s.arg(stays), ExitCode::Problems);
    }
    if (!isRead) {
        script.undoAll();
        return call.failed(u"%1 %2"_s.arg(lines.errorString(), stays));
    }
    if (failures > 0) {
        script.undoAll();
        return call.failed(stays, ExitCode::Problems);
    }
    return ExitCode::Done;
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    InputFile lines(call.argument(1).isEmpty() ? u"-"_s : call.argument(1));
    if (!lines.open()) {
        return call.failed(lines.errorString());
    }
    const Interruption interruption; // files of images would be left in the middle of it
    EditScript script(file.project(), [&call] { return Installation::loadModels(call) != nullptr; });
    const ExitCode code = edit(script, lines, call);
    return code == ExitCode::Done ? EditReport::finish(script, file, call) : code;
}

QList<QCommandLineOption> options()
{
    return {
        QCommandLineOption(u"dry-run"_s, u"Save nothing; show every change, with all that follow from it."_s),
        QCommandLineOption(u"atomic"_s, u"All lines or none; this is so anyway."_s),
        QCommandLineOption(u"force"_s, u"Write even though parts of the file are lost."_s)};
}

} // namespace

const Verb editVerb{
    .name = "edit",
    .arguments = "FILE [SCRIPT]",
    .summary = "change a project by a script, all lines or none",
    .details =
        [] {
            return uR"(Reads one edit a line from SCRIPT, or from standard input, and saves the project when all are
done. When one fails it says which and why, and the file stays as it is. Everything that follows
from an edit, such as the references to what gets another name, is changed along with it.
    set PATH VALUE                   a value; the rest of the line as it stands, or in quotes
    add CLASS TO [NAME]              a new object to a screen, a group, a list or the project
    delete PATH...                   objects, and all that refers to them
    rename PATH NAME                 anything that has a name
    group NAME PATH...               elements of one screen; ungroup PATH; split PATH MEMBER...
    swap PATH PATH, move PATH TO     in a list, or to another one
    add-image FILE..., replace-image PATH FILE [NAME]
    model NAME                       another device model
    filter NAME PATH...              a filter that lists these elements
    undo [N], redo [N], print PATH
Empty lines and lines that start with "#" do nothing. All wrong lines are named at once; what
follows from one of them is not.)"_s;
        },
    .example = "echo 'rename startLevel pumpStart' | corvex edit --dry-run "
               "examples/PumpStation/PumpStation.kdproj",
    .mostArguments = 2,
    .opensProjects = true,
    .options = options,
    .run = onProject<run, ProjectFile::Use::Change>,
};

} // namespace Halvane::Corvex::Tool
