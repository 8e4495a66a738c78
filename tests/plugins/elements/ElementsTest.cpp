// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlBinding.h"
#include "corvex/preview/PreviewSession.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/expressions/UpdateObjectList.h"
#include "corvex/values/runtime/PropertyList.h"
#include "corvex/variables/MappingVariable.h"

#include "support/CodeShape.h"
#include "support/Model.h"
#include "support/QmlSyntax.h"

#include <QJSEngine>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! A screen for the standard elements.
class Elements : public testing::Test
{
protected:
    Elements()
    {
        DesignerFactory::createInstance(QString::fromUtf8(CORVEX_LIBRARY_DIR));
        project.reset(make<Project>(u"Project"_s, u"Plant"_s));
        screen = make<Screen>(u"Screen"_s, u"Main"_s);
        project->addListPropertyItem(project->screens(), screen);
        project->addListPropertyItem(project->screens(), make(u"Screen"_s, u"Other"_s));
    }

    DesignerObject *add(const char *className, const QString &name)
    {
        DesignerObject *element = make(QString::fromLatin1(className), name);
        EXPECT_TRUE(screen->addListPropertyItem(screen->elements(), element)) << className;
        return element;
    }

    static void set(DesignerObject *object, const char *id, const QString &value)
    {
        const SharedProperty property = object->getProperty(QString::fromLatin1(id));
        ASSERT_TRUE(property) << id;
        EXPECT_TRUE(object->changePropertyValue(property, value)) << id;
        EXPECT_EQ(property->valueString(), value) << id;
    }

    static QString link(const QString &name, const QString &scope, const QString &filter)
    {
        return u"filterType: %1; objectId: %2; scopeType: %3;"_s.arg(filter, name, scope);
    }

    //! The problems when the document of the screen "Main" runs.
    static QStringList problemsInPreview(const QString &qml)
    {
        const QTemporaryDir folder;
        Common::FileHelper::writeFile(folder.filePath(u"qml_Main.qml"_s), qml.toUtf8());
        Common::FileHelper::variantToFile(QVariantMap{{u"variables"_s, QVariantMap()}},
                                          folder.filePath(u"config.kdrc"_s), false);
        Preview::PreviewSession session;
        QString error;
        QStringList problems;
        if (!session.open(folder.path(), &error)) {
            problems.append(error);
        }
        session.settle();
        for (const Preview::PanelProblem &problem : session.panel().problems().problems()) {
            problems.append(problem.toString());
        }
        return problems;
    }

    std::unique_ptr<Project> project;
    Screen *screen = nullptr;
};

QString line(const DesignerObject *object, const char *id)
{
    return object->getProperty(QString::fromLatin1(id))->toQml(0);
}

} // namespace

TEST_F(Elements, TheDocumentOfAScreenHasItsPartsInOrderAndParses)
{
    for (const QString &className : DesignerFactory::instance()->creatableNames()) {
        const std::unique_ptr<DesignerObject> probe(DesignerFactory::instance()->createObject(className));
        probe->setParent(nullptr);
        if (probe->isKindOfClass(u"Element"_s) && !probe->isKindOfClass(u"FilterElement"_s)) {
            add(className.toLatin1().constData(), u"the"_s + className);
        }
    }
    auto *map = static_cast<MappingVariable *>(make(u"MappingVariable"_s, u"registers"_s));
    project->addListPropertyItem(project->variables(), map);
    set(screen->getItemInListProperty(u"elements"_s, u"theRS485COMPort"_s), "mapping",
        link(u"registers"_s, u"Project"_s, u"MappingVariable"_s));
    const QString qml = screen->toQml(0);
    EXPECT_EQ(map->qmlActiveScreen(), u"Main"_s);
    EXPECT_EQ(qmlSyntaxErrors(qml), QString()) << qPrintable(qml);
    EXPECT_EQ(problemsInPreview(qml), QStringList()) << qPrintable(qml);
    qsizetype last = -1;
    for (
        const QString &part :
        {u"import QtQuick 1.1\nimport RuntimeObjects 2.0\nScreen {\n\tid: qml_Main\n\tobjectName: \"Main\"\n"_s,
         u"\twidth: 500\n\theight: 300\n\tcolor: \"#FFFFFFFF\"\n\torientation: 0\n\tscale: 1\n"_s,
         u"\tbrightness : 100\n\n"_s,
         u"\talarmOutputs: [\n\t\tAlarmOutput {\n\t\t\tid: qml_theAlarmOutput\n"_s,
         u"\tanalogInputs: ["_s,
         u"\tdigitalIOs: ["_s,
         u"\tpwmOutputs: ["_s,
         u"\tspiPorts: ["_s,
         u"\tserialCOMPorts: ["_s,
         u"\trs485COMPorts: ["_s,
         u"\tthermistorInputs: ["_s,
         u"\tthermocoupleInputs: ["_s,
         u"\tethernetPorts: ["_s,
         u"\tcanBusPorts: ["_s,
         u"\ti2CBusPorts: ["_s,
         u"\tfunctions: [\n"_s,
         u"\n\t]\n\tGroupElement {\n"_s,
         u"\tText {\n"_s,
         u"\tAction {\n"_s,
         u"}\n"_s}) {
        const qsizetype position = qml.indexOf(part, last + 1);
        EXPECT_GT(position, last) << qPrintable(part) << qPrintable(qml);
        last = position;
    }
    EXPECT_TRUE(qml.contains(u"\t\t},\n\t\tButton {\n"_s));
    EXPECT_FALSE(qml.contains(u'\r'));
}

TEST_F(Elements, ExpressionsReplacePlainValues)
{
    DesignerObject *text = add("Text", u"label"_s);
    set(text, "text", u"say \"hi\"\n"_s);
    EXPECT_EQ(line(text, "text"), u"text: \"say \\\"hi\\\"\\n\""_s);
    set(text, "textBinding", u"0406speed"_s);
    EXPECT_EQ(line(text, "text"), u"text: qmlViewer.getVariableValue(\"speed\")"_s);
    set(text, "xBinding", u"<0406speed><0101*><02042>"_s);
    EXPECT_EQ(line(text, "position"), u"x: qmlViewer.getVariableValue(\"speed\") * 2\ny: 0"_s);
    set(text, "visibleBinding", u"<0406speed><0101>><020464>"_s);
    EXPECT_EQ(line(text, "visible"), u"visible: qmlViewer.getVariableValue(\"speed\") > 100"_s);
    set(text, "colorBinding", u"0408warning"_s);
    EXPECT_EQ(line(text, "color"),
              u"color: qmlViewer.convertToColorFromName(qmlViewer.getVariableValue(\"warning\"))"_s);
    set(text, "opacity", u"12.345"_s);
    EXPECT_EQ(line(text, "opacity"), u"opacity: 0.12345"_s);
    EXPECT_EQ(line(text, "textBinding"), QString());
    QStringList sources;
    for (const QmlBinding &binding : text->qmlBindings()) {
        if (binding.source && binding.name != binding.source->id() && !binding.name.contains(u'.')) {
            sources.append(binding.name + u'<' + binding.source->id());
        }
    }
    EXPECT_EQ(sources.join(u' '), u"x<xBinding y<position visible<visibleBinding text<textBinding "
                                  "color<colorBinding width<size height<size"_s);
}

TEST_F(Elements, NumbersOfATextAreFormattedOnTheDevice)
{
    DesignerObject *text = add("Text", u"label"_s);
    set(text, "textBinding", u"0406speed"_s);
    const struct
    {
        int decimals;
        QString thousands;
        QString prefix;
        QString suffix;
        QString value; //!< of the variable, as JavaScript
        QString shown;
    } cases[] = {
        {1, u"None"_s, {}, u" °C"_s, u"72.25"_s, u"72.3 °C"_s},
        {1, u"None"_s, u"T "_s, {}, u"-72.25"_s, u"T -72.3"_s},
        {0, u"None"_s, {}, {}, u"2.5"_s, u"3"_s},
        {2, u"None"_s, {}, {}, u"-0.004"_s, u"0.00"_s},
        {3, u"None"_s, {}, {}, u"5"_s, u"5.000"_s},
        {-1, u"None"_s, {}, u" %1 \"\\%2"_s, u"0.1"_s, u"0.1 %1 \"\\%2"_s},
        {1, u"Comma"_s, {}, {}, u"1234567.89"_s, u"1,234,567.9"_s},
        {1, u"Point"_s, {}, {}, u"-123456.75"_s, u"-123.456,8"_s},
        {-1, u"Blank"_s, {}, {}, u"1234.56789"_s, u"1\u00a0234.56789"_s},
        {-1, u"Apostrophe"_s, {}, {}, u"1000"_s, u"1'000"_s},
        {2, u"Comma"_s, {}, {}, u"999"_s, u"999.00"_s},
        {0, u"Comma"_s, {}, {}, u"1e20"_s, u"100,000,000,000,000,000,000"_s},
        {2, u"Point"_s, u"~"_s, {}, u"1.5e+300"_s, u"~1,5e+300"_s},
        {1, u"Comma"_s, u"T "_s, u" °C"_s, u"\"1234.5\""_s, u"1234.5"_s},
        {1, u"Comma"_s, u"T "_s, u" °C"_s, u"NaN"_s, u"NaN"_s},
        {1, u"Comma"_s, u"T "_s, u" °C"_s, u"-Infinity"_s, u"-Infinity"_s},
        {1, u"Comma"_s, u"T "_s, u" °C"_s, u"undefined"_s, u"undefined"_s},
    };
    for (const auto &[decimals, thousands, prefix, suffix, value, shown] : cases) {
        set(text, "decimals", QString::number(decimals));
        set(text, "thousands", thousands);
        set(text, "prefix", prefix);
        set(text, "suffix", suffix);
        const QString code = line(text, "text").mid(u"text: "_s.size());
        QJSEngine device;
        device.evaluate(u"var qmlViewer = {getVariableValue: function(n) { return %1; }}"_s.arg(value));
        EXPECT_EQ(device.evaluate(code).toString(), shown) << qPrintable(code);
    }
    text->changePropertyValue(text->getProperty(u"decimals"_s), u"21"_s);
    EXPECT_EQ(text->getProperty(u"decimals"_s)->valueString(), u"1"_s) << "a limit of toFixed";
    EXPECT_EQ(line(text, "suffix"), QString()) << "the device knows no such property";

    // In the preview, as on the device.
    set(text, "textBinding", u"0306label.x"_s);
    set(text, "decimals", u"1"_s);
    const QString qml = screen->toQml(0);
    EXPECT_EQ(qmlSyntaxErrors(qml), QString()) << qPrintable(qml);
    EXPECT_EQ(problemsInPreview(qml), QStringList()) << qPrintable(qml);
}

TEST_F(Elements, StatesAndActionsBecomeAssignmentsToExistingElements)
{
    add("Rectangle", u"box"_s);
    DesignerObject *button = add("Button", u"button"_s);
    set(button, "visualElement", link(u"box"_s, u"Screen"_s, u"VisualElement"_s));
    UpdateObjectInfo update;
    update.setName(u"box"_s);
    update.setPropValueMap({{u"color"_s, u"#FF00FF00"_s},
                            {u"position"_s, u"x: 1; y: 2;"_s},
                            {u"border"_s, u"color: #FF0000FF; width: 3;"_s},
                            {u"radius"_s, u"round"_s},
                            {u"nothing"_s, u"1"_s}});
    UpdateObjectInfo gone;
    gone.setName(u"gone"_s);
    gone.setPropValueMap({{u"color"_s, u"#FF00FF00"_s}});
    set(button, "pressedState", UpdateObjectList({update, gone}).toString());
    EXPECT_EQ(line(button, "pressedState"), u"onPressedState: {\n"
                                            "\tqml_box.border.width = 3;\n"
                                            "\tqml_box.border.color = \"#FF0000FF\";\n"
                                            "\tqml_box.color = \"#FF00FF00\";\n"
                                            "\tqml_box.x = 1;\n"
                                            "\tqml_box.y = 2;\n"
                                            "}"_s);
    EXPECT_EQ(line(button, "normalState"), QString());
    set(button, "pressed", u"<0406speed><02047><0308box.color><0208FF00FF00>"_s);
    EXPECT_EQ(line(button, "pressed"), u"onPressed: {\n"
                                       "\tqmlViewer.setVariableValue(\"speed\", 7, 11);\n"
                                       "\tqml_box.color = \"#FF00FF00\";\n"
                                       "}"_s);

    DesignerObject *action = add("Action", u"action"_s);
    PropertyList changes;
    changes.append(PropertyChangeInfo(u"box"_s, u"visible"_s, u"false"_s));
    set(action, "propertyChanges", changes.toString());
    EXPECT_EQ(line(action, "propertyChanges"), u"onPropertyChanges: {\n\tqml_box.visible = false;\n}"_s);
}

TEST_F(Elements, RulesOfLogicAreIndependent)
{
    DesignerObject *logic = add("LogicBuilder", u"logic"_s);
    const QString condition = u"<0403on><0101||><0403ready>"_s;
    const QString statement = u"<0406speed><02041>"_s;
    set(logic, "logicExpression", u"%1|%2, |%2, %1|"_s.arg(condition, statement));
    EXPECT_TRUE(logic->getProperty(u"logicExpression")->isValid());
    EXPECT_EQ(
        line(logic, "logicExpression"),
        u"conditions: [qmlViewer.getVariableValue(\"on\") || qmlViewer.getVariableValue(\"ready\"), true]\n"
        "onEvaluate: {\n"
        "\tif (conditions[0]) {\n"
        "\t\tqmlViewer.setVariableValue(\"speed\", 1, 11);\n"
        "\t}\n"
        "\tif (conditions[1]) {\n"
        "\t\tqmlViewer.setVariableValue(\"speed\", 1, 11);\n"
        "\t}\n"
        "}"_s);
    set(logic, "logicExpression", u"x|"_s);
    EXPECT_EQ(logic->getProperty(u"logicExpression")->errorString(),
              u"The condition of rule 1 is incomplete."_s);
}

TEST_F(Elements, AutoSettingsBeginWithTheSettingsOfTheDevice)
{
    DesignerObject *box = add("Rectangle", u"box"_s);
    set(box, "position", u"x: 10; y: 20.5;"_s);
    set(box, "opacity", u"50"_s);
    set(box, "rotationBinding", u"0406speed"_s);
    const RuntimeAutoSettingList settings = static_cast<Element *>(box)->runtimeAutoSettingProperties();
    const QMap<QString, QString> expected{
        {u"x"_s, u"10"_s},         {u"y"_s, u"20.5"_s},    {u"opacity"_s, u"0.5"_s},
        {u"scale"_s, u"1"_s},      {u"width"_s, u"100"_s}, {u"color"_s, u"#FFFFFFFF"_s},
        {u"visible"_s, u"true"_s}, {u"rotation"_s, u""_s},
    };
    for (const auto &[name, value] : expected.asKeyValueRange()) {
        EXPECT_EQ(settings.property(name).defaultValue(), value) << qPrintable(name);
    }
}

TEST_F(Elements, AnExpressionWithoutCodeIsReported)
{
    const QString incomplete = u"The expression is incomplete."_s;
    const QString hot = u"<0403hot><0101?><0208FFC62828><0101:><0208FFC3CDD6>"_s;
    const struct
    {
        const char *className;
        QLatin1StringView property;
        QString good;
        QString bad;
        QString error = {}; // the error that it is incomplete
    } rows[] = {
        {"Text", "colorBinding"_L1, u"<0403hot><0101?><0207cmVk><0101:><0307label.text>"_s, hot,
         u"A color is a single term"_s},
        {"Rectangle", "colorBinding"_L1, u"0208FFC62828"_s, u"<0408a><0101==><0408b>"_s, u"A color is"_s},
        {"Rectangle", "yBinding"_L1, u"0406a"_s, u"<0406a><0101(><0406b><0101)>"_s, u"Term 2"_s},
        {"Text", "rotationBinding"_L1, u"0205PI"_s, u"0707alert(1)"_s,
         u"Term 1 of the expression, \"0707alert(1)\", cannot be used in it."_s},
        {"AlarmOutput", "initValue"_L1, u"0403on"_s, u"<0403on><0101==><0209BEEF>"_s, u"Term 3"_s},
        {"SPICommunication", "dataValues"_L1, u"0306in.value"_s, u"<0101/><0207eC8uYShhbGVydCgxKSldLy8=>"_s,
         u"Value 1"_s},
        {"PropertyTrigger", "dataValues"_L1, u"0207"_s, u"02091F"_s, u"Value 1"_s},
        {"Rectangle", "visibleBinding"_L1, u"02041"_s, u"0208FFC62828"_s, u"This is neither true"_s},
        {"PropertyTrigger", "condition"_L1, u"0207VHJ1ZQ=="_s, u"0207bm8="_s, u"This is neither true"_s},
        {"Text", "colorBinding"_L1, u"0207cmVk"_s, u"02045"_s, u"This is not a color"_s},
        {"Text", "textBinding"_L1, u"0407name"_s, u"0407"_s},
        {"Text", "colorBinding"_L1, u"0408paint"_s, u"0408"_s},
        {"Rectangle", "xBinding"_L1, u"<0406speed><0101*><02042>"_s, u"<0406><0101*><02042>"_s},
        {"Rectangle", "visibleBinding"_L1, u"<0406speed><0101>><02042>"_s, u"<0406><0101>><02042>"_s},
        {"DigitalInputOutput", "initValue"_L1, u"0403on"_s, u"0403"_s},
        {"PwmOutput", "initValue"_L1, u"0406speed"_s, u"0406"_s},
        {"PropertyTrigger", "condition"_L1, u"0403on"_s, u"<0403on><0101||>"_s},
        {"PropertyTrigger", "dataValues"_L1, u"<0403on><0406speed>"_s, u"<0403on><0406>"_s, u"Value 2"_s},
        {"Button", "pressed"_L1, u"<0406speed><02047><0403on><02031>"_s, u"<0406speed><02047><0403on>"_s},
    };
    for (const auto &[className, property, good, bad, error] : rows) {
        DesignerObject *element = add(className, screen->uniqueElementName(u"element"_s));
        const QString plain = element->toQml(0);
        const SharedProperty expression = element->getProperty(QString(property));
        EXPECT_TRUE(expression->isValid()) << className << ' ' << property.data();
        set(element, property.data(), good);
        EXPECT_TRUE(expression->isValid()) << className << ' ' << property.data();
        set(element, property.data(), bad);
        EXPECT_TRUE(expression->errorString().startsWith(error.isEmpty() ? incomplete : error))
            << className << property.data() << qPrintable(expression->errorString());
        EXPECT_EQ(foreignCall(element->toQml(0)), QString());
        // For lists, the complete entries remain.
        if (property != "dataValues"_L1 && property != "pressed"_L1) {
            EXPECT_EQ(element->toQml(0), plain);
        }
    }
}

TEST_F(Elements, NoNameBecomesCode)
{
    const QString hostile = u"x = alert(1)"_s;
    DesignerObject *box = add("Rectangle", u"box"_s);
    add("Action", hostile);
    UpdateObjectInfo update;
    update.setName(u"box"_s);
    update.setPropValueMap({{u"id"_s, u"name: a = alert(1);"_s},
                            {u"text"_s, u"alert(1)"_s},
                            {u"z"_s, u"1; alert(1)"_s},
                            {u"radius"_s, u"3"_s}});
    UpdateObjectInfo ofHostile = update;
    ofHostile.setName(hostile);
    UpdateObjectInfo ofTrigger;
    ofTrigger.setName(u"trigger"_s);
    ofTrigger.setPropValueMap({{u"pressed"_s, u"<0407a><0207YTogYWxlcnQoMSk=>"_s}, // "a: alert(1)"
                               {u"actionScheduler"_s, hostile + u", action"_s}});
    DesignerObject *trigger = add("PropertyTrigger", u"trigger"_s);
    set(trigger, "actionScheduler", u"(alert(1)), "_s + hostile);
    EXPECT_EQ(line(trigger, "actionScheduler"), u"actions: []"_s);
    EXPECT_EQ(trigger->getProperty(u"actionScheduler")->errorString(),
              u"Cannot find action \"(alert(1))\" in the screen."_s);
    DesignerObject *button = add("Button", u"button"_s);
    set(button, "visualElement", link(hostile, u"Screen"_s, u"VisualElement"_s));
    EXPECT_EQ(line(button, "visualElement"), u"visualElement: null"_s);
    set(button, "pressedState", UpdateObjectList({update, ofHostile, ofTrigger}).toString());
    EXPECT_EQ(line(button, "pressedState"),
              u"onPressedState: {\n\tqml_box.radius = 3;\n\tqml_trigger.actions = [qml_action];\n}"_s);
    box->setIdName(hostile);
    EXPECT_EQ(line(box, "id"), QString());
    EXPECT_FALSE(box->getProperty(u"id")->isValid());
    EXPECT_EQ(line(button, "pressedState").count(u"qml_"_s), 2);
    DesignerObject *loader = add("ScreenLoader", u"loader"_s);
    set(loader, "screen", link(hostile, u"Project"_s, u"Screen"_s));
    EXPECT_EQ(line(loader, "screen"), u"screen: \"\""_s);
}

TEST_F(Elements, ResourcesKnowTheImagesThatShowThem)
{
    auto *logo = static_cast<ImageResource *>(make(u"ImageResource"_s, u"logo.png"_s));
    auto *pump = static_cast<ImageResource *>(make(u"ImageResource"_s, u"pump.png"_s));
    project->addListPropertyItem(project->imageResources(), logo);
    project->addListPropertyItem(project->imageResources(), pump);
    DesignerObject *image = make(u"Image"_s, u"picture"_s);
    set(image, "source", link(u"logo.png"_s, u"Project"_s, u"ImageResource"_s));
    screen->addListPropertyItem(screen->elements(), image);
    EXPECT_EQ(logo->linkedElements(), QList<DesignerObject *>{image});
    set(image, "source", link(u"pump.png"_s, u"Project"_s, u"ImageResource"_s));
    EXPECT_FALSE(logo->isLinked());
    EXPECT_TRUE(pump->isLinked());
    EXPECT_EQ(line(image, "source"), u"source: \"pump.png\""_s);
    set(image, "source", link(u"Logo%20#2.png"_s, u"Project"_s, u"ImageResource"_s));
    EXPECT_EQ(line(image, "source"), u"source: \"Logo%2520%232.png\""_s) << "QML reads a URL";
    set(image, "source", link(u"pump.png"_s, u"Project"_s, u"ImageResource"_s));
    const std::unique_ptr<DesignerObject> taken(screen->takeListPropertyItem(screen->elements(), image));
    EXPECT_FALSE(pump->isLinked());

    auto *deleted = make(u"Image"_s, u"deleted"_s);
    logo->linkElement(deleted);
    delete deleted;
    EXPECT_FALSE(logo->isLinked());
}

TEST_F(Elements, LinksAndChannelsAreValidated)
{
    add("Rectangle", u"box"_s);
    add("PwmOutput", u"pwm"_s);
    DesignerObject *button = add("Button", u"button"_s);
    const SharedProperty visual = button->getProperty(u"visualElement");
    EXPECT_EQ(visual->errorString(), u"The visual element is not set."_s);
    set(button, "visualElement", link(u"pwm"_s, u"Screen"_s, u"VisualElement"_s));
    EXPECT_EQ(visual->errorString(), u"\"pwm\" is not a visual element."_s);
    set(button, "visualElement", link(u"none"_s, u"Screen"_s, u"VisualElement"_s));
    EXPECT_EQ(visual->errorString(), u"Cannot find visual element \"none\" in the screen."_s);
    set(button, "visualElement", link(u"box"_s, u"Screen"_s, u"VisualElement"_s));
    EXPECT_TRUE(visual->isValid());

    DesignerObject *first = add("DigitalInputOutput", u"first"_s);
    DesignerObject *second = add("DigitalInputOutput", u"second"_s);
    EXPECT_EQ(second->getProperty(u"channel")->errorString(),
              u"second and first are connected to same Digital Output."_s);
    // Both report it, and both are updated when one of them changes or is removed.
    EXPECT_EQ(first->getProperty(u"channel")->errorString(),
              u"first and second are connected to same Digital Output."_s);
    set(second, "channel", u"2"_s);
    EXPECT_TRUE(second->isValid() && first->isValid());
    set(first, "channel", u"2"_s);
    EXPECT_FALSE(second->isValid() || first->isValid());
    const std::unique_ptr<DesignerObject> left(screen->takeListPropertyItem(screen->elements(), second));
    EXPECT_TRUE(first->isValid());
    set(first, "channel", u"0"_s);
    EXPECT_EQ(first->getProperty(u"channel")->errorString(),
              u"channel takes numbers of at least 1, not 0."_s);

    auto *group = static_cast<GroupElement *>(add("GroupElement", u"group"_s));
    group->addListPropertyItem(group->elements(), make(u"Rectangle"_s, u"member"_s));
    for (const QString &name : {u"group.member"_s, u"member"_s}) {
        set(button, "visualElement", link(name, u"Screen"_s, u"VisualElement"_s));
        EXPECT_TRUE(visual->isValid()) << qPrintable(visual->errorString());
        EXPECT_EQ(line(button, "visualElement"), u"visualElement: qml_member"_s);
    }
    set(button, "visualElement", link(u"group.box"_s, u"Screen"_s, u"VisualElement"_s));
    EXPECT_EQ(visual->errorString(), u"Cannot find visual element \"group.box\" in the screen."_s);
    EXPECT_EQ(screen->getElement(u"group."_s + u"member."_s.repeated(200'000)), nullptr);

    DesignerObject *loader = add("ScreenLoader", u"loader"_s);
    set(loader, "screen", link(u"Other"_s, u"Project"_s, u"Screen"_s));
    EXPECT_TRUE(loader->getProperty(u"screen")->isValid());
    EXPECT_EQ(line(loader, "screen"), u"screen: \"qml_Other\""_s);
}

TEST_F(Elements, ALinkMustMeetTheRequirementsOfItsProperty)
{
    const QString number = u"NumberVariable"_s;
    project->addListPropertyItem(project->variables(), make(number, u"speed"_s));
    const struct
    {
        const char *className;
        const char *property;
        QString needed;
    } rows[] = {
        {"DataLogging", "variable", u"LogVariable"_s},      {"ScreenLoader", "screen", u"Screen"_s},
        {"SerialCOMPort", "mapping", u"MappingVariable"_s}, {"RS485COMPort", "mapping", u"MappingVariable"_s},
        {"CheckButton", "variable", u"BooleanVariable"_s},  {"Image", "source", u"ImageResource"_s},
    };
    for (const auto &[className, property, needed] : rows) {
        DesignerObject *element = add(className, u"the"_s + QLatin1StringView(className));
        // The link's own filter is ignored.
        set(element, property, link(u"speed"_s, u"Project"_s, number));
        EXPECT_EQ(
            element->getProperty(QString::fromLatin1(property))->errorString(),
            u"\"speed\" is of the class NumberVariable, and the link needs an object of the class %1."_s.arg(
                needed));
        if (DesignerFactory::instance()->canCreateObject(needed) && needed.endsWith("Variable"_L1)) {
            const QString name = u"of"_s + QLatin1StringView(className);
            project->addListPropertyItem(project->variables(), make(needed, name));
            set(element, property, link(name, u"Screen"_s, number));
            EXPECT_TRUE(element->getProperty(QString::fromLatin1(property))->isValid()) << className;
        }
    }
    EXPECT_EQ(qmlSyntaxErrors(screen->toQml(0)), QString());
}

} // namespace Halvane::Corvex::Designer
