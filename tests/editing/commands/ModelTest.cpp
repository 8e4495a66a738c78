// SPDX-License-Identifier: MIT
// Random edits with random undo and redo, in a project with elements of every class. The model must be
// consistent after each step; at the end, undo must restore the first state to the byte, and redo the last
// one.
//
// CORVEX_MODEL_STEPS and CORVEX_MODEL_SEED set the number of steps and the seed; scripts/soak uses them.
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/document/ProjectHistory.h"
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
#include "corvex/editing/references/ReferenceChanges.h"
#include "corvex/editing/references/ReferenceScanner.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/project/files/ProjectAutosave.h"
#include "corvex/values/records/ListInfo.h"

#include "ModelMirror.h"
#include "ProjectGenerator.h"
#include "Random.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

QList<DesignerObject *> below(const DesignerObject *object)
{
    QList<DesignerObject *> all;
    for (DesignerObject *child : object->childObjects()) {
        all.append(child);
        all += below(child);
    }
    return all;
}

//! The first differing line on both sides; empty for equal texts.
QString difference(const QString &text, const QString &expected)
{
    const QStringList left = text.split(u'\n');
    const QStringList right = expected.split(u'\n');
    for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i) {
        if (left.value(i) != right.value(i)) {
            return u"line %1:\n%2\ninstead of\n%3"_s.arg(QString::number(i + 1), left.value(i).left(2000),
                                                         right.value(i).left(2000));
        }
    }
    return {};
}

} // namespace

class ModelTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY));
        HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA));
    }

    void SetUp() override
    {
        Examples::ProjectGenerator generator(u"Model"_s, {.screens = 3, .variables = 24, .elements = 90},
                                             seed);
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
    void addUnknownItems()
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

    static int setting(const char *name, int usual)
    {
        bool ok = false;
        const int value = qEnvironmentVariableIntValue(name, &ok);
        return ok ? value : usual;
    }

    QString newName(const QString &stem) { return stem + QString::number(++lastNumber); }
    //! A good name or, in a test with hostile names, also names that are marked or refused.
    QString anyName(const QString &stem)
    {
        static const QStringList hostile{u""_s,     u"1rect"_s,  u"while"_s,      u"a.b"_s,   u"a | b"_s,
                                         u"a, b"_s, u"<&\">"_s,  u"a; name: b"_s, u"qml_x"_s, u"../zz"_s,
                                         u"%00"_s,  u"\u00E4"_s, u"Screen1"_s,    u"first1"_s};
        if (!hasHostileNames || random.chance(85)) {
            return newName(stem);
        }
        return random.chance(50) ? random.oneOf(hostile) : random.oneOf(below(project.get()))->getIdName();
    }
    static DesignerObject *make(const QString &className, const QString &name)
    {
        DesignerObject *object = DesignerFactory::instance()->createObject(className);
        object->setParent(nullptr);
        object->setIdName(name);
        return object;
    }
    DesignerObject *itemOf(const SharedProperty &list)
    {
        const qsizetype count = list->listItemCount();
        return count > 0 ? list->getListItemAtIndex(random.below(int(count))) : nullptr;
    }
    Screen *anyScreen() { return static_cast<Screen *>(itemOf(project->screens())); }
    Element *anyElement(const QString &className = u"Element"_s)
    {
        const QList<Element *> elements = anyScreen()->getElementsOfType(className);
        return elements.isEmpty() ? nullptr : random.oneOf(elements);
    }
    static QStringList classesOf(const QString &base)
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
    static QString named(const DesignerObject *object, const QString &name)
    {
        IdentifierInfo info = object->getIdInfo();
        info.setName(name);
        return info.toString();
    }

    //! A command that may succeed; null if there is nothing to do it with.
    UndoCommand *anyCommand();
    UndoCommand *imageCommand();
    QString newPicture(QImage &picture);
    UndoCommand *groupCommand();
    UndoCommand *filterCommand(Screen *screen);
    UndoCommand *manyCommand(Screen *screen);
    UndoCommand *valueCommand();

    void edit();
    void checkModel();
    void checkOwners(const DesignerObject *owner);
    void checkReferences(const DesignerObject *object);
    QString text() const { return DesignerObject::toString(project.get()); }

    const quint64 seed = quint64(setting("CORVEX_MODEL_SEED", 1));
    QTemporaryDir folder;
    std::unique_ptr<Project> project;
    Examples::Random random{seed};
    int lastNumber = 0;
    bool hasHostileNames = false;
};

UndoCommand *ModelTest::valueCommand()
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

UndoCommand *ModelTest::groupCommand()
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

QString ModelTest::newPicture(QImage &picture)
{
    const QString file = folder.filePath(newName(u"picture"_s) + u".png"_s);
    picture = QImage(4, 4, QImage::Format_RGB32);
    picture.fill(QRgb(lastNumber * 7919));
    picture.save(file);
    return file;
}

UndoCommand *ModelTest::filterCommand(Screen *screen)
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
UndoCommand *ModelTest::manyCommand(Screen *screen)
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

UndoCommand *ModelTest::imageCommand()
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

UndoCommand *ModelTest::anyCommand()
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

void ModelTest::checkOwners(const DesignerObject *owner)
{
    for (const SharedProperty &list : owner->properties()) {
        if (!list->isList()) {
            continue;
        }
        for (DesignerObject *item : list->listItems()) {
            ASSERT_EQ(item->parent(), owner) << qPrintable(item->objectPath());
            ASSERT_EQ(item->listProperty(), list) << qPrintable(item->objectPath());
            ASSERT_EQ(item->listProperties().size(), 1) << qPrintable(item->objectPath());
            ASSERT_EQ(item->project(), project.get()) << qPrintable(item->objectPath());
            ASSERT_EQ(list->getListItem(item->getIdName()), item) << qPrintable(item->objectPath());
            checkOwners(item);
        }
        const QStringList names = list->listItemNames();
        list->sortList();
        ASSERT_EQ(list->listItemNames(), names) << qPrintable(owner->objectPath() + u'.' + list->id());
    }
}

//! The index must contain the same sites as a search.
void ModelTest::checkReferences(const DesignerObject *object)
{
    if (object->getIdName().isEmpty()) {
        return;
    }
    QSet<SharedProperty> walked;
    for (const ReferenceUse &use : ReferenceScanner::uses(ReferenceTarget::toItself(object))) {
        walked.insert(use.property);
    }
    QSet<SharedProperty> indexed;
    for (const ValueChange &change : ReferenceChanges::renamed(object, u"anything"_s)) {
        indexed.insert(change.property);
    }
    ASSERT_EQ(indexed, walked) << qPrintable(object->objectPath());
}

void ModelTest::checkModel()
{
    ASSERT_NO_FATAL_FAILURE(checkOwners(project.get()));
    const QList<DesignerObject *> all = below(project.get());
    // Objects with a bad or duplicate name are marked, and references to them are ambiguous.
    for (const DesignerObject *object : hasHostileNames ? QList<DesignerObject *>() : all) {
        if (const auto *group = kindCast<GroupElement>(object)) {
            QStringList indexes = ListInfo(group->indexes()->valueString()).toList();
            QStringList members = group->elements()->listItemNames();
            indexes.sort();
            members.sort();
            ASSERT_EQ(indexes, members) << qPrintable(group->objectPath());
        }
        for (const SharedProperty &property : object->properties()) {
            if (property->isKindOfClass(LinkProperty::kindName())) {
                const auto &link = static_cast<const LinkProperty &>(*property);
                ASSERT_TRUE(!link.value().isValid() || link.connectLink())
                    << qPrintable(object->objectPath() + u": "_s + property->valueString());
            }
        }
    }
    ASSERT_NO_FATAL_FAILURE(checkReferences(random.oneOf(all)));
}

void ModelTest::edit()
{
    const int steps = setting("CORVEX_MODEL_STEPS", 1000);
    UndoStack *stack = project->undoStack();
    const ModelMirror mirror(*project);
    ASSERT_NO_FATAL_FAILURE(checkModel());
    const QString first = text();
    int done = 0;
    for (int step = 0; step < steps; ++step) {
        QString what = u"undo or redo"_s;
        if (random.chance(25)) {
            stack->setIndex(std::clamp(stack->index() + random.between(-4, 3), 0, stack->count()));
        } else if (std::unique_ptr<UndoCommand> command{anyCommand()}; command && command->isValid()) {
            what = command->text();
            done += stack->push(command.release()) ? 1 : 0;
        }
        SCOPED_TRACE(testing::Message()
                     << "seed " << seed << ", step " << step << ": " << what.toStdString());
        ASSERT_NO_FATAL_FAILURE(checkModel());
        if (step % setting("CORVEX_MODEL_WALK", 250) == 0 || step == steps - 1) {
            const int index = stack->index();
            const QString last = text();
            stack->setIndex(0);
            ASSERT_EQ(difference(text(), first), QString());
            stack->setIndex(index);
            ASSERT_EQ(difference(text(), last), QString());
        }
        if (step % 20 == 0) {
            ASSERT_EQ(mirror.difference(), QString());
        }
    }
    EXPECT_EQ(mirror.difference(), QString());
    EXPECT_GT(done, steps / 3);
}

TEST_F(ModelTest, UndoingRandomEditsRestoresEveryByte)
{
    edit();
}

TEST_F(ModelTest, UndoingEditsWithHostileNamesRestoresEveryByte)
{
    hasHostileNames = true;
    edit();
}

//! Records all states of a history as texts.
class HistoryTest : public ModelTest
{
protected:
    //! The project and the contents of its image files.
    QString state() const
    {
        QString all = text();
        for (const QString &name : project->imageResources()->listItemNames()) {
            all +=
                u"\n%1: %2"_s.arg(name, Common::FileHelper::md5(QDir(project->imagesPath()).filePath(name)));
        }
        return all;
    }
    void push(ProjectHistory &history)
    {
        std::unique_ptr<UndoCommand> command{anyCommand()};
        if (command && command->isValid() && project->undoStack()->push(command.release())) {
            note(history);
        }
    }
    //! Records a new step.
    void note(const ProjectHistory &history)
    {
        states.resize(position + 1);
        states.append(state());
        saved = saved > position ? -1 : saved;
        position = history.position();
    }
    void gesture(ProjectHistory &history)
    {
        UndoStack *stack = project->undoStack();
        ASSERT_TRUE(stack->beginGesture(u"Gesture"_s));
        for (int i = random.below(8); i > 0; --i) {
            if (std::unique_ptr<UndoCommand> command{anyCommand()}; command && command->isValid()) {
                stack->push(command.release());
            }
        }
        const bool hasChanged = stack->hasChangedInGesture();
        if (random.chance(40)) {
            ASSERT_TRUE(stack->rollBackGesture());
        } else if (stack->commitGesture() && hasChanged) {
            note(history);
        }
    }
    void save(const ProjectHistory &history)
    {
        ASSERT_TRUE(project->saveFile()) << qPrintable(project->fileError());
        saved = history.position();
    }
    void check(const ProjectHistory &history) const
    {
        ASSERT_EQ(history.position(), position);
        ASSERT_EQ(history.count(), states.size() - 1);
        ASSERT_EQ(history.savedPosition(), saved);
        ASSERT_EQ(project->undoStack()->isSaved(), position == saved);
        ASSERT_EQ(history.canUndo(), position > 0);
        ASSERT_EQ(history.canRedo(), position < states.size() - 1);
        ASSERT_EQ(difference(state(), states.at(position)), QString());
    }

    QStringList states;
    int position = 0;
    int saved = 0;
};

TEST_F(HistoryTest, UndoAndRedoCrossSaves)
{
    ProjectHistory history(*project);
    states = {state()};
    const int steps = setting("CORVEX_MODEL_STEPS", 1000) / 4;
    for (int step = 0; step < steps; ++step) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step);
        const int kind = random.below(100);
        if (kind < 25) {
            position = std::clamp(position + random.between(-9, 8), 0, int(states.size()) - 1);
            ASSERT_TRUE(history.goTo(position)) << qPrintable(history.errorString());
        } else if (kind < 37) {
            ASSERT_NO_FATAL_FAILURE(save(history));
        } else if (kind < 39) {
            project->autosave().run();
        } else if (kind < 50) {
            ASSERT_NO_FATAL_FAILURE(gesture(history));
        } else {
            push(history);
        }
        ASSERT_NO_FATAL_FAILURE(check(history));
    }
    for (position = int(states.size()) - 1; position >= 0; position -= 7) {
        ASSERT_TRUE(history.goTo(position)) << qPrintable(history.errorString());
        ASSERT_NO_FATAL_FAILURE(check(history));
    }
}

} // namespace Halvane::Corvex::Designer::Test
