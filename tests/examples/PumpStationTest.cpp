// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/values/text/ValueConversion.h"

#include "ExampleTest.h"
#include "PumpStation.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

namespace {

const QString examples = QStringLiteral(CORVEX_EXAMPLES);
const QString projectFile = examples + u"/PumpStation/PumpStation.kdproj"_s;

class PumpStationTest : public ExampleTest
{ };

} // namespace

TEST_F(PumpStationTest, LoadsCleanAndSavesTheSameBytes)
{
    const std::unique_ptr<Project> project = load(projectFile);
    EXPECT_TRUE(project->readNotes().isEmpty());
    project->validate();
    EXPECT_EQ(faults(*project), QStringList());
    EXPECT_EQ(danglingNames(*project), QStringList());
    EXPECT_TRUE(saved(*project) == bytesOf(projectFile))
        << "after a change of a class: examples/generate --pump-station examples";
}

TEST_F(PumpStationTest, EqualsTheOutputOfItsGenerator)
{
    PumpStation station;
    const std::unique_ptr<Project> project = station.build();
    EXPECT_EQ(station.problems(), QStringList());
    ASSERT_TRUE(project->createFile(folder.path())) << qPrintable(project->fileError());
    EXPECT_TRUE(bytesOf(project->fullFilePath()) == bytesOf(projectFile))
        << "examples/generate --pump-station examples renews it";

    const QString images = folder.filePath(u"PumpStation/Images"_s);
    ASSERT_TRUE(QDir().mkpath(images) && PumpStation::writeImages(images));
    EXPECT_EQ(QDir(images).entryList(QDir::Files),
              QDir(examples + u"/PumpStation/Images"_s).entryList(QDir::Files));
    project->validate();
    EXPECT_EQ(faults(*project), QStringList());
}

TEST_F(PumpStationTest, UsesAllCommonClasses)
{
    const std::unique_ptr<Project> project = load(projectFile);
    QSet<QString> classes;
    QSet<QString> expressions;
    for (const SharedProperty &list : {project->screens(), project->variables(), project->imageResources()}) {
        for (const DesignerObject *object : list->listItems(true)) {
            classes.insert(object->className());
            for (const SharedProperty &property : object->properties()) {
                if (property->isKindOfClass(u"GeneralDataListProperty"_s)
                    && !property->valueString().isEmpty()) {
                    expressions.insert(property->id());
                }
            }
        }
    }
    const QString names =
        u"NumberVariable StringVariable BooleanVariable ColorVariable AutoSettingVariable "
        "MappingVariable LogVariable CANVariable BACnetDevice BACnetObject ImageResource GroupElement "
        "FilterElement Text Rectangle "
        "Image Button CheckButton NumberSpinner ScreenLoader LogicBuilder PropertyTrigger Action "
        "DataLogging ModbusCommands AlarmOutput AnalogInput DigitalInputOutput PwmOutput "
        "SerialCOMPort ThermistorInput EthernetPort CANBusDevice"_s;
    for (const QString &name : names.split(u' ')) {
        EXPECT_TRUE(classes.contains(name)) << qPrintable(name);
    }
    for (const char *id : {"textBinding", "colorBinding", "visibleBinding", "yBinding", "rotationBinding",
                           "pressed", "condition", "dataValues", "initValue"}) {
        EXPECT_TRUE(expressions.contains(QString::fromLatin1(id))) << id;
    }
}

//! The tour, which runs with the tests of the command line, checks the values of the expressions.
TEST_F(PumpStationTest, TheTourChecksEveryBinding)
{
    static const QMap<QString, QString> targets{{u"textBinding"_s, u"text"_s},
                                                {u"colorBinding"_s, u"color"_s},
                                                {u"visibleBinding"_s, u"visible"_s},
                                                {u"rotationBinding"_s, u"rotation"_s},
                                                {u"yBinding"_s, u"y"_s},
                                                {u"initValue"_s, u"value"_s}};
    const QString tour = QString::fromUtf8(bytesOf(examples + u"/PumpStation/tour.preview"_s));
    const std::unique_ptr<Project> project = load(projectFile);
    int bindings = 0;
    for (const DesignerObject *object : project->screens()->listItems(true)) {
        for (const SharedProperty &property : object->properties()) {
            if (targets.contains(property->id()) && !property->valueString().isEmpty()
                && property->isKindOfClass(u"GeneralDataListProperty"_s)) {
                const QString line =
                    u"expect %1.%2 "_s.arg(object->getIdName(), targets.value(property->id()));
                EXPECT_TRUE(tour.contains(line)) << qPrintable(line);
                ++bindings;
            }
        }
    }
    EXPECT_GT(bindings, 20);
}

//! Everything is on the screen, and each text fits into its place and is completely on its background.
TEST_F(PumpStationTest, TextsFitAndAreReadable)
{
    const std::unique_ptr<Project> project = load(projectFile);
    for (const DesignerObject *item : project->screens()->listItems()) {
        const auto *screen = kindCast<Screen>(item);
        const QRectF area(QPointF(), ValueConversion::toSize(screen->size()->valueString()));
        EXPECT_EQ(area.size(), QSizeF(800, 480));
        QList<const VisualElement *> visuals;
        for (const DesignerObject *element : screen->elements()->listItems()) {
            if (const auto *visual = kindCast<VisualElement>(element)) {
                EXPECT_TRUE(area.contains(visual->boundingRect())) << qPrintable(visual->objectPath());
                visuals.append(visual);
            }
        }
        for (const VisualElement *visual : visuals) {
            const SharedProperty font = visual->getProperty(u"font");
            if (!font) {
                continue;
            }
            const QRectF place = visual->boundingRect();
            const QFontMetricsF metrics(ValueConversion::toFont(font->valueString()));
            EXPECT_LE(metrics.horizontalAdvance(visual->getProperty(u"text")->valueString()), place.width())
                << qPrintable(visual->objectPath());
            for (const VisualElement *other : visuals) {
                const QRectF behind = other->boundingRect();
                EXPECT_TRUE(other == visual || behind.contains(place) || !behind.intersects(place))
                    << qPrintable(visual->objectPath() + u" and "_s + other->objectPath());
            }
        }
    }
}

} // namespace Halvane::Corvex::Examples
