// SPDX-License-Identifier: MIT
#include "support/RandomEdits.h"

#include "corvex/editing/commands/ChangeConfiguration.h"
#include "corvex/editing/commands/RenameProject.h"
#include "corvex/editing/commands/groups/GroupCommand.h"
#include "corvex/editing/commands/groups/SplitGroup.h"
#include "corvex/editing/commands/groups/UngroupCommand.h"
#include "corvex/editing/commands/images/AddElementsWithResources.h"
#include "corvex/editing/commands/images/AddImage.h"
#include "corvex/editing/commands/images/AddImageFromData.h"
#include "corvex/editing/commands/images/DeleteImage.h"
#include "corvex/editing/commands/images/RenameImage.h"
#include "corvex/editing/commands/images/ReplaceImage.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/objects/ChangeVisualElements.h"
#include "corvex/editing/commands/objects/DeleteFilter.h"
#include "corvex/editing/commands/objects/DeleteFiltersWithObjects.h"
#include "corvex/editing/commands/objects/DeleteObject.h"
#include "corvex/editing/commands/objects/DeleteObjectsAndCheckFilters.h"
#include "corvex/editing/commands/objects/MoveObject.h"
#include "corvex/editing/commands/objects/SwapItems.h"
#include "corvex/editing/commands/screens/AddScreen.h"
#include "corvex/editing/commands/screens/AddScreenAndElements.h"
#include "corvex/editing/commands/screens/DeleteScreen.h"
#include "corvex/editing/commands/screens/RenameScreen.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/editing/commands/variables/DeleteVariable.h"
#include "corvex/editing/commands/variables/RenameVariable.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/values/records/ListInfo.h"

#include "ProjectGenerator.h"

#include <QDir>
#include <QFile>
#include <QImage>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

void RandomEdits::SetUp()
{
    Examples::ProjectGenerator generator(u"Model"_s, {.screens = 3, .variables = 24, .elements = 90}, seed);
    project = generator.generate();
    ASSERT_TRUE(project->createFile(folder.path())) << qPrintable(project->fileError());
    QDir().mkpath(project->imagesPath());
    ASSERT_TRUE(Examples::ProjectGenerator::writeImages(project->imagesPath()));
    for (const QString &name : classesOf(u"Element"_s)) {
        project->screens()->getListItemAtIndex(0)->addListPropertyItem(
            static_cast<Screen *>(project->screens()->getListItemAtIndex(0))->elements(),
            make(name, newName(u"first"_s)));
    }
    addUnknownItems();
    project->validate();
}

//! Inserts items of unknown classes before every fifth item of a list.
void RandomEdits::addUnknownItems()
{
    QStringList lines = text().split(u'\n');
    int items = 0;
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
        if (lines.at(i + 1).endsWith("<Properties>"_L1) && i > 2 && ++items % 5 == 0) {
            const QString unknown = u"<Unknown%1 note=\"kept\"/>"_s.arg(items);
            lines.insert(i, lines.at(i).section(u'<', 0, 0) + unknown);
            ++i;
        }
    }
    QFile file(project->fullFilePath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(lines.join(u'\n').toUtf8());
    file.close();
    ASSERT_TRUE(project->loadFile(file.fileName())) << qPrintable(project->fileError());
    ASSERT_GT(text().count(u"<Unknown"_s), 20);
}

QList<DesignerObject *> RandomEdits::below(const DesignerObject *object)
{
    QList<DesignerObject *> all;
    for (DesignerObject *child : object->childObjects()) {
        all.append(child);
        all += below(child);
    }
    return all;
}

QString RandomEdits::anyName(const QString &stem)
{
    static const QStringList hostile{u""_s,     u"1rect"_s,  u"while"_s,      u"a.b"_s,   u"a | b"_s,
                                     u"a, b"_s, u"<&\">"_s,  u"a; name: b"_s, u"qml_x"_s, u"../zz"_s,
                                     u"%00"_s,  u"\u00E4"_s, u"Screen1"_s,    u"first1"_s};
    if (!hasHostileNames || random.chance(85)) {
        return newName(stem);
    }
    return random.chance(50) ? random.oneOf(hostile) : random.oneOf(below(project.get()))->getIdName();
}

QStringList RandomEdits::classesOf(const QString &base)
{
    static QHash<QString, QStringList> classes;
    QStringList &found = classes[base];
    if (found.isEmpty()) {
        for (const QString &name : DesignerFactory::instance()->creatableNames()) {
            const std::unique_ptr<DesignerObject> sample(make(name, name));
            if (sample->isKindOfClass(base)) {
                found.append(name);
            }
        }
    }
    return found;
}

UndoCommand *RandomEdits::valueCommand()
{
    // Takes a valid value from another object of the same class and screen.
    QList<DesignerObject *> all = below(project.get());
    const DesignerObject *object = random.oneOf(all);
    all.removeIf([object](const DesignerObject *other) {
        return other->className() != object->className() || other->screen() != object->screen();
    });
    const QList<SharedProperty> properties = object->properties().toList();
    const SharedProperty property = random.oneOf(properties);
    if (property->isList() || property->isObject() || property->id() == "id"_L1
        || property->id() == "indexes"_L1) {
        return nullptr;
    }
    if (object->isKindOfClass(u"VisualElement"_s) && random.chance(20)) {
        QList<VisualElement *> visible;
        for (Element *item : object->screen()->getElementsOfType(u"VisualElement"_s)) {
            visible.append(static_cast<VisualElement *>(item));
        }
        return new ChangeVisualElements(object->getProperty(u"opacity"), visible);
    }
    const QString value = random.oneOf(all)->getProperty(property->id())->valueString();
    return new ChangeProperty(property, random.chance(5) ? QString() : value, true);
}

UndoCommand *RandomEdits::groupCommand()
{
    if (Element *group = anyElement(u"GroupElement"_s); group && random.chance(60)) {
        const SharedProperty elements = group->getProperty(u"elements");
        DesignerObject *member = itemOf(elements);
        if (random.chance(10)) {
            return new ChangeProperty(group->getProperty(u"rotation"), QString::number(random.below(360)),
                                      true);
        }
        switch (random.below(member ? 4 : 1)) {
        case 0:
            return new UngroupCommand(group);
        case 1:
            return new SplitGroup(group, {member});
        case 2:
            return new MoveObject(elements, group->screen()->elements(), member, true);
        default:
            return new AddObject(elements, u"Text"_s, anyName(u"inGroup"_s), true);
        }
    }
    Screen *screen = anyScreen();
    QList<DesignerObject *> members;
    for (DesignerObject *item : screen->elements()->getItemsOfType(u"VisualElement"_s)) {
        if (members.size() < 4 && random.chance(40)) {
            members.append(item);
        }
    }
    return new GroupCommand(make(u"GroupElement"_s, anyName(u"madeGroup"_s)), members);
}

QString RandomEdits::newPicture(QImage &picture)
{
    const QString file = folder.filePath(newName(u"picture"_s) + u".png"_s);
    picture = QImage(4, 4, QImage::Format_RGB32);
    picture.fill(QRgb(lastNumber * 7919));
    picture.save(file);
    return file;
}

UndoCommand *RandomEdits::filterCommand(Screen *screen)
{
    DesignerObject *filter = itemOf(screen->filters());
    if (filter && random.chance(30)) {
        return new DeleteFilter(screen->filters(), filter, false);
    }
    if (filter && random.chance(20)) {
        return new DeleteFiltersWithObjects({filter}, screen, random.chance(50), false);
    }
    QStringList names = screen->elements()->listItemNames();
    names.removeIf([this](const QString &) { return random.chance(90); });
    DesignerObject *made = make(u"FilterElement"_s, newName(u"filter"_s));
    made->changePropertyValue(made->getProperty(u"elements"), ListInfo(names).toString());
    return new AddObject(screen->filters(), made, false);
}

//! Composites: pasting, a screen from a template, renaming the project.
UndoCommand *RandomEdits::manyCommand(Screen *screen)
{
    QImage picture;
    DesignerObject *image = make(u"ImageResource"_s, newName(u"pasted"_s) + u".png"_s);
    image->changePropertyValue(image->getProperty(u"originalLocation"), newPicture(picture));
    const QList<DesignerObject *> elements{make(u"Text"_s, newName(u"pasted"_s)),
                                           make(u"GroupElement"_s, newName(u"pasted"_s))};
    DesignerObject *variable = make(u"NumberVariable"_s, newName(u"pasted"_s));
    auto *paste = new AddElementsWithResources(screen, elements, {image}, {variable}, true);
    if (random.chance(60)) {
        return paste;
    }
    delete paste;
    return random.chance(50)
               ? static_cast<UndoCommand *>(new RenameProject(project.get(), newName(u"Model"_s)))
               : new AddScreenAndElements(
                   make(u"Screen"_s, newName(u"Screen"_s)), project.get(), 0,
                   new AddVariable(make(u"StringVariable"_s, newName(u"variable"_s)), project.get()));
}

UndoCommand *RandomEdits::imageCommand()
{
    DesignerObject *image = itemOf(project->imageResources());
    const int kind = random.below(5);
    QImage picture;
    const QString file = newPicture(picture);
    if (kind == 0 || !image) {
        Element *user = anyElement(u"Image"_s);
        return new AddImage(make(u"ImageResource"_s, newName(u"added"_s) + u".png"_s), file, project.get(),
                            user ? QList<DesignerObject *>{user} : QList<DesignerObject *>());
    }
    switch (kind) {
    case 1:
        return new AddImageFromData(picture, anyScreen(), {double(random.below(50)), 3});
    case 2:
        return new RenameImage(image, newName(u"renamed"_s) + u".png"_s);
    case 3:
        return new ReplaceImage(image, file,
                                random.chance(50) ? image->getIdName() : newName(u"replaced"_s) + u".png"_s);
    default:
        return new DeleteImage(image);
    }
}

UndoCommand *RandomEdits::anyCommand()
{
    static const QStringList models =
        HardwareConfigurations::instance()->installed()->getProperty(u"configurations")->listItemNames();
    Screen *screen = anyScreen();
    Element *element = anyElement();
    DesignerObject *variable = itemOf(project->variables());
    switch (random.below(18)) {
    case 0: {
        return new AddObject(screen->elements(), random.oneOf(classesOf(u"Element"_s)), anyName(u"added"_s),
                             true);
    }
    case 1:
        return element ? new DeleteObject(element, true) : nullptr;
    case 2: {
        QList<DesignerObject *> some{element, anyElement(), anyElement()};
        some.removeIf([&](const DesignerObject *item) { return !item || item->screen() != screen; });
        return new DeleteObjectsAndCheckFilters(some, screen);
    }
    case 3:
    case 4:
        return element
                   ? new ChangeProperty(element->idProperty(), named(element, anyName(u"renamed"_s)), true)
                   : nullptr;
    case 5:
    case 14:
    case 15:
        return groupCommand();
    case 6: {
        DesignerObject *other = itemOf(screen->elements());
        return new SwapItems(screen->elements(), itemOf(screen->elements()), other);
    }
    case 7:
        return imageCommand();
    case 8:
        return random.chance(30)
                   ? static_cast<UndoCommand *>(new ChangeConfiguration(project.get(), random.oneOf(models)))
                   : valueCommand();
    case 9:
        if (project->screens()->listItemCount() > 2 && random.chance(20)) {
            return new DeleteScreen(screen);
        }
        return random.chance(20) ? static_cast<UndoCommand *>(
                   new AddScreen(make(u"Screen"_s, newName(u"Screen"_s)), project.get(), random.below(3)))
                                 : new RenameScreen(screen, anyName(u"Renamed"_s));
    case 10:
        return variable && random.chance(40)
                   ? static_cast<UndoCommand *>(new DeleteVariable(variable))
                   : new AddVariable(
                       make(random.oneOf(classesOf(u"ProjectVariable"_s)), anyName(u"variable"_s)),
                       project.get());
    case 11:
        return variable ? new RenameVariable(variable, anyName(u"renamed"_s)) : nullptr;
    case 12:
        return filterCommand(screen);
    case 13:
        return manyCommand(screen);
    default:
        return valueCommand();
    }
}

} // namespace Halvane::Corvex::Designer::Test
