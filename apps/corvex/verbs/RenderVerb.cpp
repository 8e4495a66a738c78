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
    Element *element = nullptr; //!< to draw with handles; may be null
};

//! Finds the element of --handles by its path, or by its name on the screen of --screen.
ExitCode findElement(Subject &subject, Project &project, const Call &call)
{
    const QString path = call.value(u"handles"_s);
    Element *named = subject.screen ? subject.screen->getElement(path) : nullptr;
    const ProjectPlace place = named ? ProjectPlace{named, {}} : ProjectPath::find(project, path);
    subject.element = place.property ? nullptr : kindCast<Element>(place.object);
    if (!subject.element && place.object && !place.property) {
        return call.misused(
            u"\"%1\" is a %2. Only elements have handles."_s.arg(path, place.object->className()));
    }
    if (!subject.element) {
        return call.failed(subject.screen && !path.contains(u'.') && !place.object
                               ? Suggestion::unknown(
                                   u"element"_s, path, subject.screen->getElementNames(),
                                   u"\"corvex tree FILE %1\" lists them."_s.arg(subject.screen->getIdName()))
                               : Advice::complete(ProjectPath::refusal(project, path, ProjectPath::Object)),
                           ExitCode::Usage);
    }
    if (call.isSet(u"screen"_s) && subject.element->screen() != subject.screen) {
        return call.misused(u"\"%1\" is on the screen \"%2\". Omit --screen."_s.arg(
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
        return call.misused(u"Name a file for the picture: corvex render FILE -o PNG."_s);
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
        return call.failed(
            u"\"%1\" has no handles because it is hidden or of a kind that is not drawn."_s.arg(
                element->getIdName()),
            ExitCode::Problems);
    }
    const QImage picture = scene.picture();
    if (picture.isNull()) {
        return call.failed(u"The screen \"%1\" is empty or too large for a picture. Correct the size in "
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
                           u"The screen to draw; by default the first screen that the device shows."_s,
                           u"NAME"_s),
        QCommandLineOption(u"handles"_s, u"Also draw the frame and the handles of an element."_s, u"PATH"_s)};
}

} // namespace

const Verb renderVerb{
    .name = "render",
    .arguments = "FILE -o PNG",
    .summary = "draw a screen as the canvas shows it",
    .details =
        [] {
            return uR"(Draws a screen of the project, with its design-time values, into a PNG picture of the size of the
screen. No display is needed. --handles also draws the frame and the handles of an element. It
takes a path as in "corvex tree", or just the name of an element on this screen. An image is
drawn as a crossed frame if its file is missing, or if it is a drawing that links to other
files.)"_s;
        },
    .example = "corvex render examples/PumpStation/PumpStation.kdproj --screen Overview -o Overview.png",
    .opensProjects = true,
    .draws = true,
    .options = options,
    .run = onProject<run>,
};

} // namespace Halvane::Corvex::Tool
