// SPDX-License-Identifier: MIT
#include "ExampleTest.h"
#include "ProjectGenerator.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

namespace {

class ProjectGeneratorTest : public ExampleTest
{
protected:
    static std::unique_ptr<Project> generate(ProjectSize size, quint64 seed)
    {
        ProjectGenerator generator(u"Plant"_s, size, seed);
        std::unique_ptr<Project> project = generator.generate();
        EXPECT_EQ(generator.problems(), QStringList());
        return project;
    }

    void giveFile(Project &project) const
    {
        ASSERT_TRUE(QDir(folder.path()).mkpath(u"Plant/Images"_s));
        ASSERT_TRUE(ProjectGenerator::writeImages(folder.filePath(u"Plant/Images"_s)));
        ASSERT_TRUE(project.createFile(folder.path())) << qPrintable(project.fileError());
    }
};

} // namespace

TEST_F(ProjectGeneratorTest, CreatesAValidProjectThatReloadsUnchanged)
{
    const std::unique_ptr<Project> project = generate(*ProjectSize::named(u"S"_s), 7);
    giveFile(*project);
    project->validate();
    EXPECT_EQ(faults(*project), QStringList());

    const std::unique_ptr<Project> loaded = load(project->fullFilePath());
    EXPECT_TRUE(loaded->readNotes().isEmpty());
    loaded->validate();
    EXPECT_EQ(faults(*loaded), QStringList());
    EXPECT_EQ(danglingNames(*loaded), QStringList());
    EXPECT_TRUE(saved(*loaded) == bytesOf(project->fullFilePath()));
}

TEST_F(ProjectGeneratorTest, ReportsImpossibleCounts)
{
    EXPECT_EQ((ProjectSize{1, 8, 1}.problem()), QString());
    EXPECT_EQ((ProjectSize{0, 8, 1}.problem()), u"A project needs at least one screen."_s);
    EXPECT_EQ((ProjectSize{1, 7, 1}.problem()), u"A project needs at least 8 variables, one of each kind."_s);
    EXPECT_EQ((ProjectSize{9, 8, 8}.problem()), u"Each screen needs at least one element."_s);
    EXPECT_FALSE(ProjectSize::named(u"XL"_s));
}

} // namespace Halvane::Corvex::Examples
