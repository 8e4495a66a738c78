// SPDX-License-Identifier: MIT
// Every place and form of a reference: found, renamed, dropped and restored.
#include "corvex/editing/references/ReferenceChanges.h"
#include "corvex/editing/references/ReferenceIndex.h"
#include "corvex/editing/references/ReferenceScanner.h"

#include "CommandFixture.h"

namespace Halvane::Corvex::Designer::Test {

namespace {

struct Row
{
    const char *owner;
    const char *property;
    const char *text;
    const char *target; //!< renamed to "renamed", or to "renamed.png"
    const char *renamed;
    const char *dropped;
};

// The texts are in the form that the properties write.
const Row rows[] = {
    // Links.
    {"button1", "visualElement", "filterType: VisualElement; objectId: rectangle1; scopeType: Screen;",
     "rectangle1", "filterType: VisualElement; objectId: renamed; scopeType: Screen;",
     "filterType: VisualElement; objectId: ; scopeType: Screen;"},
    {"button1", "visualElement", "filterType: VisualElement; objectId: group1.rectangle1; scopeType: Screen;",
     "rectangle1", "filterType: VisualElement; objectId: group1.renamed; scopeType: Screen;",
     "filterType: VisualElement; objectId: ; scopeType: Screen;"},
    {"numberSpinner1", "decVisualElement", "filterType: VisualElement; objectId: text1; scopeType: Screen;",
     "text1", "filterType: VisualElement; objectId: renamed; scopeType: Screen;",
     "filterType: VisualElement; objectId: ; scopeType: Screen;"},
    {"numberSpinner1", "variable", "filterType: NumberVariable; objectId: speed; scopeType: Project;",
     "speed", "filterType: NumberVariable; objectId: renamed; scopeType: Project;",
     "filterType: NumberVariable; objectId: ; scopeType: Project;"},
    {"dataLogging1", "variable", "filterType: LogVariable; objectId: history; scopeType: Project;", "history",
     "filterType: LogVariable; objectId: renamed; scopeType: Project;",
     "filterType: LogVariable; objectId: ; scopeType: Project;"},
    {"serialCOMPort1", "mapping", "filterType: MappingVariable; objectId: map1; scopeType: Project;", "map1",
     "filterType: MappingVariable; objectId: renamed; scopeType: Project;",
     "filterType: MappingVariable; objectId: ; scopeType: Project;"},
    {"screenLoader1", "screen", "filterType: Screen; objectId: Other; scopeType: Project;", "Other",
     "filterType: Screen; objectId: renamed; scopeType: Project;",
     "filterType: Screen; objectId: ; scopeType: Project;"},
    {"image1", "source", "filterType: ImageResource; objectId: pump.png; scopeType: Project;", "pump.png",
     "filterType: ImageResource; objectId: renamed.png; scopeType: Project;",
     "filterType: ImageResource; objectId: ; scopeType: Project;"},
    // A link to another object with the same name.
    {"image1", "source", "filterType: ImageResource; objectId: speed; scopeType: Project;", "speed", nullptr,
     nullptr},
    // Expressions.
    {"rectangle2", "xBinding", "0306rectangle1.width", "rectangle1", "0306renamed.width", "0306"},
    {"rectangle1", "xBinding", "<0306rectangle1.width><0101+><0306group1.rectangle1.width>", "rectangle1",
     "<0306renamed.width><0101+><0306group1.renamed.width>", nullptr},
    {"rectangle2", "xBinding", "<0306rectangle10.width><0101+><0306text1.rectangle1>", "rectangle1", nullptr,
     nullptr},
    {"text1", "textBinding", "<0406speed><0101+><0306rectangle1.speed><0101+><0406speed>", "speed",
     "<0406renamed><0101+><0306rectangle1.speed><0101+><0406renamed>",
     "<0406><0101+><0306rectangle1.speed><0101+><0406>"},
    {"pwmOutput1", "initValue", "0406speed", "speed", "0406renamed", "0406"},
    {"sPICommunication1", "dataValues", "<0406speed><0306rectangle1.x>", "rectangle1",
     "<0406speed><0306renamed.x>", "<0406speed><0306>"},
    {"rectangle2", "xBinding", "0306Other.rectangle1.width", "rectangle1", nullptr, nullptr},
    {"rectangle2", "xBinding", "0306Other.rectangle1.width", "Other", "0306renamed.rectangle1.width", "0306"},
    {"map1", "holdingRegMap", "<02049C41><0306Main.rectangle1.x>", "rectangle1",
     "<02049C41><0306Main.renamed.x>", "<02049C41><0306>"},
    {"map1", "holdingRegMap", "<02049C41><0306Main.rectangle1.x>", "Main",
     "<02049C41><0306renamed.rectangle1.x>", "<02049C41><0306>"},
    {"map1", "holdingRegMap", "<02049C41><0306Other.rectangle1.x>", "rectangle1", nullptr, nullptr},
    {"map1", "holdingRegMap", "<02049C41><0406speed>", "speed", "<02049C41><0406renamed>",
     "<02049C41><0406>"},
    // States and changes.
    {"button1", "normalState",
     "name: rectangle1; propertyValues: propName%3A color%3B propValue%3A rectangle1%3B; | name: text1;",
     "rectangle1",
     "name: renamed; propertyValues: propName%3A color%3B propValue%3A rectangle1%3B; | name: text1;",
     "name: text1;"},
    {"button1", "normalState", "name: text1; screen: Other; | name: text1;", "Other",
     "name: text1; screen: renamed; | name: text1;", "name: text1;"},
    {"checkButton1", "uncheckedState", "name: group1.rectangle1;", "rectangle1", "name: group1.renamed;", ""},
    {"numberSpinner1", "incPressedState", "name: rectangle1;", "rectangle1", "name: renamed;", ""},
    {"button1", "pressedState",
     "name: image1; propertyValues: propName%3A source%3B propValue%3A filterType%253A ImageResource%253B "
     "objectId%253A pump.png%253B scopeType%253A Project%253B%3B;",
     "pump.png",
     "name: image1; propertyValues: propName%3A source%3B propValue%3A filterType%253A ImageResource%253B "
     "objectId%253A renamed.png%253B scopeType%253A Project%253B%3B;",
     "name: image1; propertyValues: propName%3A source%3B propValue%3A filterType%253A ImageResource%253B "
     "objectId%253A %253B scopeType%253A Project%253B%3B;"},
    {"action1", "propertyChanges",
     "elementName: rectangle1; propertyName: color; valueString: I0ZGMDAwMDAw; | elementName: text1; "
     "propertyName: text; valueString: ;",
     "text1",
     "elementName: rectangle1; propertyName: color; valueString: I0ZGMDAwMDAw; | elementName: renamed; "
     "propertyName: text; valueString: ;",
     "elementName: rectangle1; propertyName: color; valueString: I0ZGMDAwMDAw;"},
    {"action1", "propertyChanges",
     "elementName: dataLogging1; propertyName: variable; valueString: "
     "ZmlsdGVyVHlwZTogTG9nVmFyaWFibGU7IG9iamVjdElkOiBoaXN0b3J5OyBzY29wZVR5cGU6IFByb2plY3Q7;",
     "history",
     "elementName: dataLogging1; propertyName: variable; valueString: "
     "ZmlsdGVyVHlwZTogTG9nVmFyaWFibGU7IG9iamVjdElkOiByZW5hbWVkOyBzY29wZVR5cGU6IFByb2plY3Q7;",
     "elementName: dataLogging1; propertyName: variable; valueString: "
     "ZmlsdGVyVHlwZTogTG9nVmFyaWFibGU7IG9iamVjdElkOiA7IHNjb3BlVHlwZTogUHJvamVjdDs=;"},
    {"action1", "propertyChanges",
     "elementName: pwmOutput1; propertyName: initValue; valueString: MDQwNnNwZWVk;", "speed",
     "elementName: pwmOutput1; propertyName: initValue; valueString: MDQwNnJlbmFtZWQ=;",
     "elementName: pwmOutput1; propertyName: initValue; valueString: MDQwNg==;"},
    // Lists of names and pairs.
    {"filter1", "elements", "rectangle1 | text1 | rectangle10", "rectangle1", "renamed | text1 | rectangle10",
     "text1 | rectangle10"},
    {"bACnetService1", "bacNetObjectList", "speed | on", "speed", "renamed | on", "on"},
    {"bACnetService1", "bacNetDevices", "on", "on", "renamed", ""},
    {"modbusCommands1", "commands", "speed|0103 | on|0106", "speed", "renamed|0103 | on|0106",
     "|0103 | on|0106"},
    {"propertyTrigger1", "actionScheduler", "action1, action2", "action1", "renamed, action2", "action2"},
    {"logicBuilder1", "logicExpression", "0406speed|<0306rectangle1.x><0406speed>, 0403on|", "speed",
     "0406renamed|<0306rectangle1.x><0406renamed>, 0403on|", "0406|<0306rectangle1.x><0406>, 0403on|"},
    {"logicBuilder1", "logicExpression", "0403on|<0306rectangle1.x><0406speed>", "rectangle1",
     "0403on|<0306renamed.x><0406speed>", "0403on|<0306><0406speed>"},
};

QString apply(const QList<ValueChange> &changes, const SharedProperty &property)
{
    for (const ValueChange &change : changes) {
        EXPECT_TRUE(change.redo()) << qPrintable(change.after);
    }
    const QString text = property->valueString();
    for (const ValueChange &change : changes) {
        EXPECT_TRUE(change.undo()) << qPrintable(change.before);
    }
    return text;
}

} // namespace

class ReferenceTest : public CommandFixture
{ };

TEST_F(ReferenceTest, AllFormsAreFoundRenamedAndDropped)
{
    // The index exists before the values, so it must follow the changes.
    ReferenceIndex::of(project.get());
    for (const Row &row : rows) {
        SCOPED_TRACE(testing::Message() << row.owner << '.' << row.property << ": " << row.text);
        DesignerObject *owner = object(QString::fromLatin1(row.owner));
        DesignerObject *target = object(QString::fromLatin1(row.target));
        ASSERT_TRUE(owner && target);
        const SharedProperty site = property(owner, row.property);
        const QString empty = site->valueString();
        const QString text = QString::fromLatin1(row.text);
        ASSERT_TRUE(set(owner, row.property, text)) << qPrintable(site->valueString());

        const bool isImage = QString::fromLatin1(row.target).endsWith(QStringLiteral(".png"));
        const QString newName = isImage ? QStringLiteral("renamed.png") : QStringLiteral("renamed");
        const QList<ReferenceUse> uses = ReferenceScanner::uses(ReferenceTarget(target));
        EXPECT_EQ(!uses.isEmpty(), row.renamed != nullptr);
        EXPECT_EQ(apply(ReferenceChanges::renamed(target, newName), site),
                  QString::fromLatin1(row.renamed ? row.renamed : row.text));
        EXPECT_EQ(apply(ReferenceChanges::removed({target}), site),
                  QString::fromLatin1(row.dropped ? row.dropped : row.text));
        EXPECT_EQ(site->valueString(), text);
        ASSERT_TRUE(set(owner, row.property, empty));
        EXPECT_TRUE(ReferenceChanges::renamed(target, newName).isEmpty());
    }
}

TEST_F(ReferenceTest, AnElementTakesPrecedenceOverAScreenWithItsName)
{
    DesignerObject *namesake = add(main->elements(), "Rectangle", "Other");
    DesignerObject *elsewhere = addTo(other, "Rectangle");
    ASSERT_TRUE(set(element("button1"), "visualElement",
                    QStringLiteral("filterType: VisualElement; objectId: Other; scopeType: Screen;")));
    ASSERT_TRUE(set(element("text1"), "xBinding", QStringLiteral("0306Other.x")));
    ASSERT_TRUE(set(elsewhere, "xBinding", QStringLiteral("0306Other.brightness")));
    const auto referrers = [](const DesignerObject *renamed) {
        QStringList names;
        for (const ValueChange &change : ReferenceChanges::renamed(renamed, QStringLiteral("r"))) {
            names.append(change.property->parentObject()->objectPath());
        }
        names.sort();
        return names;
    };
    EXPECT_EQ(referrers(namesake),
              QStringList({QStringLiteral("Main.button1"), QStringLiteral("Main.text1")}));
    EXPECT_EQ(referrers(other), QStringList{elsewhere->objectPath()});
}

TEST_F(ReferenceTest, TheIndexFollowsInsertedAndRemovedObjects)
{
    const ReferenceIndex &index = ReferenceIndex::of(project.get());
    DesignerObject *late = make(QStringLiteral("Rectangle"), QStringLiteral("late1"));
    ASSERT_TRUE(set(late, "xBinding", QStringLiteral("0306rectangle1.x")));
    const auto referrers = [this] {
        QStringList names;
        for (const ValueChange &change :
             ReferenceChanges::renamed(element("rectangle1"), QStringLiteral("r"))) {
            names.append(change.property->parentObject()->getIdName());
        }
        return names;
    };
    EXPECT_EQ(referrers(), QStringList());
    ASSERT_TRUE(main->addListPropertyItem(main->elements(), late));
    EXPECT_EQ(referrers(), QStringList{QStringLiteral("late1")});

    // On another screen the same name refers to another element.
    ASSERT_TRUE(main->takeListPropertyItem(main->elements(), late));
    EXPECT_EQ(referrers(), QStringList());
    ASSERT_TRUE(other->addListPropertyItem(other->elements(), late));
    EXPECT_EQ(referrers(), QStringList());
    EXPECT_TRUE(index.mentioning(main, QStringLiteral("rectangle1")).isEmpty())
        << "Many screens have elements of the same name.";
    ASSERT_TRUE(set(late, "xBinding", QStringLiteral("0306Main.rectangle1.x")));
    EXPECT_EQ(referrers(), QStringList{QStringLiteral("late1")});
    EXPECT_EQ(index.mentioning(main, QStringLiteral("rectangle1")).size(), 1);

    delete other->takeListPropertyItem(other->elements(), late);
    EXPECT_EQ(referrers(), QStringList());

    // A name that is listed twice remains if one of the two is removed.
    DesignerObject *filter = object(QStringLiteral("filter1"));
    for (const char *names : {"rectangle1 | text1 | rectangle1", "rectangle1 | text1 | rectangle2"}) {
        ASSERT_TRUE(set(filter, "elements", QString::fromLatin1(names)));
        EXPECT_EQ(referrers(), QStringList{QStringLiteral("filter1")}) << names;
    }
    ASSERT_TRUE(set(filter, "elements", QStringLiteral("rectangle2")));
    EXPECT_EQ(referrers(), QStringList());
    ASSERT_TRUE(set(element("text1"), "xBinding", QStringLiteral("0306rectangle1.x")));
    delete element("text1");
    EXPECT_EQ(referrers(), QStringList());
}

} // namespace Halvane::Corvex::Designer::Test
