// SPDX-License-Identifier: MIT
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

QCommandLineOption rawOption()
{
    return QCommandLineOption(u"raw"_s, u"Print values as they are stored in the file."_s);
}

const QList<const Verb *> &allVerbs()
{
    static const QList<const Verb *> verbs{
        &newVerb,    &infoVerb,       &treeVerb,  &usesVerb,  &diffVerb,    &editVerb,      &renameVerb,
        &checkVerb,  &approveVerb,    &fmtVerb,   &buildVerb, &previewVerb, &renderVerb,    &exportVerb,
        &importVerb, &configDumpVerb, &valueVerb, &exprVerb,  &classesVerb, &functionsVerb, &helpVerb,
    };
    return verbs;
}

const Verb *findVerb(const QString &name)
{
    const auto found =
        std::ranges::find(allVerbs(), name, [](const Verb *verb) { return QLatin1StringView(verb->name); });
    return found == allVerbs().cend() ? nullptr : *found;
}

} // namespace Halvane::Corvex::Tool
