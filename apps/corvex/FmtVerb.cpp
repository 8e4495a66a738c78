// SPDX-License-Identifier: MIT
#include "corvex/core/ObjectXmlWriter.h"
#include "corvex/project/Project.h"

#include "Call.h"
#include "JsonWriter.h"
#include "ProjectFile.h"
#include "Terminal.h"
#include "Verb.h"

#include <QBuffer>
#include <QFile>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! What saving would write; nothing, with a text in \a error, when the project cannot be saved.
QByteArray canonicalBytes(Project &project, QString *error)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ObjectXmlWriter writer(&buffer, ObjectXmlWriter::LineEnd::Windows);
    project.changePropertyValue(project.designerVersion(), Project::buildVersion());
    if (!writer.write(&project)) {
        *error = writer.errorString();
        return {};
    }
    return buffer.data();
}

qsizetype firstDifferentLine(QByteArrayView a, QByteArrayView b)
{
    const auto [end, other] = std::ranges::mismatch(a, b);
    return std::count(a.begin(), end, '\n') + 1;
}

//! Tells, for each note, what would be lost.
ExitCode refuse(const Call &call, const ProjectFile &file, const QList<ReadNote> &dropped)
{
    for (const ReadNote &note : dropped) {
        call.terminal().printError(Terminal::oneLine(u"%1:%2"_s.arg(file.path(), note.toString())));
    }
    return call.failed(u"\"%1\" holds what this version does not know and would lose; it stays as it is. "
                       "Mend these places, or write it all the same with --force."_s.arg(file.path()),
                       ExitCode::Problems);
}

void report(const Call &call, const ProjectFile &file, bool isCanonical, qsizetype line, bool written)
{
    if (call.asJson()) {
        JsonWriter json(call.terminal());
        json.beginObject();
        json.member("file"_L1, file.path());
        json.member("canonical"_L1, isCanonical);
        if (!isCanonical) {
            json.member("line"_L1, qint64(line));
        }
        json.member("written"_L1, written);
        json.endObject();
    } else if (!isCanonical) {
        const QString what = written ? u"written in the canonical form"_s : u"not in the canonical form"_s;
        call.terminal().print(
            Terminal::oneLine(u"%1:%2: %3"_s.arg(file.path(), QString::number(line), what)));
    }
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    QString error;
    const QByteArray canonical = canonicalBytes(file.project(), &error);
    if (!error.isEmpty()) {
        return call.failed(u"\"%1\" cannot be written: %2"_s.arg(file.path(), error), ExitCode::Problems);
    }
    QFile old(file.path());
    if (!old.open(QIODevice::ReadOnly)) {
        return call.failed(u"The file \"%1\" cannot be read: %2"_s.arg(file.path(), old.errorString()));
    }
    const QByteArray bytes = old.readAll();
    old.close();
    const bool isCanonical = bytes == canonical;
    const qsizetype line = isCanonical ? 0 : firstDifferentLine(bytes, canonical);
    if (isCanonical || call.isSet(u"check"_s)) {
        report(call, file, isCanonical, line, false);
        return isCanonical ? ExitCode::Done : ExitCode::Problems;
    }
    if (const QList<ReadNote> dropped = file.dropped(); !dropped.isEmpty() && !call.isSet(u"force"_s)) {
        return refuse(call, file, dropped);
    }
    if (!file.project().saveFile()) {
        return call.failed(file.project().fileError());
    }
    report(call, file, false, line, true);
    return ExitCode::Done;
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"check"_s, u"Write nothing; tell whether saving would change a byte."_s),
            QCommandLineOption(u"force"_s, u"Write even though parts of the file are lost."_s)};
}

} // namespace

const Verb fmtVerb{
    .name = "fmt",
    .arguments = "FILE [--check]",
    .summary = "write a project file in its canonical form",
    .details =
        [] {
            return uR"(Writes the file as the design tool would save it; a file that is so already is not touched.
With --check nothing is written, and the exit code is 1 when saving would change a byte. A
file with parts that this version does not know is not written without --force, since they
would be lost; elements whose plug-in is missing are kept and lose nothing.)"_s;
        },
    .example = "corvex fmt --check examples/PumpStation/PumpStation.kdproj",
    .opensProjects = true,
    .options = options,
    .run = onProject<run>,
};

} // namespace Halvane::Corvex::Tool
