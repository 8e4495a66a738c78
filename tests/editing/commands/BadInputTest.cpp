// SPDX-License-Identifier: MIT
// Commands for objects that do not exist, belong to another project or are given twice, and for files and
// folders that cause errors.
#include "corvex/editing/commands/ChangeConfiguration.h"
#include "corvex/editing/commands/RenameProject.h"
#include "corvex/editing/commands/groups/GroupCommand.h"
#include "corvex/editing/commands/groups/SplitGroup.h"
#include "corvex/editing/commands/groups/UngroupCommand.h"
#include "corvex/editing/commands/images/AddElementsWithResources.h"
#include "corvex/editing/commands/images/AddImage.h"
#include "corvex/editing/commands/images/AddImageFromData.h"
#include "corvex/editing/commands/images/AddImagesAndElements.h"
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
#include "corvex/project/ImageResource.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/project/elements/VisualElement.h"

#include "CommandFixture.h"

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class BadInputTest : public CommandFixture
{
protected:
    QString picture(const QString &name) const
    {
        QImage image(6, 4, QImage::Format_RGB32);
        image.fill(Qt::blue);
        EXPECT_TRUE(image.save(folder.filePath(name)));
        return folder.filePath(name);
    }
    QStringList files() const
    {
        return QDir(project->imagesPath()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    //! Pushes a command that must fail without a trace, even after an undo.
    void refuse(UndoCommand *command)
    {
        const QString before = text();
        const QStringList filesBefore = files();
        SCOPED_TRACE(typeid(*command).name() + command->text().toStdString());
        const int steps = stack().count();
        EXPECT_FALSE(stack().push(command));
        EXPECT_EQ(stack().count(), steps);
        EXPECT_EQ(text(), before);
        EXPECT_EQ(files(), filesBefore);
    }
};

TEST_F(BadInputTest, ObjectsWithoutAnOwnerOrOfAnotherProject)
{
    const std::unique_ptr<Project> foreign(static_cast<Project *>(make(u"Project"_s, u"Foreign"_s)));
    auto *screen = static_cast<Screen *>(add(foreign->screens(), "Screen", "Main"));
    DesignerObject *text1 = addTo(screen, "Text");
    DesignerObject *text2 = addTo(screen, "Text");
    DesignerObject *image = add(foreign->imageResources(), "ImageResource", "theirs.png");
    DesignerObject *speed = add(foreign->variables(), "NumberVariable", "pressure");
    DesignerObject *filter = add(screen->filters(), "FilterElement", "theirs");
    const QString theirs = DesignerObject::toString(foreign.get());

    DesignerObject *rectangle1 = element("rectangle1");
    DesignerObject *rectangle2 = element("rectangle2");
    DesignerObject *pump = object(u"pump.png"_s);
    DesignerObject *twice = make(u"Text"_s, u"twice"_s);
    const SharedProperty elements = main->elements();
    const SharedProperty noList = property(element("text1"), "text");
    const SharedProperty opacity = property(rectangle1, "opacity");
    const QString file = picture(u"new.png"_s);
    const auto group = [] { return make(u"GroupElement"_s, u"group1"_s); };
    const auto visual = [](DesignerObject *object) { return static_cast<VisualElement *>(object); };

    const QList<UndoCommand *> commands{
        new AddObject(elements, nullptr, true),
        new AddObject({}, make(u"Text"_s, u"t"_s), true),
        new AddObject(noList, make(u"Text"_s, u"t"_s), true),
        new AddObject(elements, rectangle1, true),
        new AddObject(elements, text1, true),
        new AddObject(elements, u"Nothing"_s, u"t"_s, true),
        new AddObject(elements, u"Text"_s, u"rectangle1"_s, true),
        new AddObject(elements, make(u"Screen"_s, u"s"_s), true),
        new AddScreen(nullptr, project.get(), 0),
        new AddScreen(main, project.get(), 0),
        new AddScreen(screen, project.get(), 0),
        new AddScreen(make(u"Text"_s, u"s"_s), project.get(), 0),
        new AddScreenAndElements(screen, project.get(), 0, nullptr),
        new AddVariable(nullptr, project.get()),
        new AddVariable(speed, project.get()),
        new AddVariable(variable("speed"), project.get()),
        new AddVariable(make(u"Text"_s, u"s"_s), project.get()),
        new AddImage(nullptr, file, project.get()),
        new AddImage(image, file, project.get()),
        new AddImage(make(u"ImageResource"_s, u"s.png"_s), file, nullptr),
        new AddImage(pump, file, project.get()),
        new AddImage(make(u"ImageResource"_s, u"s.png"_s), u"/nowhere.png"_s, project.get()),
        new AddImage(make(u"ImageResource"_s, u"../s.png"_s), file, project.get()),
        new AddImageFromData(QImage(), project.get()),
        new AddImageFromData(QImage(3, 3, QImage::Format_RGB32), nullptr, QPointF()),
        new AddImagesAndElements({}, {nullptr}, main),
        new AddImagesAndElements({}, {make(u"Image"_s, u"i"_s)}, nullptr),
        new AddElementsWithResources(main, {nullptr}, {nullptr}, {nullptr}, true),
        new AddElementsWithResources(main, {make(u"Text"_s, u"t"_s)}, {nullptr}, {nullptr}, true),
        new AddElementsWithResources(nullptr, {make(u"Text"_s, u"t"_s)}, {}, {}, true),
        new AddElementsWithResources(main, {text1}, {}, {}, true),
        new AddElementsWithResources(main, {twice, twice}, {}, {}, true),
        new DeleteObject(nullptr, true),
        new DeleteScreen(nullptr),
        new DeleteScreen(rectangle1),
        new DeleteVariable(nullptr),
        new DeleteVariable(rectangle1),
        new DeleteFilter(main->filters(), nullptr, true),
        new DeleteFilter(main->filters(), filter, true),
        new DeleteFiltersWithObjects({nullptr}, main, true, true),
        new DeleteFiltersWithObjects({filter}, main, true, true),
        new DeleteFiltersWithObjects({}, nullptr, true, true),
        new DeleteObjectsAndCheckFilters({nullptr}, main),
        new DeleteObjectsAndCheckFilters({rectangle1}, nullptr),
        new DeleteObjectsAndCheckFilters({text1}, main),
        new DeleteObjectsAndCheckFilters({main}, main),
        new RemoveObject(elements, nullptr, true),
        new RemoveObject({}, rectangle1, true),
        new RemoveObject(elements, text1, true),
        new ChangeProperty({}, u"x"_s, true),
        new ChangeVisualElements(property(rectangle1, "opacity"), {nullptr}),
        new ChangeVisualElements(property(rectangle1, "opacity"), {visual(text1)}),
        new ChangeConfiguration(nullptr, u"VTR 50-K"_s),
        new ChangeConfiguration(project.get(), u"none"_s),
        new GroupCommand(nullptr, {rectangle1, rectangle2}),
        new GroupCommand(group(), {nullptr, nullptr}),
        new GroupCommand(group(), {rectangle1, rectangle1}),
        new GroupCommand(group(), {rectangle1, text1}),
        new GroupCommand(group(), {text1, rectangle1, text2}),
        new UngroupCommand(nullptr),
        new UngroupCommand(rectangle1),
        new SplitGroup(nullptr, QStringList{u"x"_s}),
        new SwapItems(elements, nullptr, nullptr),
        new SwapItems(elements, rectangle1, text1),
        new SwapItems(elements, rectangle1, rectangle1),
        new MoveObject(elements, other->elements(), nullptr, true),
        new MoveObject(elements, {}, rectangle1, true),
        new MoveObject({}, elements, rectangle1, true),
        new MoveObject(elements, other->elements(), text1, true),
        new MoveObject(elements, screen->elements(), rectangle1, true),
        new MoveObject(elements, project->variables(), rectangle1, true),
        new RenameImage(nullptr, u"x.png"_s),
        new RenameImage(rectangle1, u"x.png"_s),
        new RenameImage(pump, u"../x.png"_s),
        new RenameImage(image, u"x.png"_s),
        new RenameProject(nullptr, u"x"_s),
        new RenameProject(project.get(), u"../x"_s),
        new RenameScreen(main, u"Other"_s),
        new RenameVariable(rectangle1, u"x"_s),
        new ReplaceImage(nullptr, file, u"x.png"_s),
        new ReplaceImage(pump, u"/nowhere.png"_s, u"x.png"_s),
        new ReplaceImage(pump, file, u"../x.png"_s),
    };
    for (UndoCommand *command : commands) {
        refuse(command);
    }
    EXPECT_EQ(DesignerObject::toString(foreign.get()), theirs);
    // An object that is given twice counts once. Uses in another project are ignored.
    push(new DeleteObjectsAndCheckFilters({rectangle1, rectangle1}, main));
    push(new AddImage(make(u"ImageResource"_s, u"new.png"_s), file, project.get(), {nullptr, text1}));
    EXPECT_EQ(DesignerObject::toString(foreign.get()), theirs);
}

TEST_F(BadInputTest, FilesThatAppearAndDisappear)
{
    const QString file = picture(u"new.png"_s);
    const QString images = project->imagesPath() + u'/';
    const QString first = text();
    // Removed before the command is done.
    auto *late = new AddImage(make(u"ImageResource"_s, u"late.png"_s), picture(u"late.png"_s), project.get());
    QFile::remove(folder.filePath(u"late.png"_s));
    refuse(late);
    // A file with that name exists but belongs to no image of the project.
    writePicture("stray.png", Qt::green);
    refuse(new RenameImage(object(u"pump.png"_s), u"stray.png"_s));
    refuse(new AddImage(make(u"ImageResource"_s, u"stray.png"_s), file, project.get()));
    refuse(new ReplaceImage(object(u"pump.png"_s), file, u"stray.png"_s));
    // Removed between redo and undo: the history continues without the file.
    push(new AddImage(make(u"ImageResource"_s, u"added.png"_s), file, project.get()));
    push(new RenameImage(object(u"added.png"_s), u"renamed.png"_s));
    push(new ReplaceImage(object(u"pump.png"_s), file, u"pump.png"_s));
    const QString last = text();
    for (const QString &name : files()) {
        QFile::remove(images + name);
    }
    stack().setIndex(0);
    EXPECT_EQ(text(), first);
    stack().setIndex(stack().count());
    EXPECT_EQ(text(), last);
    EXPECT_EQ(files(), (QStringList{u"pump.png"_s, u"renamed.png"_s}));
    // A resource without a file gets one, and loses it again.
    QFile::remove(images + u"pump.png"_s);
    push(new ReplaceImage(object(u"pump.png"_s), file, u"pump.png"_s));
    stack().undo();
    EXPECT_FALSE(files().contains(u"pump.png"_s));
    stack().redo();
    EXPECT_TRUE(files().contains(u"pump.png"_s));
}

TEST_F(BadInputTest, AFullDisk)
{
    const QString file = picture(u"new.png"_s);
    const rlimit none{0, RLIM_INFINITY};
    rlimit usual{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    const auto ignored = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &none);
    refuse(new AddImage(make(u"ImageResource"_s, u"new.png"_s), file, project.get()));
    refuse(new ReplaceImage(object(u"pump.png"_s), file, u"pump.png"_s));
    refuse(new ReplaceImage(object(u"pump.png"_s), file, u"other.png"_s));
    refuse(new AddImageFromData(QImage(file), main, {}));
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, ignored);
    // There is no folder for them either.
    QDir(project->imagesPath()).removeRecursively();
    QFile(project->imagesPath()).open(QIODevice::WriteOnly);
    refuse(new AddImage(make(u"ImageResource"_s, u"new.png"_s), file, project.get()));
    refuse(new AddImageFromData(QImage(file), main, {}));
}

} // namespace Halvane::Corvex::Designer::Test
