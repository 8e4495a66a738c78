// SPDX-License-Identifier: MIT
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/GroupElement.h"

#include "ProjectFixture.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

class ScreenTest : public Test::ProjectFixture
{
protected:
    //! Groups represent all visual elements here, because the core has no others.
    GroupElement *addGroup(const QString &name, DesignerObject *to = nullptr)
    {
        auto *group = make<GroupElement>(u"GroupElement"_s, name);
        DesignerObject *owner = to ? to : screen;
        EXPECT_TRUE(owner->addListPropertyItem(owner->getProperty(u"elements"), group)) << qPrintable(name);
        return group;
    }

    static void set(DesignerObject *object, QStringView id, const QString &value)
    {
        object->changePropertyValue(object->getProperty(id), value);
    }

    static QString nameError(DesignerObject *object)
    {
        object->validate();
        return object->idProperty()->errorString();
    }

    const std::unique_ptr<Project> project = makeProject();
    DesignerObject *const configuration = project->configuration()->objectValue();
    Screen *const screen = static_cast<Screen *>(project->screens()->listItems().constFirst());
};

//! Does something once its screen is set.
class Starter : public GroupElement
{
public:
    explicit Starter(const QString &name)
    {
        initialize();
        setIdName(name);
    }
    QString onCompletedQml(int indent) const override
    {
        return u"%1start(\"%2\");"_s.arg(getTabs(indent), getIdName());
    }
};

} // namespace

TEST_F(ScreenTest, StartHandlersAreAtTheEndOfAScreen)
{
    EXPECT_FALSE(screen->toQml(0).contains(u"onCompleted"_s));
    GroupElement *group = addGroup(u"group"_s);
    group->addListPropertyItem(group->elements(), new Starter(u"inner"_s));
    screen->addListPropertyItem(screen->elements(), new Starter(u"outer"_s));
    EXPECT_TRUE(screen->toQml(0).endsWith(
        u"\n\tComponent.onCompleted: {\n\tstart(\"inner\");\n\tstart(\"outer\");\n\t}\n}\n"_s))
        << qPrintable(screen->toQml(0));
}

TEST_F(ScreenTest, TheSizeFollowsTheConfigurationAndTheOrientation)
{
    const std::unique_ptr<Screen> lone(make<Screen>(u"Screen"_s, u"Lone"_s));
    EXPECT_EQ(lone->size()->valueString(), u"height: 300; width: 500;"_s);
    EXPECT_EQ(screen->size()->valueString(), u"height: 272; width: 480;"_s);
    set(screen, u"orientation", u"90"_s);
    EXPECT_EQ(screen->size()->valueString(), u"height: 480; width: 272;"_s);
    set(screen, u"size", u"height: 1; width: 2;"_s);
    set(screen, u"orientation", u"270"_s);
    EXPECT_EQ(screen->size()->valueString(), u"height: 1; width: 2;"_s) << "no quarter turn came or went";
    set(configuration, u"screenSize", u"height: 800; width: 1280;"_s);
    EXPECT_EQ(screen->size()->valueString(), u"height: 1280; width: 800;"_s);
    EXPECT_FALSE(DesignerObject::toString(screen).contains(u"\"size\""_s));
}

TEST_F(ScreenTest, ElementsInGroupsAreFoundAfterInsertionAndRemoval)
{
    GroupElement *outer = addGroup(u"outer"_s);
    GroupElement *inner = addGroup(u"inner"_s, outer);
    auto *late = make<GroupElement>(u"GroupElement"_s, u"late"_s);
    inner->addListPropertyItem(inner->elements(), late);
    EXPECT_EQ(screen->getElementNames(), QStringList({u"outer"_s, u"inner"_s, u"late"_s}));
    EXPECT_EQ(screen->getElement(u"late"_s), late);
    EXPECT_EQ(late->screen(), screen);
    EXPECT_EQ(late->project(), project.get());
    EXPECT_EQ(late->parentScreen(), screen);
    EXPECT_EQ(late->objectPath(), u"Main.outer.inner.late"_s);
    EXPECT_TRUE(outer->hasChild(u"late"_s));

    late->setIdName(u"renamed"_s);
    EXPECT_FALSE(screen->hasElement(u"late"_s));
    EXPECT_EQ(screen->getElement(u"renamed"_s), late);

    const std::unique_ptr<DesignerObject> taken(screen->takeListPropertyItem(screen->elements(), outer));
    EXPECT_FALSE(screen->hasElement(u"renamed"_s));
    EXPECT_EQ(late->screen(), nullptr);
    EXPECT_EQ(late->project(), nullptr);
}

TEST_F(ScreenTest, FreeNamesCountFromOneAndReuseNumbers)
{
    EXPECT_EQ(screen->uniqueElementName(u"pump"_s), u"pump1"_s);
    GroupElement *first = addGroup(u"pump1"_s);
    addGroup(u"pump2"_s);
    EXPECT_EQ(screen->uniqueElementName(u"pump"_s), u"pump3"_s);
    EXPECT_EQ(screen->uniqueElementName(u"pump1"_s), u"pump11"_s);
    first->setIdName(u"motor"_s);
    EXPECT_EQ(screen->uniqueElementName(u"pump"_s), u"pump1"_s);
    const DesignerObject *variable = add(*project, project->variables(), u"NumberVariable"_s, u"pump1"_s);
    EXPECT_EQ(screen->uniqueElementName(u"pump"_s), u"pump3"_s);
    delete variable;
    EXPECT_EQ(screen->uniqueElementName(u"pump"_s), u"pump1"_s);
}

TEST_F(ScreenTest, NamesOfElementsAreCheckedInOrderOfTheRules)
{
    addGroup(u"twin"_s);
    project->addListPropertyItem(project->variables(), make<DesignerObject>(u"NumberVariable"_s, u"speed"_s));
    GroupElement *element = addGroup(u"element"_s);
    const QString format =
        u"The name is in the wrong format. Only letters, numbers and underscore are allowed. "
        "The first character must be a letter."_s;
    const struct
    {
        QString name;
        QString error;
    } cases[] = {
        {u"Pump_1"_s, {}},
        {u"a"_s, format},
        {u"a b"_s, format},
        {u"a\nb"_s, format},
        {u"p\u00F6mp"_s, format},
        {QString(255, u'a'), {}},
        {QString(256, u'a'), u"The name cannot have more than 255 characters."_s},
        {u"twin"_s, u"The name is not unique."_s},
        {u"while"_s, u"This name is reserved."_s},
        {u"While"_s, {}},
        {u"Main"_s, u"The name cannot be the same as the screen's name."_s},
        {u"speed"_s, u"The name cannot be the same as the project variables."_s},
        {u"sqrt"_s, {}},
    };
    for (const auto &[name, error] : cases) {
        element->setIdName(name);
        EXPECT_EQ(nameError(element), error) << qPrintable(name);
        EXPECT_EQ(element->getIdName(), name) << "the model keeps a bad name, marked";
    }
}

TEST_F(ScreenTest, NamesOfScreensAndVariablesAreChecked)
{
    auto *other = make<Screen>(u"Screen"_s, u"Other"_s);
    project->addListPropertyItem(project->screens(), other);
    addGroup(u"pump"_s);
    auto *variable = make<DesignerObject>(u"NumberVariable"_s, u"speed"_s);
    project->addListPropertyItem(project->variables(), variable);
    project->addListPropertyItem(project->variables(), make<DesignerObject>(u"NumberVariable"_s, u"level"_s));
    const struct
    {
        DesignerObject *object;
        QString name;
        QString error;
    } cases[] = {
        {screen, QString(247, u'a'), {}},
        {screen, QString(248, u'a'), u"The screen's name cannot have more than 247 characters."_s},
        {screen, u"Other"_s, u"The name is not unique."_s},
        {screen, u"pump"_s, u"The name is not unique."_s},
        {screen, u"level"_s, u"The name cannot be the same as the project variables."_s},
        {screen, u"Main"_s, {}},
        {variable, QString(255, u'a'), {}},
        {variable, QString(256, u'a'), u"The name cannot have more than 255 characters."_s},
        {variable, u"pump"_s, u"The name is not unique."_s},
        {variable, u"level"_s, u"The name is not unique."_s},
        {variable, u"Main"_s, u"The name cannot be the same as the screen's name."_s},
        {variable, u"sqrt"_s, u"The name cannot be the same as the standard math functions."_s},
        {variable, u"poly"_s, u"The name cannot be the same as the standard math functions."_s},
        {variable, u"qmlViewer"_s, u"This name is reserved."_s},
    };
    for (const auto &[object, name, error] : cases) {
        object->setIdName(name);
        EXPECT_EQ(nameError(object), error) << qPrintable(name);
    }
}

TEST_F(ScreenTest, GroupsAndScreensReportMissingParts)
{
    screen->validate();
    EXPECT_EQ(screen->elements()->errorString(), u"At least one element is required."_s);
    GroupElement *group = addGroup(u"group"_s);
    EXPECT_EQ(group->elements()->errorString(), u"At least two elements are required."_s);
    addGroup(u"aa"_s, group);
    addGroup(u"bb"_s, group);
    EXPECT_EQ(group->elements()->errorString(),
              u"At least one error is found in the children elements of the group."_s);
    const struct
    {
        QString indexes;
        QString error;
    } cases[] = {
        {u"aa | bb"_s, {}},
        {u"bb | aa"_s, {}},
        {u"aa"_s, u"There must be 2 elements in the group element \"group\"."_s},
        {u"aa | cc"_s, u"There must be 2 elements in the group element \"group\"."_s},
        {u"aa | bb | aa"_s, u"Element \"aa\" at index 2 is already set at index 0."_s},
    };
    for (const auto &[indexes, error] : cases) {
        set(group, u"indexes", indexes);
        EXPECT_EQ(group->indexes()->errorString(), error) << qPrintable(indexes);
    }
}

} // namespace Halvane::Corvex::Designer
