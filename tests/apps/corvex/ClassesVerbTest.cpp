// SPDX-License-Identifier: MIT
#include "Program.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;
using testing::HasSubstr;

TEST(ClassesVerb, ListsExplainsAndAnswersPrograms)
{
    const std::string list = corvex({u"classes"_s}).out.toStdString();
    EXPECT_THAT(list, HasSubstr("\nElement "));
    EXPECT_THAT(list, HasSubstr("\n    Rectangle "));

    const std::string page = corvex({u"classes"_s, u"Rectangle"_s}).out.toStdString();
    EXPECT_THAT(page, HasSubstr("\nProperties:\n  size: a size such as 120 x 40 (default 100 x 60)\n"
                                "    The width and the height of the rectangle, in pixels.\n"
                                "      set Main.rectangle1.size = 120 x 40\n"));
    EXPECT_THAT(page, HasSubstr("\nFrom VisualElement:\n"));
    EXPECT_THAT(page, HasSubstr("  radius: a whole number of at least 0, in px (default 0)\n"));
    EXPECT_THAT(corvex({u"classes"_s, u"FtpVariable.type"_s}).out.toStdString(),
                HasSubstr("one of FTP, FTPS, SFTP (default FTP)"));

    const QJsonArray classes =
        corvex({u"classes"_s, u"Rectangle.opacity"_s, u"--json"_s}).json()[u"classes"_s].toArray();
    ASSERT_EQ(classes.size(), 1);
    const QJsonObject opacity = classes.at(0)[u"properties"_s][0].toObject();
    EXPECT_EQ(opacity[u"takes"_s].toString(), u"a number from 10 to 100"_s);
    EXPECT_EQ(opacity[u"definedBy"_s].toString(), u"VisualElement"_s);
}
