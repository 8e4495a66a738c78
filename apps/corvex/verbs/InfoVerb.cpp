// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"

#include "ProjectFile.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

struct Image
{
    QString name;
    bool isMissing = false;
};

struct Info
{
    QString name;
    QString version;
    QString designerVersion;
    QString model;
    QString defaultScreen;
    QMap<QString, int> classCounts;
    QList<Image> images;
    QMap<QString, QStringList> missingPlugins; //!< paths of the items by class
    QStringList notes;
};

void count(const DesignerObject &object, QMap<QString, int> &counts)
{
    for (const DesignerObject *child : object.childObjects()) {
        ++counts[child->className()];
        count(*child, counts);
    }
}

Info collect(const ProjectFile &file)
{
    const Project &project = file.project();
    Info info;
    info.name = project.getIdName();
    info.version = project.buildTag();
    info.designerVersion = project.designerVersion()->valueString();
    if (const DesignerObject *configuration = project.configuration()->objectValue()) {
        info.model = configuration->getIdName();
    }
    info.defaultScreen = valueAs<LinkProperty>(project.defaultScreen()).objectId();
    count(project, info.classCounts);
    for (const DesignerObject *item : project.imageResources()->listItems()) {
        const auto *image = static_cast<const ImageResource *>(item);
        info.images.append({image->getIdName(), !image->imageFile()->isValid()});
    }
    for (const auto &[owner, item] : file.kept()) {
        if (!DesignerFactory::instance()->canCreateObject(item.className)) {
            const QString name = item.name.isEmpty() ? item.className : item.name;
            info.missingPlugins[item.className].append(
                owner == &project ? name : u"%1.%2"_s.arg(owner->objectPath(), name));
        }
    }
    for (const ReadNote &note : project.readNotes()) {
        info.notes.append(note.toString());
    }
    return info;
}

void printJson(const Info &info, const Call &call)
{
    JsonWriter &json = call.json();
    json.beginObject();
    json.member("name"_L1, info.name);
    json.member("version"_L1, info.version);
    json.member("designerVersion"_L1, info.designerVersion);
    json.member("model"_L1, info.model);
    json.member("defaultScreen"_L1, info.defaultScreen);
    json.name("classes"_L1);
    json.beginObject();
    for (const auto &[className, number] : info.classCounts.asKeyValueRange()) {
        json.name(className);
        json.value(qint64(number));
    }
    json.endObject();
    json.name("images"_L1);
    json.beginArray();
    for (const Image &image : info.images) {
        json.beginObject();
        json.member("name"_L1, image.name);
        json.member("usable"_L1, !image.isMissing);
        json.endObject();
    }
    json.endArray();
    json.name("missingPlugins"_L1);
    json.beginObject();
    for (const auto &[className, items] : info.missingPlugins.asKeyValueRange()) {
        json.name(className);
        json.beginArray();
        for (const QString &item : items) {
            json.value(item);
        }
        json.endArray();
    }
    json.endObject();
    json.member("notes"_L1, info.notes);
    json.endObject();
}

void printSection(const QString &title, const QStringList &lines, Terminal &terminal)
{
    if (lines.isEmpty()) {
        return;
    }
    terminal.print({});
    terminal.print(title);
    for (const QString &line : lines) {
        terminal.print(u"  %1"_s.arg(Terminal::oneLine(line)));
    }
}

void printText(const Info &info, Terminal &terminal)
{
    const struct
    {
        QString title;
        QString value;
    } facts[] = {
        {u"name:"_s, info.name},
        {u"version:"_s, info.version},
        {u"written by:"_s, info.designerVersion},
        {u"model:"_s, info.model},
        {u"default screen:"_s, info.defaultScreen},
    };
    for (const auto &[title, value] : facts) {
        terminal.print(u"%1 %2"_s.arg(title.leftJustified(15),
                                      value.isEmpty() ? u"(none)"_s : Terminal::oneLine(value)));
    }
    QStringList classes;
    for (const auto &[className, number] : info.classCounts.asKeyValueRange()) {
        classes.append(u"%1 %2"_s.arg(QString::number(number).rightJustified(6), className));
    }
    QStringList images;
    for (const Image &image : info.images) {
        images.append(image.isMissing ? u"%1 (missing or not an image)"_s.arg(image.name) : image.name);
    }
    QStringList plugins;
    for (const auto &[className, items] : info.missingPlugins.asKeyValueRange()) {
        plugins.append(u"%1: %2"_s.arg(className, items.join(", "_L1)));
    }
    printSection(u"objects:"_s, classes, terminal);
    printSection(u"images:"_s, images, terminal);
    printSection(u"classes without a plug-in, kept unchanged:"_s, plugins, terminal);
    printSection(u"ignored in the file (line:column: object):"_s, info.notes, terminal);
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    const Info info = collect(file);
    if (call.asJson()) {
        printJson(info, call);
    } else {
        printText(info, call.terminal());
    }
    return ExitCode::Done;
}

} // namespace

const Verb infoVerb{
    .name = "info",
    .arguments = "FILE",
    .summary = "show what a project contains",
    .details =
        [] {
            return uR"(Shows the project's name and version, the device model, the number of objects of each class,
the images, the classes whose plug-in is missing, and what was ignored in the file. The exit
code is 0 for every project that can be opened; "corvex check" finds problems.)"_s;
        },
    .example = "corvex info examples/PumpStation/PumpStation.kdproj",
    .opensProjects = true,
    .run = onProject<run>,
};

} // namespace Halvane::Corvex::Tool
