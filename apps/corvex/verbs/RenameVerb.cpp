// SPDX-License-Identifier: MIT
#include "corvex/editing/words/EditScript.h"
#include "corvex/editing/words/ProjectPath.h"
#include "corvex/project/Project.h"

#include "ProjectFile.h"
#include "terminal/Advice.h"
#include "terminal/Call.h"
#include "terminal/EditReport.h"
#include "terminal/Interruption.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

QString quoted(QString word)
{
    word.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    return u'"' + word + u'"';
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    if (!ProjectPath::find(file.project(), call.argument(1)).object) {
        return Advice::notFound(file.project(), call.argument(1), call);
    }
    const Interruption interruption;
    EditScript script(file.project());
    EditReport::prepare(script, call);
    const QString line = u"rename %1 %2"_s.arg(quoted(call.argument(1)), quoted(call.argument(2)));
    if (script.run(line) != EditScript::Result::Done) {
        return call.failed(Advice::complete(script.refusal()), ExitCode::Problems);
    }
    return EditReport::finish(script, file, call);
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"dry-run"_s, u"Save nothing; show every change that follows."_s),
            QCommandLineOption(u"force"_s, u"Save even if parts of the file are lost."_s), rawOption()};
}

} // namespace

const Verb renameVerb{
    .name = "rename",
    .arguments = "FILE OLD NEW",
    .summary = "rename something wherever it is used",
    .details =
        [] {
            return uR"(Renames the screen, element, variable, image or project with the path OLD to NEW, and updates
every link, expression, state and list that names it. The file of an image and the folder of a
project are renamed too. An invalid name is refused.)"_s;
        },
    .example = "corvex rename --dry-run examples/PumpStation/PumpStation.kdproj startLevel pumpStart",
    .fewestArguments = 3,
    .mostArguments = 3,
    .opensProjects = true,
    .options = options,
    .run = onProject<run, ProjectFile::Use::Change>,
};

} // namespace Halvane::Corvex::Tool
