// SPDX-License-Identifier: MIT
// The commands that depend on the kind of an object: each does its work, and undo restores everything.
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/commands/groups/GroupCommand.h"
#include "corvex/project/elements/GroupElement.h"

#include "CommandFixture.h"

namespace Halvane::Corvex::Designer::Test {

using namespace Qt::StringLiterals;

namespace {

class KindCommands : public CommandFixture
{
protected:
    void SetUp() override
    {
        CommandFixture::SetUp();
        push(new GroupCommand(make(u"GroupElement"_s, u"group1"_s),
                              {element("rectangle1"), element("text1")}));
        ASSERT_TRUE(set(element("button1"), "visualElement",
                        u"filterType: VisualElement; objectId: group1.rectangle1; scopeType: Screen;"_s));
        ASSERT_TRUE(set(element("rectangle2"), "xBinding",
                        u"<0306rectangle1.x><0101+><0306Main.rectangle2.x><0101+><0406speed>"_s));
        ASSERT_TRUE(set(element("image1"), "source",
                        u"filterType: ImageResource; objectId: pump.png; scopeType: Project;"_s));
        ASSERT_TRUE(set(element("screenLoader1"), "screen",
                        u"filterType: Screen; objectId: Other; scopeType: Project;"_s));
        ASSERT_TRUE(set(object(u"filter1"_s), "elements", u"rectangle1 | button1"_s));
        project->validate();
    }

    DesignerObject *find(const char *name) const { return object(QString::fromLatin1(name)); }
    QStringList files() const { return QDir(project->imagesPath()).entryList(QDir::Files, QDir::Name); }
    //! Pushes a command, which must exist, and checks that undo and redo restore the same project and files.
    void walk(PlannedCommand planned, const QString &title)
    {
        ASSERT_TRUE(planned) << qPrintable(planned.reason);
        const QPair before{text(), files()};
        EXPECT_EQ(planned.command->text(), title);
        ASSERT_TRUE(stack().push(planned.command.release())) << qPrintable(stack().errorString());
        const QPair after{text(), files()};
        EXPECT_NE(after.first, before.first);
        stack().undo();
        EXPECT_EQ((QPair{text(), files()}), before);
        stack().redo();
        EXPECT_EQ((QPair{text(), files()}), after);
    }
    void duplicate(const QList<const char *> &names, const QString &title)
    {
        QList<DesignerObject *> objects;
        for (const char *name : names) {
            objects.append(find(name));
        }
        walk(Commands::duplicationOf(objects), title);
    }
};

} // namespace

TEST_F(KindCommands, EachKindIsRenamedAndDeleted)
{
    const struct
    {
        const char *name;
        const char *newName;
        QString renaming;
        QString deletion;
    } rows[] = {
        {"Other", "Second", u"Rename Screen \"Other\""_s, u"Delete Screen \"Second\""_s},
        {"speed", "rate", u"Rename Project Variable \"speed\""_s, u"Delete Project Variable \"rate\""_s},
        {"pump.png", "tank.png", u"Rename Image Resource \"pump.png\""_s,
         u"Delete Image Resource \"tank.png\""_s},
        {"filter1", "boxes", u"Change Name"_s, u"Delete \"boxes\""_s},
        {"rectangle1", "tank", u"Change Name"_s, u"Delete Elements and Filters"_s},
        {"group1", "both", u"Change Name"_s, u"Delete Elements and Filters"_s},
    };
    for (const auto &[name, newName, renaming, deletion] : rows) {
        SCOPED_TRACE(name);
        walk(Commands::renameOf(find(name), QString::fromLatin1(newName)), renaming);
        EXPECT_FALSE(text().contains(QLatin1StringView(name)));
        walk(Commands::deletionOf(find(newName)), deletion);
        EXPECT_FALSE(text().contains(QLatin1StringView(newName)));
    }
    const PlannedCommand renamed = Commands::renameOf(project.get(), u"Station"_s);
    EXPECT_TRUE(renamed) << qPrintable(renamed.reason);
    walk(Commands::deletionOf(
             QList<DesignerObject *>{find("image1"), find("on"), find("button1"), find("on")}),
         u"Delete Project Variable \"on\", Delete Elements and Filters"_s);
}

TEST_F(KindCommands, RefusalsHaveAReason)
{
    const auto reasonOf = [](const PlannedCommand &planned) {
        EXPECT_FALSE(planned);
        return planned.reason;
    };
    DesignerObject *model = project->configuration()->objectValue();
    EXPECT_EQ(reasonOf(Commands::deletionOf(project.get())), u"\"Pumps\" cannot be deleted."_s);
    EXPECT_EQ(reasonOf(Commands::deletionOf({find("speed"), model})), u"\"VTR 50-K\" cannot be deleted."_s);
    EXPECT_EQ(reasonOf(Commands::renameOf(model, u"New"_s)), u"\"VTR 50-K\" cannot be renamed."_s);
    EXPECT_EQ(reasonOf(Commands::renameOf(find("speed"), u"speed"_s)), u"The name is already \"speed\"."_s);
    for (const char *name : {"speed", "Other", "rectangle1"}) {
        EXPECT_NE(reasonOf(Commands::renameOf(find(name), u"history"_s)), QString()) << name;
    }
    EXPECT_EQ(reasonOf(Commands::duplicationOf({find("speed"), model})),
              u"\"VTR 50-K\" cannot be duplicated."_s);
    EXPECT_EQ(reasonOf(Commands::duplicationOf({})), u"There is nothing to duplicate."_s);
    QString withUnknown = DesignerObject::toString(find("group1"));
    withUnknown.replace(u"<Text>"_s, u"<Gauge>"_s).replace(u"</Text>"_s, u"</Gauge>"_s);
    DesignerObject *group = DesignerObject::createFromString(withUnknown);
    ASSERT_TRUE(group && group->setIdName(u"group9"_s));
    ASSERT_TRUE(other->addListPropertyItem(other->elements(), group));
    EXPECT_EQ(
        reasonOf(Commands::duplicationOf({group})),
        u"\"Other.group9\" cannot be duplicated: it contains \"text1\", and no plug-in provides its class "
        "Gauge."_s);
    QFile::remove(project->imagesPath() + u"/pump.png"_s);
    EXPECT_NE(reasonOf(Commands::duplicationOf({find("pump.png")})), QString());
}

TEST_F(KindCommands, EachKindIsDuplicatedUnderAFreeName)
{
    const struct
    {
        const char *name;
        const char *copy;
    } rows[] = {
        {"Main", "Main1"},
        {"speed", "speed1"},
        {"pump.png", "pump1.png"},
        {"filter1", "filter2"},
        {"rectangle1", "rectangle3"},
        {"group1", "group2"},
        {"pwmOutput1", "pwmOutput2"},
        {"map1", "map2"},
    };
    for (const auto &[name, copy] : rows) {
        SCOPED_TRACE(name);
        duplicate({name}, u"Duplicate \"%1\""_s.arg(QLatin1StringView(name)));
        const DesignerObject *made = find(copy);
        ASSERT_TRUE(made);
        EXPECT_EQ(made->listProperty(), find(name)->listProperty());
        EXPECT_TRUE(made->idProperty()->isValid()) << qPrintable(made->idProperty()->errorString());
    }
    // Members of groups count as elements of the screen.
    const auto *group = static_cast<const GroupElement *>(find("group2"));
    EXPECT_EQ(group->childrenNames(), (QStringList{u"rectangle4"_s, u"text2"_s, u"rectangle5"_s}));
    EXPECT_EQ(group->indexes()->valueString(), u"rectangle4 | text2 | rectangle5"_s);
    EXPECT_EQ(value(find("group1"), "indexes"), u"rectangle1 | text1 | rectangle3"_s);
    // A name with another meaning, and a stem that leaves no room for a number.
    add(project->variables(), "NumberVariable", "atan1");
    duplicate({"atan1"}, u"Duplicate \"atan1\""_s);
    EXPECT_TRUE(find("atan3"));
    const QByteArray longName(255, 'a');
    add(main->elements(), "Text", longName.constData());
    duplicate({longName.constData()}, u"Duplicate \"%1\""_s.arg(QLatin1StringView(longName)));
    EXPECT_TRUE(find("text3"));
}

TEST_F(KindCommands, DuplicatesReferToEachOther)
{
    // In another order than on the screen, with one of them inside another.
    duplicate({"image1", "filter1", "group1", "rectangle1", "rectangle2", "button1", "speed"},
              u"Duplicate 6 objects"_s);
    EXPECT_EQ(value(find("button2"), "visualElement"),
              u"filterType: VisualElement; objectId: group2.rectangle4; scopeType: Screen;"_s);
    EXPECT_EQ(value(find("rectangle3"), "xBinding"),
              u"<0306rectangle4.x><0101+><0306Main.rectangle3.x><0101+><0406speed1>"_s);
    EXPECT_EQ(value(find("filter2"), "elements"), u"rectangle4 | button2"_s);
    EXPECT_EQ(value(find("image2"), "source"), value(find("image1"), "source"));
    EXPECT_EQ(value(find("button1"), "visualElement"),
              u"filterType: VisualElement; objectId: group1.rectangle1; scopeType: Screen;"_s);
    const auto isBelow = [this](const char *lower, const char *upper) {
        return main->elements()->getListItemIndex(find(lower))
               < main->elements()->getListItemIndex(find(upper));
    };
    EXPECT_EQ(isBelow("group2", "rectangle3"), isBelow("group1", "rectangle2"));
    EXPECT_EQ(isBelow("rectangle3", "image2"), isBelow("rectangle2", "image1"));
    EXPECT_TRUE(isBelow("image1", "rectangle3"));

    // On a copied screen, names without a path refer to the copies.
    duplicate({"Main", "Other"}, u"Duplicate 2 objects"_s);
    const auto *copy = static_cast<const Screen *>(find("Main1"));
    EXPECT_EQ(value(copy->getElement(u"rectangle2"_s), "xBinding"),
              u"<0306rectangle1.x><0101+><0306Main1.rectangle2.x><0101+><0406speed>"_s);
    EXPECT_EQ(value(copy->getElement(u"screenLoader1"_s), "screen"),
              u"filterType: Screen; objectId: Other1; scopeType: Project;"_s);
    EXPECT_EQ(project->screens()->listItemNames(),
              (QStringList{u"Main"_s, u"Other"_s, u"Main1"_s, u"Other1"_s}));
}

} // namespace Halvane::Corvex::Designer::Test
