// SPDX-License-Identifier: MIT
#include "corvex/common/PictureFile.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/editing/graphics/CanvasScene.h"
#include "corvex/editing/words/ProjectPath.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include "ProjectFile.h"
#include "terminal/Advice.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

QString screenName(const Call &call, const Project &project)
{
    return call.isSet(u"screen"_s) ? call.value(u"screen"_s)
                                   : valueAs<LinkProperty>(project.defaultScreen()).objectId();
}

struct Subject
{
    Screen *screen = nullptr;
    Element *element = nullptr; //!< that gets handles; null for none
};

//! The element of --handles, by its path or by its name on the screen of --screen.
ExitCode findElement(Subject &subject, Project &project, const Call &call)
{
    const QString path = call.value(u"handles"_s);
    Element *named = subject.screen ? subject.screen->getElement(path) : nullptr;
    const ProjectPlace place = named ? ProjectPlace{named, {}} : ProjectPath::find(project, path);
    subject.element = place.property ? nullptr : kindCast<Element>(place.object);
    if (!subject.element && place.object && !place.property) {
        return call.misused(u"\"%1\" is a %2. Elements have handles."_s.arg(path, place.object->className()));
    }
    if (!subject.element) {
        return call.failed(subject.screen && !path.contains(u'.') && !place.object
                               ? Suggestion::unknown(
                                   u"element"_s, path, subject.screen->getElementNames(),
                                   u"\"corvex tree FILE %1\" shows them."_s.arg(subject.screen->getIdName()))
                               : Advice::complete(ProjectPath::refusal(project, path, ProjectPath::Object)),
                           ExitCode::Usage);
    }
    if (call.isSet(u"screen"_s) && subject.element->screen() != subject.screen) {
        return call.misused(u"\"%1\" is on the screen \"%2\". Leave --screen out."_s.arg(
            path, subject.element->screen()->getIdName()));
    }
    subject.screen = subject.element->screen();
    return ExitCode::Done;
}

ExitCode find(Subject &subject, Project &project, const Call &call)
{
    const DesignerProperty &screens = *project.screens();
    const QString name = screenName(call, project);
    subject.screen = kindCast<Screen>(screens.getListItem(name));
    if (!subject.screen && call.isSet(u"screen"_s)) {
        return call.failed(Suggestion::unknown(u"screen"_s, name, screens.listItemNames()), ExitCode::Usage);
    }
    if (call.isSet(u"handles"_s)) {
        return findElement(subject, project, call);
    }
    return subject.screen
               ? ExitCode::Done
               : call.failed(
                   u"The project's default screen \"%1\" does not exist. Choose another with --screen."_s.arg(
                       name),
                   ExitCode::Problems);
}

bool save(const QImage &picture, const QString &path, QString &error)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    return picture.save(&bytes, "PNG") && Common::FileHelper::writeFile(path, bytes.data(), &error);
}

void report(const QString &path, const Screen &screen, const QImage &picture, const Call &call)
{
    if (!call.asJson()) {
        call.terminal().print(Terminal::oneLine(u"%1: %2 x %3 pixels"_s.arg(
            path, QString::number(picture.width()), QString::number(picture.height()))));
        return;
    }
    JsonWriter &json = call.json();
    json.beginObject();
    json.member("file"_L1, path);
    json.member("screen"_L1, screen.getIdName());
    json.name("width"_L1);
    json.value(qint64(picture.width()));
    json.name("height"_L1);
    json.value(qint64(picture.height()));
    json.endObject();
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    const QString path = call.value(u"output"_s);
    if (path.isEmpty()) {
        return call.misused(u"The file for the picture is missing: corvex render FILE -o PNG."_s);
    }
    if (QFileInfo(path).canonicalFilePath() == QFileInfo(file.project().fullFilePath()).canonicalFilePath()) {
        return call.misused(u"\"%1\" is the project's own file. Choose another for the picture."_s.arg(path));
    }
    Subject subject;
    if (const ExitCode code = find(subject, file.project(), call); code != ExitCode::Done) {
        return code;
    }
    const auto [screen, element] = subject;
    call.terminal().showProgress(u"Drawing %1"_s.arg(screen->getIdName()));
    CanvasScene scene(screen);
    scene.selectObjects({element});
    if (element && scene.selectedObjects().isEmpty()) {
        return call.failed(u"\"%1\" is hidden or of a kind that is not drawn, and has no handles."_s.arg(
                               element->getIdName()),
                           ExitCode::Problems);
    }
    const QImage picture = scene.picture();
    if (picture.isNull()) {
        return call.failed(u"The screen \"%1\" has no area, or one too large for a picture. Mend the size in "
                           "the project's configuration."_s.arg(screen->getIdName()),
                           ExitCode::Problems);
    }
    for (const DesignerObject *image : file.project().imageResources()->listItems()) {
        const QString imageFile = static_cast<const ImageResource *>(image)->fullFilePath();
        const QString problem = Common::PictureFile::problem(imageFile);
        if (!problem.isEmpty() && QFileInfo::exists(imageFile)) {
            call.terminal().complain(problem);
        }
    }
    QString error;
    if (!save(picture, path, error)) {
        return call.failed(error);
    }
    report(path, *screen, picture, call);
    return ExitCode::Done;
}

QList<QCommandLineOption> options()
{
    return {
        QCommandLineOption({u"o"_s, u"output"_s}, u"The file for the picture."_s, u"PNG"_s),
        QCommandLineOption(u"screen"_s,
                           u"The screen to draw; the first that the device shows unless given."_s, u"NAME"_s),
        QCommandLineOption(u"handles"_s, u"Draw the frame and the handles of an element too."_s, u"PATH"_s)};
}

} // namespace

const Verb renderVerb{
    .name = "render",
    .arguments = "FILE -o PNG",
    .summary = "draw a screen as the canvas shows it",
    .details =
        [] {
            return uR"(Draws a screen of the project, with the values that it has in the design, into a picture in the
format PNG that is as large as the screen. No display is needed. With --handles the picture also
shows where the mouse would catch an element, which has a path as in "corvex tree"; its name will
do for one on the screen that is drawn. An image whose file is missing, or is a drawing that
links to other files, is drawn as a crossed frame.)"_s;
        },
    .example = "corvex render examples/PumpStation/PumpStation.kdproj --screen Overview -o Overview.png",
    .opensProjects = true,
    .draws = true,
    .options = options,
    .run = onProject<run>,
};

} // namespace Halvane::Corvex::Tool
