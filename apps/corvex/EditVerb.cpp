// SPDX-License-Identifier: MIT
#include "Call.h"
#include "EditReport.h"
#include "Interruption.h"
#include "ProjectEditor.h"
#include "ProjectFile.h"
#include "Terminal.h"
#include "Verb.h"

#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

bool openScript(QFile &script, const Call &call)
{
    const QString path = call.argument(1);
    if (path.isEmpty() || path == "-"_L1) {
        return script.open(stdin, QIODevice::ReadOnly);
    }
    script.setFileName(path);
    return script.open(QIODevice::ReadOnly);
}

//! Does all lines, or none of them.
ExitCode edit(ProjectEditor &editor, QFile &script, const Call &call)
{
    const QString name = script.fileName().isEmpty() ? u"-"_s : script.fileName();
    QByteArray line = script.readLine();
    for (int number = 1; !line.isEmpty() && !Interruption::isWanted(); ++number, line = script.readLine()) {
        QString error = u"The bytes are not UTF-8, the one encoding that is read."_s;
        const bool isDone = line.isValidUtf8() && editor.run(QString::fromUtf8(line), error);
        for (const QString &output : call.asJson() ? QStringList() : editor.takeOutput()) {
            call.terminal().print(output);
        }
        if (!isDone) {
            editor.undoAll();
            constexpr qsizetype most = 500; // a reason may quote a line that is no line of a script
            const QString reason = error.size() > most ? error.left(most) + u"..."_s : error;
            call.terminal().printError(
                Terminal::oneLine(u"%1:%2: %3"_s.arg(name, QString::number(number), reason)));
            return call.failed(u"\"%1\" stays as it is."_s.arg(call.argument(0)), ExitCode::Problems);
        }
    }
    if (Interruption::isWanted()) {
        editor.undoAll();
        return call.failed(u"Interrupted: \"%1\" stays as it is."_s.arg(call.argument(0)),
                           ExitCode::Problems);
    }
    if (script.error() != QFileDevice::NoError) {
        editor.undoAll();
        return call.failed(u"The script \"%1\" cannot be read: %2."_s.arg(name, script.errorString()));
    }
    return ExitCode::Done;
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    QFile script;
    if (!openScript(script, call)) {
        return call.failed(
            u"The script \"%1\" cannot be read: %2."_s.arg(call.argument(1), script.errorString()));
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
Empty lines and lines that start with "#" do nothing.)"_s;
        },
    .example = "echo 'rename startLevel pumpStart' | corvex edit --dry-run "
               "examples/PumpStation/PumpStation.kdproj",
    .mostArguments = 2,
    .opensProjects = true,
    .options = options,
    .run = onProject<run, ProjectFile::Use::Change>,
};

} // namespace Halvane::Corvex::Tool
