// SPDX-License-Identifier: MIT
// Commands that add, remove, move and group objects.
#include "corvex/common/files/FileSync.h"
#include "corvex/editing/commands/ChangeConfiguration.h"
#include "corvex/editing/commands/EditingDialogs.h"
#include "corvex/editing/commands/RenameProject.h"
#include "corvex/editing/commands/groups/GroupCommand.h"
#include "corvex/editing/commands/groups/SplitGroup.h"
#include "corvex/editing/commands/groups/UngroupCommand.h"
#include "corvex/editing/commands/images/AddElementsWithResources.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/objects/ChangeVisualElements.h"
#include "corvex/editing/commands/objects/DeleteFilter.h"
#include "corvex/editing/commands/objects/DeleteFiltersWithObjects.h"
#include "corvex/editing/commands/objects/DeleteObject.h"
#include "corvex/editing/commands/objects/DeleteObjectsAndCheckFilters.h"
#include "corvex/editing/commands/objects/MoveObject.h"
#include "corvex/editing/commands/objects/RemoveObject.h"
#include "corvex/editing/commands/objects/SwapItems.h"
#include "corvex/editing/commands/screens/AddScreen.h"
#include "corvex/editing/commands/screens/AddScreenAndElements.h"
#include "corvex/editing/commands/screens/DeleteScreen.h"
#include "corvex/editing/commands/screens/RenameScreen.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/editing/commands/variables/DeleteVariable.h"
#include "corvex/editing/commands/variables/RenameVariable.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/values/text/ValueConversion.h"

#include "CommandFixture.h"

#include <QFileInfo>
#include <QPointer>
#include <QSignalSpy>

#include <functional>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class StructureTest : public CommandFixture
{
protected:
    //! Pushes a command and checks its text, and that undo and redo restore the exact states.
    template<class Command>
    Command *walk(Command *command, const QString &title)
    {
        const QString before = text();
        push(command);
        EXPECT_EQ(command->text(), title);
        const QString after = text();
        EXPECT_NE(after, before);
        stack().undo();
        EXPECT_EQ(text(), before);
        stack().redo();
        EXPECT_EQ(text(), after);
        return command;
    }
    GroupElement *makeGroup(const QStringList &members)
    {
        QList<DesignerObject *> elements;
        for (const QString &name : members) {
            elements.append(main->getElement(name));
        }
        auto *group = static_cast<GroupElement *>(make(u"GroupElement"_s, u"group1"_s));
        walk(new GroupCommand(main->elements(), group, elements), u"Group Elements \"group1\""_s);
        return group;
    }
};

TEST_F(StructureTest, AddingSetsActiveAndSelectedItems)
{
    auto *add = walk(new AddObject(main->elements(), u"Text"_s, {}, true), u"Add \"text2\" to \"Main\""_s);
    EXPECT_EQ(stack().activeItem(), element("text2"));
    EXPECT_EQ(add->selectedItems(), QList<DesignerObject *>{element("text2")});
    EXPECT_FALSE(AddObject(main->elements(), u"Nothing"_s, {}, true).isValid());
    // The list refuses a name that exists, so the command fails.
    EXPECT_FALSE(stack().push(new AddObject(main->elements(), u"Text"_s, u"text1"_s, true)));
    EXPECT_EQ(stack().errorString(), u"Item already exists."_s);

    walk(new AddVariable(make(u"NumberVariable"_s, u"depth"_s), project.get()),
         u"Add Project Variable \"depth\""_s);
    auto *unsorted = new AddObject(project->variables(), make(u"NumberVariable"_s, u"aa"_s), false);
    unsorted->setSortEnabled(false);
    walk(unsorted, u"Add \"aa\" to \"%1\""_s.arg(project->getIdName()));
    EXPECT_EQ(project->variables()->listItemNames().last(), u"aa"_s);
    push(new AddVariable(make(u"NumberVariable"_s, u"ab"_s), project.get()));
    EXPECT_EQ(project->variables()->listItemNames().first(2), QStringList({u"aa"_s, u"ab"_s}));
    DesignerObject *screen = make(u"Screen"_s, u"Third"_s);
    auto *elements = new AddObject(screen->getProperty(u"elements"), u"Text"_s, u"title"_s, true);
    auto *both =
        walk(new AddScreenAndElements(screen, project.get(), 1, elements), u"Add Screen \"Third\""_s);
    EXPECT_EQ(project->screens()->getListItemIndex(u"Third"_s), 1);
    EXPECT_EQ(both->activeItem(), screen);
    EXPECT_EQ(both->selectedItems().value(0)->getIdName(), u"title"_s);
}

TEST_F(StructureTest, InvalidNamesAreMarkedAtOnce)
{
    GroupElement *group = makeGroup({u"rectangle1"_s, u"rectangle2"_s});
    const QString notUnique = u"The name is not unique."_s;
    DesignerObject *inGroup = make(u"Text"_s, u"text1"_s);
    DesignerObject *variable = make(u"NumberVariable"_s, u"text1"_s);
    DesignerObject *screen = make(u"Screen"_s, u"speed"_s);
    DesignerObject *outer = make(u"GroupElement"_s, u"rectangle2"_s);
    push(new AddObject(group->elements(), inGroup, true));
    push(new AddVariable(variable, project.get()));
    push(new AddScreen(screen, project.get(), 0));
    push(new GroupCommand(outer, {group, element("image1")}));
    EXPECT_EQ(inGroup->idProperty()->errorString(), notUnique);
    EXPECT_EQ(variable->idProperty()->errorString(), notUnique);
    EXPECT_EQ(screen->idProperty()->errorString(),
              u"The name cannot be the same as the project variables."_s);
    EXPECT_EQ(outer->idProperty()->errorString(), notUnique);
}

TEST_F(StructureTest, TheProjectReportsModificationsByTheUser)
{
    const QSignalSpy modified(project.get(), &Project::userModified);
    push(new DeleteObject(element("rectangle1"), true));
    stack().beginMacro(u"both"_s);
    push(new DeleteScreen(other));
    stack().endMacro();
    EXPECT_EQ(modified.size(), 2);
    stack().setIndex(0);
    stack().redo();
    EXPECT_EQ(modified.size(), 4);
    EXPECT_FALSE(stack().push(new AddObject(main->elements(), u"Text"_s, u"text1"_s, true)));
    ASSERT_TRUE(project->saveFile());
    EXPECT_EQ(modified.size(), 4);
}

TEST_F(StructureTest, DeletingDropsReferencesAndUndoRestoresThePlace)
{
    ASSERT_TRUE(set(main->filters()->getListItem(u"filter1"_s), "elements", u"rectangle1 | text1"_s));
    ASSERT_TRUE(set(element("text1"), "xBinding", u"0306rectangle1.x"_s));
    const qsizetype index = main->elements()->getListItemIndex(u"rectangle1"_s);
    const QPointer<DesignerObject> rectangle = element("rectangle1");
    project->undoStack()->push(new DeleteObject(rectangle, true));
    EXPECT_EQ(value(main->filters()->getListItem(u"filter1"_s), "elements"), u"text1"_s);
    EXPECT_EQ(value(element("text1"), "xBinding"), u"0306"_s);
    EXPECT_FALSE(rectangle->parent());
    stack().undo();
    EXPECT_EQ(main->elements()->getListItemIndex(u"rectangle1"_s), index);
    stack().redo();
    // The command owns the removed object.
    project->createUndoStack();
    EXPECT_FALSE(rectangle);
    EXPECT_FALSE(DeleteObject(nullptr, true).isValid());
}

TEST_F(StructureTest, CommandsShareRemovedObjects)
{
    // Each loses an object that an older command owns, and is dropped from the history; then the older one is
    // undone.
    const QPointer<DesignerObject> screen = other;
    const QPointer<DesignerObject> text = element("text1");
    const QPointer<DesignerObject> lost = make(u"GroupElement"_s, u"lost"_s);
    const QString first = CommandFixture::text();
    push(new DeleteObject(text, true));
    push(new DeleteScreen(screen));
    const std::function<UndoCommand *()> second[] = {
        [&] { return new AddObject(main->elements(), text, true); },
        [&] { return new AddScreen(screen, project.get(), 0); },
        [&] { return new AddScreenAndElements(screen, project.get(), 0, nullptr); },
        [&] {
            return new GroupCommand(text, {element("rectangle1"), element("rectangle2")});
        },
        [&] { return new AddElementsWithResources(main, {text}, {}, {}, true); },
    };
    for (const auto &command : second) {
        stack().push(command());
        stack().setIndex(2);
        push(new DeleteObject(element("image1"), true));
        stack().setIndex(2);
    }
    stack().setIndex(0);
    ASSERT_TRUE(text && screen);
    EXPECT_EQ(CommandFixture::text(), first);
    // The last command that owns an object deletes it, in any order of deletion.
    push(new DeleteObject(text, true));
    push(new GroupCommand(lost, {element("rectangle1"), element("rectangle2")}));
    push(new DeleteObject(lost, true));
    auto kept = std::make_unique<AddObject>(main->elements(), lost, true);
    stack().clear();
    EXPECT_FALSE(text);
    EXPECT_TRUE(lost);
    kept.reset();
    EXPECT_FALSE(lost);
    // An object removed by other code belongs to that code.
    push(new AddObject(main->elements(), u"Text"_s, u"theirs"_s, true));
    const std::unique_ptr<DesignerObject> theirs(
        main->takeListPropertyItem(main->elements(), element("theirs")));
    stack().clear();
    EXPECT_EQ(theirs->getIdName(), u"theirs"_s);
}

TEST_F(StructureTest, ScreensAndVariables)
{
    ASSERT_TRUE(
        set(project.get(), "defaultScreen", u"filterType: Screen; objectId: Other; scopeType: Project;"_s));
    ASSERT_TRUE(set(element("logicBuilder1"), "logicExpression", u"0403on|<0406speed><0406speed>"_s));
    walk(new RenameScreen(other, u"Second"_s), u"Rename Screen \"Other\""_s);
    EXPECT_EQ(value(project.get(), "defaultScreen"),
              u"filterType: Screen; objectId: Second; scopeType: Project;"_s);
    auto *deletion = walk(new DeleteScreen(other), u"Delete Screen \"Second\""_s);
    EXPECT_TRUE(stack().isDeleteScreen());
    EXPECT_EQ(deletion->deletion(), UndoCommand::Deletion::Screen);
    EXPECT_EQ(value(project.get(), "defaultScreen"),
              u"filterType: Screen; objectId: ; scopeType: Project;"_s);

    walk(new RenameVariable(variable("speed"), u"rate"_s), u"Rename Project Variable \"speed\""_s);
    EXPECT_EQ(value(element("logicBuilder1"), "logicExpression"), u"0403on|<0406rate><0406rate>"_s);
    walk(new DeleteVariable(variable("rate")), u"Delete Project Variable \"rate\""_s);
    EXPECT_TRUE(stack().isDeleteVariable());

    for (const QString &bad : {u"9lives"_s, u"rectangle1"_s, u"on"_s, u"var"_s, QString()}) {
        EXPECT_FALSE(RenameScreen(main, bad).isValid()) << qPrintable(bad);
    }
    EXPECT_FALSE(RenameScreen(variable("on"), u"good"_s).isValid());
    EXPECT_FALSE(RenameVariable(variable("on"), u"round"_s).isValid());
    EXPECT_FALSE(DeleteScreen(variable("on")).isValid());
}

TEST_F(StructureTest, GroupsKeepPlacesAndIndexes)
{
    DesignerObject *one = element("rectangle1");
    DesignerObject *two = element("rectangle2");
    ASSERT_TRUE(set(one, "position", u"x: 10; y: 20;"_s));
    ASSERT_TRUE(set(two, "position", u"x: 50; y: 60;"_s));
    ASSERT_TRUE(set(element("text1"), "xBinding", u"0306rectangle1.x"_s));
    GroupElement *group = makeGroup({u"rectangle2"_s, u"rectangle1"_s});
    EXPECT_EQ(value(group, "position"), u"x: 10; y: 20;"_s);
    EXPECT_EQ(value(group, "indexes"), u"rectangle1 | rectangle2"_s);
    EXPECT_EQ(value(two, "position"), u"x: 40; y: 40;"_s);
    EXPECT_EQ(value(element("text1"), "xBinding"), u"0306rectangle1.x"_s);
    EXPECT_TRUE(group->isValid());

    ASSERT_TRUE(set(element("text1"), "yBinding", u"<0306group1.rectangle2.y><0101+><0306group1.y>"_s));
    walk(new AddObject(group->elements(), u"Text"_s, u"inside"_s, false), u"Add \"inside\" to \"group1\""_s);
    EXPECT_EQ(value(group, "indexes"), u"rectangle1 | rectangle2 | inside"_s);
    walk(new RemoveObject(group->elements(), main->getElement(u"inside"_s), true),
         u"Remove \"inside\" from \"group1\""_s);
    walk(new SplitGroup(group, QStringList{u"rectangle2"_s}),
         u"Remove \"rectangle2\" from group \"group1\""_s);
    EXPECT_EQ(value(two, "position"), u"x: 50; y: 60;"_s);
    EXPECT_EQ(value(group, "indexes"), u"rectangle1"_s);
    EXPECT_EQ(value(element("text1"), "yBinding"), u"<0306rectangle2.y><0101+><0306group1.y>"_s);
    walk(new MoveObject(main->elements(), group->elements(), two, true),
         u"Move\"rectangle2\" to \"group1\""_s);
    EXPECT_EQ(value(group, "indexes"), u"rectangle1 | rectangle2"_s);

    walk(new UngroupCommand(group), u"Ungroup \"group1\""_s);
    EXPECT_EQ(value(one, "position"), u"x: 10; y: 20;"_s);
    EXPECT_EQ(value(element("text1"), "yBinding"), u"<0306rectangle2.y><0101+><0306>"_s);
    EXPECT_FALSE(GroupCommand(make(u"GroupElement"_s, u"g"_s), {one}).isValid());
    EXPECT_FALSE(SplitGroup(one, QStringList{u"rectangle2"_s}).isValid());
}

TEST_F(StructureTest, AnUngroupedElementStaysInPlaceOnTheScreen)
{
    DesignerObject *one = element("rectangle1");
    DesignerObject *two = element("rectangle2");
    for (DesignerObject *element : {one, two}) {
        ASSERT_TRUE(set(element, "size", u"height: 40; width: 100;"_s));
    }
    ASSERT_TRUE(set(two, "position", u"x: 0; y: 60;"_s));
    GroupElement *group = makeGroup({u"rectangle1"_s, u"rectangle2"_s});
    ASSERT_TRUE(set(group, "rotation", u"90"_s));
    push(new UngroupCommand(group));
    // The group was 100 wide and 100 high and rotated about its centre.
    const auto rectOf = [](const DesignerObject *element) {
        return GroupCommand::actualBoundingRect(ValueConversion::toPoint(value(element, "position")),
                                                {100, 40}, value(element, "rotation").toDouble(), u"Center"_s)
            .toRect();
    };
    EXPECT_EQ(rectOf(one), QRect(60, 0, 40, 100));
    EXPECT_EQ(rectOf(two), QRect(0, 0, 40, 100));
    EXPECT_EQ(GroupCommand::actualBoundingRect({10, 10}, {20, 10}, 90, u"TopLeft"_s).toRect(),
              QRect(0, 10, 10, 20));
}

TEST_F(StructureTest, DeletingSeveralElementsConsidersCommonFilters)
{
    struct : EditingDialogs
    {
        QStringList filtersToDelete(const QMap<QString, QString> &filters) override
        {
            asked = filters;
            return answer;
        }
        QMap<QString, QString> asked;
        QStringList answer;
    } dialogs;
    EditingDialogs::install(&dialogs);
    add(main->filters(), "FilterElement", "own");
    add(main->filters(), "FilterElement", "common");
    ASSERT_TRUE(set(main->filters()->getListItem(u"own"_s), "elements", u"rectangle1 | rectangle2"_s));
    ASSERT_TRUE(set(main->filters()->getListItem(u"common"_s), "elements", u"rectangle1 | text1"_s));
    const QList<DesignerObject *> both{element("rectangle2"), element("rectangle1"), element("rectangle1")};
    auto *command = walk(new DeleteObjectsAndCheckFilters(both, main), u"Delete Elements and Filters"_s);
    EXPECT_EQ(command->childCount(), 3);
    EXPECT_EQ(dialogs.asked, (QMap<QString, QString>{{u"common"_s, u"text1"_s}}));
    EXPECT_EQ(value(main->filters()->getListItem(u"common"_s), "elements"), u"text1"_s);
    EXPECT_FALSE(main->filters()->getListItem(u"own"_s));
    stack().undo();
    push(new DeleteObjectsAndCheckFilters(both + QList{main->filters()->getListItem(u"own"_s)}, main));
    stack().undo();
    dialogs.answer = {u"common"_s};
    push(new DeleteObjectsAndCheckFilters(both, main));
    EXPECT_FALSE(main->filters()->getListItem(u"common"_s));
    EXPECT_FALSE(DeleteObjectsAndCheckFilters({nullptr}, main).isValid());
    EditingDialogs::install(nullptr);

    walk(new DeleteFilter(main->filters(), main->filters()->getListItem(u"filter1"_s), true),
         u"Delete \"filter1\""_s);
    add(main->filters(), "FilterElement", "last");
    ASSERT_TRUE(set(main->filters()->getListItem(u"last"_s), "elements", u"text1 | nowhere"_s));
    walk(new DeleteFiltersWithObjects({main->filters()->getListItem(u"last"_s)}, main, true, true),
         u"Delete Filters"_s);
    EXPECT_FALSE(element("text1"));
}

TEST_F(StructureTest, SharedValuesSwapsAndModels)
{
    walk(new SwapItems(main->elements(), element("rectangle1"), element("text1")),
         u"Swap \"rectangle1\" and \"text1\""_s);
    EXPECT_EQ(stack().activeItem(), element("rectangle1"));
    ASSERT_TRUE(set(element("rectangle1"), "opacity", u"40"_s));
    walk(new ChangeVisualElements(property(element("rectangle1"), "opacity"),
                                  {static_cast<VisualElement *>(element("rectangle2")),
                                   static_cast<VisualElement *>(element("text1"))}),
         u"Change property Opacity"_s);
    EXPECT_EQ(value(element("text1"), "opacity"), u"40"_s);

    const std::unique_ptr<DesignerObject> model(make(u"Configuration"_s, u"VTR 70"_s));
    ASSERT_TRUE(set(model.get(), "pwmOutputs", u"OUTPUT, OUTPUT"_s));
    ASSERT_TRUE(set(model.get(), "screenSize", u"height: 480; width: 800;"_s));
    addTo(main, "PwmOutput");
    addTo(main, "PwmOutput");
    ASSERT_TRUE(set(element("pwmOutput1"), "channel", u"1"_s));
    ASSERT_TRUE(set(element("pwmOutput2"), "channel", u"7"_s));
    ASSERT_TRUE(set(element("pwmOutput3"), "channel", u"4"_s));
    auto *change = new ChangeConfiguration(project.get(), static_cast<Configuration *>(model.get()));
    QStringList moves;
    for (const auto &[path, from, to] : change->moves()) {
        moves.append(u"%1 %2 %3"_s.arg(path).arg(from).arg(to));
    }
    EXPECT_EQ(moves.filter(u"pwm"_s), QStringList({u"Main.pwmOutput2 7 2"_s, u"Main.pwmOutput3 4 0"_s}));
    walk(change, u"Change Model to \"VTR 70\""_s);
    EXPECT_EQ(value(element("pwmOutput2"), "channel"), u"2"_s);
    EXPECT_EQ(value(main, "size"), u"height: 480; width: 800;"_s);
    EXPECT_FALSE(ChangeConfiguration(project.get(), u"VTR 999"_s).isValid());
}

TEST_F(StructureTest, AProjectIsRenamedWithItsFolder)
{
    push(new RenameProject(project.get(), u"Wells"_s));
    EXPECT_TRUE(QFileInfo(folder.filePath(u"Wells/Wells.kdproj"_s)).isFile());
    EXPECT_EQ(project->imagesPath(), folder.filePath(u"Wells/Images"_s));
    stack().undo();
    EXPECT_TRUE(QFileInfo(folder.filePath(u"Pumps/Pumps.kdproj"_s)).isFile());
    EXPECT_FALSE(RenameProject(project.get(), u"a/b"_s).isValid());

    // If a link would get another target, the name is not changed.
    const QString file = project->fullFilePath();
    ASSERT_TRUE(QFile::rename(file, folder.filePath(u"Pumps/real"_s)) && QFile::link(u"real"_s, file));
    IdentifierInfo info = project->getIdInfo();
    info.setName(u"Wells"_s);
    push(new ChangeProperty(project->idProperty(), info.toString(), false));
    EXPECT_EQ(Common::FileSync::linkTarget(folder.filePath(u"Wells/Wells.kdproj"_s)), u"real"_s);
    stack().undo();
    for (const QString &back : {folder.filePath(u"Pumps/real"_s), u"../Pumps/real"_s}) {
        ASSERT_TRUE(QFile::remove(file) && QFile::link(back, file));
        EXPECT_FALSE(stack().push(new RenameProject(project.get(), u"Wells"_s)));
        EXPECT_TRUE(stack().errorString().contains(back)) << qPrintable(stack().errorString());
        EXPECT_EQ(QFileInfo(project->fullFilePath()).canonicalFilePath(), folder.filePath(u"Pumps/real"_s));
    }
}

} // namespace Halvane::Corvex::Designer::Test
