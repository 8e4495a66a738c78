// SPDX-License-Identifier: MIT
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/templates/NewProject.h"

#include "Installation.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

ExitCode listModels(const ConfigurationContainer &models, const Call &call)
{
    if (!call.asJson()) {
        for (const Configuration *model : models.configurations()) {
            call.terminal().print(Terminal::oneLine(model->getIdName()));
        }
        return ExitCode::Done;
    }
    JsonWriter &json = call.json();
    json.beginObject();
    json.name("models"_L1);
    json.beginArray();
    for (const Configuration *model : models.configurations()) {
        json.beginObject();
        json.member("name"_L1, model->getIdName());
        json.member("screenSize"_L1, model->screenSize()->valueString());
        json.member("description"_L1, model->description()->valueString());
        json.endObject();
    }
    json.endArray();
    json.endObject();
    return ExitCode::Done;
}

ExitCode create(const QString &path, const Configuration &model, const Call &call)
{
    const QFileInfo folder(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    const QString name = folder.fileName();
    if (const QString error = FileNameRules::projectNameError(name); !error.isEmpty()) {
        return call.misused(error);
    }
    QString error;
    const std::unique_ptr<Project> project = NewProject::create(folder.path(), name, model, error);
    if (!project) {
        return call.failed(error);
    }
    const QString file = u"%1/%2"_s.arg(QDir::cleanPath(path), project->createFileName());
    if (!call.asJson()) {
        call.terminal().print(file);
        call.terminal().printError(
            u"The screen \"%1\" is still empty. Add an element: echo \"add Text %1 title\" | corvex edit \"%2\""_s
                .arg(NewProject::screenName(), file));
        return ExitCode::Done;
    }
    JsonWriter &json = call.json();
    json.beginObject();
    json.member("file"_L1, file);
    json.member("model"_L1, model.getIdName());
    json.member("screen"_L1, NewProject::screenName());
    json.endObject();
    return ExitCode::Done;
}

ExitCode run(const Call &call)
{
    const QString path = call.argument(0);
    const bool lists = call.isSet(u"list-models"_s);
    if (!lists && (path.isEmpty() || !call.isSet(u"model"_s))) {
        return call.misused(
            u"A new project needs a path and a device model: corvex new PATH --model NAME."_s);
    }
    if (path.endsWith(".kdproj"_L1, Qt::CaseInsensitive)) {
        return call.misused(
            u"PATH is the project's folder, without \".kdproj\": corvex new \"%1\" --model NAME."_s.arg(
                path.chopped(7)));
    }
    if (const ExitCode code = Installation::loadFactory(call); code != ExitCode::Done) {
        return code;
    }
    const ConfigurationContainer *models = Installation::loadModels(call);
    if (!models) {
        return ExitCode::File;
    }
    if (lists) {
        return listModels(*models, call);
    }
    const QString name = call.value(u"model"_s);
    const Configuration *model = models->configuration(name);
    return model ? create(path, *model, call)
                 : call.failed(Installation::unknownModel(name, *models), ExitCode::Usage);
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"model"_s, u"The device model of the project."_s, u"NAME"_s),
            QCommandLineOption(u"list-models"_s, u"List the installed device models and create nothing."_s)};
}

} // namespace

const Verb newVerb{
    .name = "new",
    .arguments = "PATH --model NAME",
    .summary = "create a project with one screen",
    .details =
        [] {
            return uR"(Creates the folder PATH, whose name becomes the name of the project, and in it the project file
with the configuration of the device model and one screen, "Main". For example, "corvex new
work/Boiler" creates work/Boiler/Boiler.kdproj and prints this path. The parent folder must
exist. An existing project is not touched.)"_s;
        },
    .example = "corvex new Boiler --model \"VTR 50-K\"",
    .fewestArguments = 0,
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
