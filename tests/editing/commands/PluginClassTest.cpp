// SPDX-License-Identifier: MIT
#include "corvex/core/PropertyTable.h"
#include "corvex/core/TableFactory.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/CollectionProperties.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/project/elements/FunctionElement.h"
#include "corvex/values/runtime/PropertyList.h"

#include "CommandFixture.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

//! An element that the library only knows from its tables.
class Meter : public FunctionElement
{
    CORVEX_CLASS_NAMES(Meter, FunctionElement)

protected:
    using FunctionElement::FunctionElement;

    bool initializeProperties() override
    {
        static const PropertyTable table{
            row<LinkProperty>("feeder", "Feeder", ObjectLinkInfo()),
            row<LinkProperty>("face", "Face", ObjectLinkInfo()).needsPictures(),
            row<LinkProperty>("lamp", "Lamp", ObjectLinkInfo()),
            row<UpdateObjectListProperty>("alarmState", "Alarm", UpdateObjectList()).statesOf("lamp"),
            row<ListValueProperty>("sources", "Sources", ListInfo()).references(Form::Names),
            row<StringProperty>("rule", "Rule", QString()).references(Form::Expression),
            row<StringProperty>("note", "Note", QString()),
        };
        return FunctionElement::initializeProperties() && addProperties(table);
    }
};

class WaterMeter : public Meter
{
    CORVEX_CLASS_NAMES(WaterMeter, Meter)

protected:
    using Meter::Meter;
};

constexpr ClassRow classes[] = {
    {"Meter", &makeObject<Meter>, "meter", "Meter", "meters", "Button"},
    {"WaterMeter", &makeObject<WaterMeter>, "waterMeter", "Water Meter", nullptr, "Rectangle"},
};

class MeterFactory : public TableFactory
{
public:
    MeterFactory()
        : TableFactory(classes)
    { }
};

class PluginClassTest : public CommandFixture
{
protected:
    static void SetUpTestSuite()
    {
        CommandFixture::SetUpTestSuite();
        static MeterFactory factory;
        if (!DesignerFactory::instance()->canCreateObject(Meter::kindName())) {
            ASSERT_TRUE(DesignerFactory::instance()->registerFactory(&factory));
        }
    }

    void SetUp() override
    {
        CommandFixture::SetUp();
        meter = addTo(main, "WaterMeter");
        action = element("action1");
        PropertyList changes;
        changes.append(PropertyChangeInfo(u"text1"_s, u"feeder"_s, feeder(u"speed"_s)));
        const std::pair<const char *, QString> values[] = {
            {"feeder", feeder(u"speed"_s)},
            {"lamp", lamp(u"rectangle1"_s)},
            {"alarmState", u"name: rectangle1;"_s},
            {"sources", u"speed | rectangle1"_s},
            {"rule", u"0406speed"_s},
            {"note", u"speed"_s},
        };
        for (const auto &[id, text] : values) {
            EXPECT_TRUE(meter->changePropertyValue(property(meter, id), text)) << id;
            ASSERT_EQ(value(meter, id), text) << id << qPrintable(property(meter, id)->errorString());
        }
        ASSERT_TRUE(set(action, "propertyChanges", changes.toString()));
    }

    static QString feeder(const QString &name)
    {
        return u"filterType: NumberVariable; objectId: %1; scopeType: Project;"_s.arg(name);
    }
    static QString lamp(const QString &name)
    {
        return u"filterType: VisualElement; objectId: %1; scopeType: Screen;"_s.arg(name);
    }
    void pushPlanned(PlannedCommand planned)
    {
        ASSERT_TRUE(planned) << qPrintable(planned.reason);
        push(planned.command.release());
    }
    //! The values of the meter, in the order of its properties, and the changes of the action.
    QStringList values() const
    {
        QStringList texts;
        for (const char *id : {"feeder", "lamp", "alarmState", "sources", "rule", "note"}) {
            texts.append(value(meter, id));
        }
        const PropertyList changes(value(action, "propertyChanges"));
        return texts << (changes.isEmpty() ? QString() : changes.at(0).valueString());
    }

    DesignerObject *meter = nullptr;
    DesignerObject *action = nullptr;
};

} // namespace

TEST_F(PluginClassTest, ReferencesFollowAsItsRowsSay)
{
    const QString before = text();
    pushPlanned(Commands::renameOf(variable("speed"), u"flow"_s));
    pushPlanned(Commands::renameOf(element("rectangle1"), u"tank"_s));
    EXPECT_EQ(values(), QStringList({feeder(u"flow"_s), lamp(u"tank"_s), u"name: tank;"_s, u"flow | tank"_s,
                                     u"0406flow"_s, u"speed"_s, feeder(u"flow"_s)}));
    // If the link changes, the states are applied to the new element.
    push(new ChangeProperty(property(meter, "lamp"), lamp(u"rectangle2"_s), false));
    EXPECT_EQ(value(meter, "alarmState"), u"name: rectangle2;"_s);
    pushPlanned(Commands::deletionOf(variable("flow")));
    pushPlanned(Commands::deletionOf(element("rectangle2")));
    EXPECT_EQ(value(meter, "sources"), u"tank"_s);
    EXPECT_EQ(value(meter, "alarmState"), QString());
    EXPECT_FALSE(ObjectLinkInfo(value(meter, "feeder")).isValid());
    EXPECT_EQ(value(meter, "note"), u"speed"_s);
    stack().setIndex(0);
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(ChangeProperty(property(meter, "face"), u"objectId: pump.png;"_s, false).isValid());
    EXPECT_FALSE(ChangeProperty(property(meter, "face"), u"objectId: gone.png;"_s, false).isValid());
}

TEST_F(PluginClassTest, ItsFactorySaysWhereItIsWrittenAndHowItIsShown)
{
    addTo(other, "Meter");
    addTo(other, "DataLogging");
    const QString qml = other->toQml(0);
    const qsizetype functions = qml.indexOf("\tfunctions: [\n\t\tDataLogging {"_L1);
    EXPECT_GE(functions, 0) << qPrintable(qml);
    EXPECT_GT(qml.indexOf("\n\t]\n\tmeters: [\n\t\tMeter {"_L1), functions) << qPrintable(qml);
    // A class is written like its base class, and shown as its own row says.
    EXPECT_TRUE(main->toQml(0).contains("\tmeters: [\n\t\tWaterMeter {"_L1));
    EXPECT_EQ(DesignerFactory::previewOf(other->getElement(u"meter1"_s)), u"Button"_s);
    EXPECT_EQ(DesignerFactory::previewOf(meter), u"Rectangle"_s);
    EXPECT_EQ(DesignerFactory::previewOf(action), QString());
}

} // namespace Halvane::Corvex::Designer::Test
