// SPDX-License-Identifier: MIT
#include "terminal/Advice.h"

#include "corvex/editing/words/ProjectPath.h"

#include "terminal/Call.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using Designer::EditRefusal;

namespace {

QString placeOf(const EditRefusal &refusal)
{
    switch (refusal.list) {
    case EditRefusal::NoList:
        return {};
    case EditRefusal::Edits:
        return u"\"corvex help edit\" lists them."_s;
    case EditRefusal::Classes:
        return u"\"corvex classes\" lists them; --plugins DIR loads other plug-ins with more."_s;
    case EditRefusal::Models:
        return u"\"corvex new --list-models\" lists them."_s;
    case EditRefusal::Contents:
        return u"\"corvex tree FILE %1\" shows what exists."_s.arg(refusal.path);
    case EditRefusal::Properties:
        return u"\"corvex tree FILE %1\" shows them all."_s.arg(refusal.path);
    }
    Q_UNREACHABLE();
    return {};
}

} // namespace

QString Advice::complete(const EditRefusal &refusal)
{
    const QString place = placeOf(refusal);
    return refusal.message.isEmpty() || place.isEmpty() ? refusal.message + place
                                                        : u"%1 %2"_s.arg(refusal.message, place);
}

ExitCode Advice::notFound(Designer::Project &project, const QString &path, const Call &call)
{
    const EditRefusal suggestion = Designer::ProjectPath::suggestion(project, path);
    return call.failed(
        u"\"%2\" contains nothing called \"%1\". %3"_s.arg(path, call.argument(0), complete(suggestion)),
        ExitCode::Usage);
}

} // namespace Halvane::Corvex::Tool
