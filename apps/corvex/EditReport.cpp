// SPDX-License-Identifier: MIT
#include "EditReport.h"

#include "corvex/core/DesignerObject.h"

#include "Call.h"
#include "JsonWriter.h"
#include "Terminal.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

QString pathOf(const SharedProperty &property)
{
    const DesignerObject *owner = property->parentObject();
    return owner ? u"%1.%2"_s.arg(owner->objectPath(), property->id()) : property->id();
}

void printJson(const QList<ProjectEditor::Edit> &edits, bool isSaved, const Call &call)
{
    JsonWriter json(call.terminal());
    json.beginObject();
    json.member("saved"_L1, isSaved);
    json.name("edits"_L1);
    json.beginArray();
    for (const auto &[text, changes] : edits) {
        json.beginObject();
        json.member("text"_L1, text);
        json.name("changes"_L1);
        json.beginArray();
        for (const ValueChange &change : changes) {
            json.beginObject();
            json.member("property"_L1, pathOf(change.property));
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

} // namespace

void EditReport::print(const QList<ProjectEditor::Edit> &edits, bool isSaved, const Call &call)
{
    if (call.asJson()) {
        printJson(edits, isSaved, call);
        return;
    }
    for (const auto &[text, changes] : edits) {
        call.terminal().print(Terminal::oneLine(text));
        for (const ValueChange &change : changes) {
            call.terminal().print(u"  "_s
                                  + Terminal::oneLine(u"%1: %2 -> %3"_s.arg(pathOf(change.property),
                                                                            change.before, change.after)));
        }
    }
}

} // namespace Halvane::Corvex::Tool
