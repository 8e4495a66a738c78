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

void printJson(const QList<EditScript::Edit> &edits, bool isSaved, const Call &call)
{
    JsonWriter &json = call.json();
    json.beginObject();
    json.member("saved"_L1, isSaved);
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
            json.endObject();
        }
        json.endArray();
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

void print(const QList<EditScript::Edit> &edits, const Call &call)
{
    for (const auto &[text, parts, changes] : edits) {
        call.terminal().print(Terminal::oneLine(text));
        for (const QString &part : parts) {
            call.terminal().print(u"  "_s + Terminal::oneLine(part));
        }
        for (const auto &[property, before, after] : changes) {
            call.terminal().print(u"  "_s
                                  + Terminal::oneLine(u"%1: %2 -> %3"_s.arg(property, before, after)));
        }
    }
}

} // namespace

ExitCode EditReport::finish(EditScript &script, const ProjectFile &file, const Call &call)
{
    const QList<EditScript::Edit> edits = script.edits();
    for (const QString &output : script.takeOutput()) {
        call.terminal().print(output);
    }
    const bool isTrial = call.isSet(u"dry-run"_s);
    const ExitCode code = isTrial || edits.isEmpty() ? ExitCode::Done : file.save(call);
    if (isTrial || code != ExitCode::Done) {
        script.undoAll();
    }
    if (call.asJson()) {
        printJson(edits, !isTrial && code == ExitCode::Done, call);
    } else if (isTrial) {
        print(edits, call);
    }
    return code;
}

} // namespace Halvane::Corvex::Tool
