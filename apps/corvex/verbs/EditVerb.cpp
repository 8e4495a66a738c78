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

//! Applies all lines. If any line is wrong, reports every wrong line and applies none.
ExitCode edit(EditScript &script, InputFile &lines, const Call &call)
{
    constexpr int mostFailures = 100;
    const QString stays = u"\"%1\" was not changed."_s.arg(call.argument(0));
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
                                         : u"The script is not in UTF-8. Save it in UTF-8."_s;
            ++failures;
            call.terminal().printError(
                Terminal::readableLine(u"%1:%2: %3"_s.arg(lines.path(), QString::number(number), error)));
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
    const Interruption interruption; // an interrupted edit would leave image files behind
    EditScript script(file.project(), [&call] { return Installation::loadModels(call) != nullptr; });
    EditReport::prepare(script, call);
    const ExitCode code = edit(script, lines, call);
    return code == ExitCode::Done ? EditReport::finish(script, file, call) : code;
}

QList<QCommandLineOption> options()
{
    return {
        QCommandLineOption(u"dry-run"_s,
                           u"Save nothing; show every change, including those that follow from an edit."_s),
        QCommandLineOption(u"atomic"_s, u"Accepted for compatibility; edits are always all or nothing."_s),
        QCommandLineOption(u"force"_s, u"Save even if parts of the file are lost."_s), rawOption()};
}

} // namespace

const Verb editVerb{
    .name = "edit",
    .arguments = "FILE [SCRIPT]",
    .summary = "edit a project with a script, all lines or none",
    .details =
        [] {
            return uR"(Reads one edit per line from SCRIPT, or from standard input, and saves the project when all
have succeeded. If any line is wrong, the project stays unchanged and every wrong line is
reported. Each edit also updates what depends on it, such as the references to a renamed object.
    set PATH VALUE                   a value: the rest of the line as it is, or in quotes; "" clears
                                     it. The path of a variable means its value. The word set may
                                     be omitted: PATH = VALUE
    add CLASS TO [NAME]              a new object in a screen, a group, a list or the project; values
                                     may follow: add Text Main title { text: Boiler; position: 20, 8 }
    copy PATH [NAME]                 a copy in the same place, with everything in it
    delete PATH...                   objects, and all references to them
    rename PATH NAME                 anything that has a name
    group NAME PATH...               elements of one screen; ungroup PATH; split PATH MEMBER...
    swap PATH PATH, move PATH TO     in a list, or to another one
    add-image FILE..., replace-image PATH FILE [NAME]
    model NAME                       another device model
    filter NAME PATH...              a filter that lists these elements
    undo [N], redo [N], print PATH
"corvex classes CLASS" lists the properties of a class, each with a line that sets it. A value has
the form that "corvex tree" prints, or the stored form. Expressions ("corvex functions" lists what
they can call):
    set Main.bar.yBinding = max(0, 100 - level * 2)
    set Main.title.textBinding = concat("Level ", level, " %")
    set Main.lamp.visibleBinding = level > limit and not acknowledged
    set Main.button.pressed = alarm = false; Main.lamp.color = #2E8B57
    set Main.logic.logicExpression = when level > 90 do alarm = true when level < 80 do alarm = false
Others: 120 x 40, 10, 20, 0 to 100, #C62828, bold 24px "DejaVu Sans", pump.png,
{ lamp.color: red; lamp.visible: true }.
Empty lines and lines that start with "#" are ignored. Errors that only follow from another wrong
line are not reported.)"_s;
        },
    .example = "echo 'rename startLevel pumpStart' | corvex edit --dry-run "
               "examples/PumpStation/PumpStation.kdproj",
    .mostArguments = 2,
    .opensProjects = true,
    .options = options,
    .run = onProject<run, ProjectFile::Use::Change>,
};

} // namespace Halvane::Corvex::Tool
