// SPDX-License-Identifier: MIT
#include "InputFile.h"
#include "ProjectEditor.h"
#include "ProjectFile.h"
#include "terminal/Call.h"
#include "terminal/EditReport.h"
#include "terminal/Interruption.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

//! Does all lines, or none of them: then every line that is wrong is named.
ExitCode edit(ProjectEditor &editor, InputFile &script, const Call &call)
{
    constexpr int mostFailures = 100;
    const QString stays = u"\"%1\" stays as it is."_s.arg(call.argument(0));
    int failures = 0;
    QByteArray line;
    bool isRead = script.readLine(line);
    for (int number = 1; isRead && !line.isEmpty() && !Interruption::isWanted() && failures < mostFailures;
         ++number, isRead = script.readLine(line)) {
        QString error = u"The bytes are not UTF-8, the one encoding that is read."_s;
        const auto result =
            line.isValidUtf8() ? editor.run(QString::fromUtf8(line), error) : ProjectEditor::Result::Failed;
        for (const QString &output : editor.takeOutput()) {
            call.terminal().print(output);
        }
        if (result == ProjectEditor::Result::Failed) {
            ++failures;
            call.terminal().printError(
                Terminal::oneLine(u"%1:%2: %3"_s.arg(script.path(), QString::number(number), error)));
        }
    }
    if (Interruption::isWanted()) {
        editor.undoAll();
        return call.failed(u"Interrupted: %1"_s.arg(stays), ExitCode::Problems);
    }
    if (!isRead) {
        editor.undoAll();
        return call.failed(u"%1 %2"_s.arg(script.errorString(), stays));
    }
    if (failures > 0) {
        editor.undoAll();
        return call.failed(stays, ExitCode::Problems);
    }
    return ExitCode::Done;
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    InputFile script(call.argument(1).isEmpty() ? u"-"_s : call.argument(1));
    if (!script.open()) {
        return call.failed(script.errorString());
    }
    const Interruption interruption; // files of images would be left in the middle of it
    ProjectEditor editor(file.project(), call);
    const ExitCode code = edit(editor, script, call);
    return code == ExitCode::Done ? EditReport::finish(editor, file, call) : code;
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
