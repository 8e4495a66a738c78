// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QJsonObject>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;

namespace {

const QString pump = u"Pump/Pump.kdproj"_s;

//! A sandbox with a red rectangle, rotated by 90 degrees about its centre, on a white screen.
class RenderVerb : public testing::Test
{
protected:
    RenderVerb()
    {
        sandbox.makeProject(Sandbox::object("Rectangle", "box",
                                            Sandbox::value("position", "x: 100; y: 50;")
                                                + Sandbox::value("size", "height: 20; width: 60;")
                                                + Sandbox::value("rotation", "90")
                                                + Sandbox::value("color", "#FFFF0000")
                                                + Sandbox::value("border", "color: #FF000000; width: 0;"))
                            + Sandbox::object("Button", "press"));
    }

    ProgramRun render(const QStringList &options) const
    {
        return sandbox.run(QStringList{u"render"_s, pump} + options);
    }
    QImage picture(const QString &name) const { return QImage(sandbox.path(name)); }

    Sandbox sandbox;
};

} // namespace

TEST_F(RenderVerb, DrawsElementsInTheirPlaces)
{
    const ProgramRun run = render({u"--screen"_s, u"Main"_s, u"-o"_s, u"main.png"_s});
    EXPECT_EQ(run.error, QString());
    EXPECT_EQ(run.code, 0);
    const QImage image = picture(u"main.png"_s);
    EXPECT_EQ(run.out, u"main.png: %1 x %2 pixels\n"_s.arg(image.width()).arg(image.height()));
    for (const QPoint &inside : {QPoint(121, 31), QPoint(138, 88), QPoint(130, 60)}) {
        EXPECT_EQ(image.pixelColor(inside), QColor(Qt::red)) << inside.x() << ", " << inside.y();
    }
    for (const QPoint &outside : {QPoint(118, 60), QPoint(142, 60), QPoint(130, 28), QPoint(130, 92)}) {
        EXPECT_EQ(image.pixelColor(outside), QColor(Qt::white)) << outside.x() << ", " << outside.y();
    }
    const ProgramRun handles =
        render({u"--handles"_s, u"Main.box"_s, u"-o"_s, u"handles.png"_s, u"--json"_s});
    EXPECT_EQ(handles.json()[u"screen"_s].toString(), u"Main"_s);
    EXPECT_EQ(picture(u"handles.png"_s).pixelColor(130, 90), QColor(Qt::white))
        << "a handle lies on the edge";
    EXPECT_EQ(picture(u"handles.png"_s).pixelColor(130, 60), QColor(Qt::red));
}

TEST_F(RenderVerb, ReportsErrors)
{
    const struct
    {
        QStringList options;
        int code;
        QString says;
    } cases[] = {
        {{u"--screen"_s, u"Main"_s}, 2, u"corvex render FILE -o PNG"_s},
        {{u"--screen"_s, u"Mian"_s, u"-o"_s, u"x.png"_s}, 2, u"did you mean \"Main\""_s},
        {{u"--screen"_s, u"Main"_s, u"--handles"_s, u"bx"_s, u"-o"_s, u"x.png"_s}, 2, u"\"box\""_s},
        {{u"--screen"_s, u"Main"_s, u"--handles"_s, u"press"_s, u"-o"_s, u"x.png"_s},
         1,
         u"\"press\" has no handles because it is hidden or of a kind"_s},
        {{u"-o"_s, u"Pump/../Pump/Pump.kdproj"_s}, 2, u"is the project's own file"_s},
        {{u"--screen"_s, u"Main"_s, u"-o"_s, u"none/x.png"_s}, 3, u"\"none/x.png\" cannot be written"_s},
        {{u"-o"_s, QString(252, u'a') + u".png"_s}, 3, u"File name too long"_s},
        {{u"--handles"_s, u"Main.bx"_s, u"-o"_s, u"x.png"_s}, 2, u"Did you mean \"Main.box\"?"_s},
    };
    for (const auto &[options, code, says] : cases) {
        const ProgramRun run = render(options);
        EXPECT_EQ(run.code, code) << qPrintable(options.join(u' '));
        EXPECT_TRUE(run.error.contains(says)) << qPrintable(run.error);
        EXPECT_FALSE(QFileInfo::exists(sandbox.path(u"x.png"_s)));
    }
}

TEST_F(RenderVerb, DoesNotDrawLinkedFiles)
{
    QImage secret(8, 8, QImage::Format_RGB32);
    secret.fill(Qt::blue);
    ASSERT_TRUE(secret.save(sandbox.path(u"secret.png"_s)));
    ASSERT_EQ(mkfifo(QFile::encodeName(sandbox.path(u"pipe"_s)).constData(), 0600), 0);
    for (const QString &target : {u"secret.png"_s, u"pipe"_s}) {
        Sandbox other;
        other.makeProject(
            Sandbox::object(
                "Image", "sign",
                Sandbox::value("size", "height: 40; width: 40;")
                    + Sandbox::value("source",
                                     "filterType: ImageResource; objectId: a.svg; scopeType: Project;")),
            {}, Sandbox::object("ImageResource", "a.svg", {}, "Project"));
        QDir().mkpath(other.path(u"Pump/Images"_s));
        other.write(u"Pump/Images/a.svg"_s,
                    "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='40' "
                    "xmlns:xlink='http://www.w3.org/1999/xlink'><image width='40' height='40' xlink:href='"
                        + sandbox.path(target).toUtf8() + "'/></svg>");
        const ProgramRun run =
            other.run({u"render"_s, pump, u"--screen"_s, u"Main"_s, u"-o"_s, u"main.png"_s});
        EXPECT_TRUE(run.error.contains(u"a.svg\" is not drawn: it links to "_s)) << qPrintable(run.error);
        EXPECT_EQ(run.code, 0);
        EXPECT_NE(QImage(other.path(u"main.png"_s)).pixelColor(10, 20), QColor(Qt::blue));
    }
}
