// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/clipboard/ObjectClip.h"
#include "corvex/editing/commands/objects/Arrangement.h"
#include "corvex/values/text/ValueConversion.h"

#include "CommandFixture.h"

namespace Halvane::Corvex::Designer::Test {

using namespace Qt::StringLiterals;

namespace {

class ObjectClipTest : public CommandFixture
{
protected:
    void SetUp() override
    {
        CommandFixture::SetUp();
        set(element("rectangle1"), "position", ValueConversion::toString(QPointF(40, 50)));
        set(element("rectangle2"), "xBinding",
            u"<0306rectangle1.x><0101+><0306Main.rectangle2.x><0101+><0406speed>"_s);
        set(element("image1"), "source",
            u"filterType: ImageResource; objectId: pump.png; scopeType: Project;"_s);
        push(Arrangement::grouping({element("rectangle1"), element("text1")}).command.release());
        second.reset(static_cast<Project *>(make(u"Project"_s, u"Second"_s)));
        second->changePropertyObjectValue(second->configuration(), make(u"Configuration"_s, u"VTR 50-K"_s));
        ASSERT_TRUE(second->createFile(folder.path()));
        target = static_cast<Screen *>(add(second->screens(), "Screen", "Start"));
    }
    static QString copied(const QList<DesignerObject *> &objects)
    {
        QString error;
        const QString text = ObjectClip::copied(objects, &error);
        EXPECT_NE(text, QString()) << qPrintable(error);
        EXPECT_TRUE(ObjectClip::isClip(text));
        return text;
    }
    //! Pastes, undoes and does it again. Returns the notes.
    static QStringList paste(const QString &text, Project &project, Screen *screen,
                             const std::optional<QPointF> &middle = {})
    {
        PlannedCommand planned = ObjectClip::pasteOf(text, project, screen, middle);
        EXPECT_TRUE(planned) << qPrintable(planned.reason);
        if (planned) {
            const QString before = DesignerObject::toString(&project);
            EXPECT_TRUE(project.undoStack()->push(planned.command.release()))
                << qPrintable(project.undoStack()->errorString());
            const QString after = DesignerObject::toString(&project);
            project.undoStack()->undo();
            EXPECT_EQ(DesignerObject::toString(&project), before);
            project.undoStack()->redo();
            EXPECT_EQ(DesignerObject::toString(&project), after);
        }
        return planned.notes;
    }
    QList<DesignerObject *> some() const
    {
        return {element("group1"), element("rectangle2"), element("image1")};
    }

    std::unique_ptr<Project> second;
    Screen *target = nullptr;
};

} // namespace

TEST_F(ObjectClipTest, BringsImagesAndVariablesToAnotherProject)
{
    // Through a mail program.
    const QString text = u"\r\n"_s + copied(some()).replace(u"\n"_s, u"\r\n"_s);
    EXPECT_EQ(paste(text, *second, target), QStringList());
    EXPECT_EQ(target->getElementNames().size(), 5);
    EXPECT_TRUE(second->variables()->hasListItem(u"speed"_s));
    EXPECT_TRUE(QFile::exists(second->imagesPath() + u"/pump.png"_s));
    EXPECT_EQ(value(target->getElement(u"rectangle2"_s), "xBinding"),
              u"<0306rectangle1.x><0101+><0306Start.rectangle2.x><0101+><0406speed>"_s);
    EXPECT_EQ(Arrangement::bounds({target->getElement(u"group1"_s)}),
              Arrangement::bounds({element("group1")}));
    EXPECT_EQ(DesignerObject::toString(target->getElement(u"image1"_s)),
              DesignerObject::toString(element("image1")));
}

TEST_F(ObjectClipTest, RenamesWhatIsTakenAndSaysSo)
{
    add(target->elements(), "Text", "rectangle1");
    add(second->variables(), "StringVariable", "speed");
    project.swap(second); // writePicture() writes to the folder of the first project
    writePicture("pump.png", Qt::blue);
    project.swap(second);
    add(second->imageResources(), "ImageResource", "pump.png");
    EXPECT_EQ(
        paste(copied(some()), *second, target),
        QStringList{
            u"Renamed: speed \u2192 speed1, pump.png \u2192 pump1.png, rectangle1 \u2192 rectangle3."_s});
    const QString binding = value(target->getElement(u"rectangle2"_s), "xBinding");
    EXPECT_TRUE(binding.contains(u"<0406speed1>"_s) && !binding.contains(u"<0306rectangle1.x>"_s))
        << qPrintable(binding);
    EXPECT_TRUE(value(target->getElement(u"image1"_s), "source").contains(u"pump1.png"_s));

    // In the same project, variables and images are those that are there; another variable is reported.
    const qsizetype variables = project->variables()->listItemCount();
    const QString text = copied(some());
    ASSERT_TRUE(set(variable("speed"), "persistent",
                    value(variable("speed"), "persistent") == u"true"_s ? u"false"_s : u"true"_s));
    const QStringList notes = paste(text, *project, main);
    EXPECT_EQ(project->variables()->listItemCount(), variables);
    ASSERT_EQ(notes.size(), 2);
    EXPECT_TRUE(notes.first().contains(u"\"speed\""_s));
}

TEST_F(ObjectClipTest, PlacesCopiesWhereTheyAreSeen)
{
    const QPointF origin = Arrangement::bounds({element("group1")}).topLeft();
    const QString text = copied({element("group1")});
    for (const int copy : {1, 2, 3}) {
        paste(text, *project, main);
        EXPECT_EQ(Arrangement::bounds({main->getElement(u"group%1"_s.arg(copy + 1))}).topLeft(),
                  origin + QPointF(10, 10) * copy);
    }
    paste(text, *project, other);
    EXPECT_EQ(Arrangement::bounds(other->elements()->listItems()).topLeft(), origin);
    paste(text, *second, target, QPointF(200, 100));
    EXPECT_EQ(Arrangement::bounds(target->elements()->listItems()).center().toPoint(), QPoint(200, 100));
}

TEST_F(ObjectClipTest, PastesScreensVariablesAndFilters)
{
    paste(copied({main, variable("speed"), variable("on")}), *project, nullptr);
    EXPECT_TRUE(project->screens()->hasListItem(u"Main1"_s) || project->screens()->hasListItem(u"Main2"_s));
    EXPECT_TRUE(project->variables()->hasListItem(u"speed1"_s));
    paste(copied({object(u"filter1"_s)}), *project, other);
    EXPECT_EQ(other->filters()->listItemCount(), 1);
    EXPECT_EQ(paste(copied({main}), *second, nullptr), QStringList());
    EXPECT_TRUE(second->screens()->hasListItem(u"Main"_s));
    EXPECT_TRUE(second->imageResources()->hasListItem(u"pump.png"_s));
    const PlannedCommand again = ObjectClip::pasteOf(copied({object(u"pump.png"_s)}), *second, nullptr);
    EXPECT_EQ(again.reason, u"The project already has everything that was copied."_s);
}

TEST_F(ObjectClipTest, RefusesHostileTexts)
{
    const QString good = copied(some());
    const QString deep = u"<CorvexObjects><Objects>"_s + u"<a>"_s.repeated(100000);
    const QString before = DesignerObject::toString(second.get());
    QString noImage = good;
    const qsizetype code = noImage.indexOf(u'\n', noImage.indexOf(u"<Image "_s));
    noImage.replace(code, noImage.indexOf(u"</Image>"_s) - code, u"\nR0lGODlh"_s);
    const QString texts[] = {
        QString(),
        u"pump1"_s,
        u"<CorvexObjects>"_s,
        u"<CorvexObjects><Objects><Rectangle></Objects></CorvexObjects>"_s,
        u"<CorvexObjects><Objects><Nothing/></Objects></CorvexObjects>"_s,
        u"<CorvexObjects><Objects><Project/></Objects></CorvexObjects>"_s,
        u"<CorvexObjects><Objects><ImageResource/></Objects></CorvexObjects>"_s,
        u"<CorvexObjects><Variables><Rectangle/></Variables></CorvexObjects>"_s,
        u"<CorvexObjects><Other/></CorvexObjects>"_s,
        u"<!DOCTYPE a [<!ENTITY b \"c\">]>"_s + good,
        deep,
        noImage,
        QString(good).replace(u"name=\"pump.png\""_s, u"name=\"../pump.png\""_s),
        QString(good).replace(u"<Text>"_s, u"<Gauge>"_s).replace(u"</Text>"_s, u"</Gauge>"_s),
        good.chopped(30),
    };
    for (const QString &text : texts) {
        const PlannedCommand planned = ObjectClip::pasteOf(text, *second, target);
        EXPECT_FALSE(planned) << qPrintable(text.left(300));
        EXPECT_NE(planned.reason, QString()) << qPrintable(text.left(300));
    }
    EXPECT_EQ(DesignerObject::toString(second.get()), before);
    EXPECT_NE(ObjectClip::pasteOf(good, *second, nullptr).reason, QString());
    QString error;
    EXPECT_EQ(ObjectClip::copied({project->configuration()->objectValue()}, &error), QString());
    EXPECT_NE(error, QString());
}

} // namespace Halvane::Corvex::Designer::Test
