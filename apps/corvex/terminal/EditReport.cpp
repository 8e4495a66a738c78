// SPDX-License-Identifier: MIT
#include "terminal/EditReport.h"

#include "corvex/editing/words/EditScript.h"

#include "ProjectFile.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using Designer::EditScript;

namespace {

void printJson(const QList<EditScript::Edit> &edits, const QStringList &doubts, bool isSaved,
               const Call &call)
{
    JsonWriter &json = call.json();
    json.beginObject();
    json.member("saved"_L1, isSaved);
    json.member("warnings"_L1, doubts);
    json.name("edits"_L1);
    json.beginArray();
    for (const auto &[text, parts, changes] : edits) {
        json.beginObject();
        json.member("text"_L1, text);
        json.member("parts"_L1, parts);
        json.name("changes"_L1);
        json.beginArray();
        for (const EditScript::Change &change : changes) {
            json.beginObject();
            json.member("property"_L1, change.property);
            json.member("old"_L1, change.before);
            json.member("new"_L1, change.after);
            json.member("oldReadable"_L1, change.readableBefore);
            json.member("newReadable"_L1, change.readableAfter);
            json.endObject();
        }
        json.endArray();
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

QString lineOf(const EditScript::Change &change, bool isRaw)
{
    const QString form = u"%1: %2 -> %3"_s;
    // Values can differ although people would write them alike.
    return isRaw || change.readableBefore == change.readableAfter
               ? Terminal::oneLine(form.arg(change.property, change.before, change.after))
               : Terminal::readableLine(
                   form.arg(change.property, change.readableBefore, change.readableAfter));
}

void print(const QList<EditScript::Edit> &edits, const Call &call)
{
    for (const auto &[text, parts, changes] : edits) {
        call.terminal().print(Terminal::oneLine(text));
        for (const QString &part : parts) {
            call.terminal().print(u"  "_s + Terminal::oneLine(part));
        }
        for (const EditScript::Change &change : changes) {
            call.terminal().print(u"  "_s + lineOf(change, call.isSet(u"raw"_s)));
        }
    }
}

} // namespace

void EditReport::prepare(EditScript &script, const Call &call)
{
    script.setReportsReadable(call.asJson() || (call.isSet(u"dry-run"_s) && !call.isSet(u"raw"_s)));
}

ExitCode EditReport::finish(EditScript &script, const ProjectFile &file, const Call &call)
{
    const QList<EditScript::Edit> edits = script.edits();
    for (const QString &output : script.takeOutput()) {
        call.terminal().print(output);
    }
    const QStringList doubts = script.invalidValues();
    for (const QString &doubt : call.asJson() ? QStringList() : doubts) {
        call.terminal().printError(Terminal::readableLine(u"warning: "_s + doubt));
    }
    const bool isTrial = call.isSet(u"dry-run"_s);
    const ExitCode code = isTrial || edits.isEmpty() ? ExitCode::Done : file.save(call);
    if (isTrial || code != ExitCode::Done) {
        script.undoAll();
    }
    if (call.asJson()) {
        printJson(edits, doubts, !isTrial && code == ExitCode::Done, call);
    } else if (isTrial) {
        print(edits, call);
    }
    return code;
}

} // namespace Halvane::Corvex::Tool
