// SPDX-License-Identifier: MIT
#include "corvex/core/xml/ObjectXmlWriter.h"
#include "corvex/project/Project.h"

#include "ProjectFile.h"
#include "RewrittenFile.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! Lists what saving would lose.
ExitCode refuse(const Call &call, const ProjectFile &file, const QList<ReadNote> &dropped)
{
    for (const ReadNote &note : dropped) {
        call.terminal().printError(Terminal::oneLine(u"%1:%2"_s.arg(file.path(), note.toString())));
    }
    return call.failed(
        u"\"%1\" contains parts that this version does not know and would lose, so it was not written. "
        "Fix these places, or write anyway with --force."_s.arg(file.path()),
        ExitCode::Problems);
}

//! Version control may have converted the line endings. That is not a change of the project, so the first
//! line decides for all.
ObjectXmlWriter::LineEnd lineEndOf(const QString &path)
{
    constexpr qint64 longestDeclaration = 1024;
    QFile file(path);
    const bool isUnix = file.open(QIODevice::ReadOnly) && file.readLine(longestDeclaration).endsWith("?>\n");
    return isUnix ? ObjectXmlWriter::LineEnd::Unix : ObjectXmlWriter::LineEnd::Windows;
}

//! \a line is the first line that differs, or 0.
void report(const Call &call, const ProjectFile &file, qint64 line, bool written)
{
    const bool isCanonical = line == 0;
    if (call.asJson()) {
        JsonWriter &json = call.json();
        json.beginObject();
        json.member("file"_L1, file.path());
        json.member("canonical"_L1, isCanonical);
        if (!isCanonical) {
            json.member("line"_L1, line);
        }
        json.member("written"_L1, written);
        json.endObject();
    } else if (!isCanonical) {
        const QString what = written ? u"written in the canonical form"_s : u"not in the canonical form"_s;
        call.terminal().print(
            Terminal::oneLine(u"%1:%2: %3"_s.arg(file.path(), QString::number(line), what)));
    }
}

ExitCode format(const Call &call, const ProjectFile &file)
{
    const QList<ReadNote> dropped = file.dropped();
    const bool onlyChecks = call.isSet(u"check"_s);
    const bool loses = !dropped.isEmpty() && !call.isSet(u"force"_s);
    Project &project = file.project();
    using Mode = RewrittenFile::Mode;
    RewrittenFile rewritten(project.fullFilePath(), onlyChecks || loses ? Mode::Compare : Mode::Rewrite);
    if (!rewritten.openForWriting()) {
        return call.failed(rewritten.errorString());
    }
    project.changePropertyValue(project.designerVersion(), Project::buildVersion());
    ObjectXmlWriter writer(&rewritten, lineEndOf(project.fullFilePath()));
    const bool isWritten = writer.write(&project) && rewritten.finish();
    if (rewritten.hasFailed()) {
        return call.failed(rewritten.errorString());
    }
    if (!isWritten) {
        return call.failed(u"\"%1\" cannot be written: %2"_s.arg(file.path(), writer.errorString()),
                           ExitCode::Problems);
    }
    const qint64 line = rewritten.differentLine();
    if (line == 0 || onlyChecks) {
        report(call, file, line, false);
        return line == 0 ? ExitCode::Done : ExitCode::Problems;
    }
    if (loses) {
        return refuse(call, file, dropped);
    }
    if (!file.isUnchanged(call)) {
        return ExitCode::File;
    }
    if (!rewritten.commit()) {
        return call.failed(rewritten.errorString());
    }
    report(call, file, line, true);
    return ExitCode::Done;
}

ExitCode run(const Call &call)
{
    using Use = ProjectFile::Use;
    ProjectFile file;
    return file.open(call, call.isSet(u"check"_s) ? Use::Read : Use::Change) ? format(call, file)
                                                                             : ExitCode::File;
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"check"_s, u"Write nothing; report whether the file would change."_s),
            QCommandLineOption(u"force"_s, u"Write even if parts of the file are lost."_s)};
}

} // namespace

const Verb fmtVerb{
    .name = "fmt",
    .arguments = "FILE [--check]",
    .summary = "write a project file in its canonical form",
    .details =
        [] {
            return uR"(Writes the file as the design tool would save it; a file in this form is not touched. --check
writes nothing, and the exit code is 1 if the file would change. If the file contains parts that
this version does not know, only --force writes it, because those parts are lost. Elements whose
plug-in is missing are kept unchanged. Lines that end with LF alone, for example after a checkout
with git, keep this line ending.)"_s;
        },
    .example = "corvex fmt --check examples/PumpStation/PumpStation.kdproj",
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
