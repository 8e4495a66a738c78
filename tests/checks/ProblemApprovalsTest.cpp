// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemApprovals.h"
#include "corvex/checks/ProblemList.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/commands/RenameProject.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"

#include "editing/commands/CommandFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ProblemApprovalsTest : public CommandFixture
{
protected:
    void SetUp() override
    {
        HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA));
        CommandFixture::SetUp();
        list.emplace(*project, *HardwareConfigurations::instance()->installed());
        approvals.emplace(*project);
        list->setApprovals(&*approvals);
        set(element("rectangle1"), "opacity", u"500"_s);
        list->update();
    }

    Problem problemOf(const DesignerObject *object, ProblemCode code) const
    {
        for (const Problem &problem : list->problemsOf(object)) {
            if (problem.code == code) {
                return problem;
            }
        }
        ADD_FAILURE() << ProblemKind::of(code).word;
        return {};
    }
    Problem fading() const { return problemOf(element("rectangle1"), ProblemCode::AppearanceRange); }
    void writeFile(const QByteArray &bytes) const
    {
        QFile file(project->approvalsPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray fileText() const
    {
        QFile file(project->approvalsPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    void save() const { ASSERT_TRUE(project->saveFile()) << qPrintable(project->fileError()); }

    std::optional<ProblemApprovals> approvals;
    std::optional<ProblemList> list;
};

TEST_F(ProblemApprovalsTest, AreCountedApartAndSavedInOrder)
{
    const qsizetype warnings = list->count(Severity::Warning);
    const QSignalSpy changed(&*list, &ProblemList::changed);
    approvals->approve(problemOf(variable("history"), ProblemCode::LogUnfed));
    approvals->approve(fading(), u"It is a \"watermark\"."_s);
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(list->count(Severity::Warning), warnings - 2);
    EXPECT_EQ(list->approvedCount(), 2);
    EXPECT_TRUE(fading().isApproved);
    ASSERT_TRUE(approvals->save());
    EXPECT_EQ(fileText().toStdString(),
              R"({"code":"appearance.range","message":"opacity takes numbers from 10 to 100, not 500.",)"
              R"("object":"Main.rectangle1","property":"opacity","reason":"It is a \"watermark\"."}
{"code":"log.unfed","message":"No element on any screen feeds this log.","object":"history"}
)");

    const ProblemApprovals again(*project);
    EXPECT_EQ(again.errorString(), QString());
    EXPECT_EQ(again.reasonFor(fading()), u"It is a \"watermark\"."_s);
    // A problem with another value is a different one.
    set(element("rectangle1"), "opacity", u"600"_s);
    list->update();
    EXPECT_FALSE(fading().isApproved);
    set(element("rectangle1"), "opacity", u"500"_s);
    list->update();
    EXPECT_TRUE(approvals->withdraw(fading()));
    EXPECT_FALSE(approvals->withdraw(fading()));
    EXPECT_TRUE(approvals->withdraw(problemOf(variable("history"), ProblemCode::LogUnfed)));
    ASSERT_TRUE(approvals->save());
    EXPECT_FALSE(QFile::exists(project->approvalsPath()));
}

TEST_F(ProblemApprovalsTest, KeepWhatOthersWrote)
{
    approvals->approve(fading());
    ASSERT_TRUE(approvals->save());
    const QByteArray ours = fileText();
    const QByteArray theirs = R"({"code":"log.unfed","message":"m","object":"history"})"
                              "\n";
    writeFile(ours + theirs);
    approvals->approve(problemOf(variable("history"), ProblemCode::LogUnfed));
    ASSERT_TRUE(approvals->save());
    EXPECT_TRUE(fileText().contains(theirs));
    EXPECT_EQ(fileText().count('\n'), 3);
    writeFile(fileText().replace(ours, ""));
    ASSERT_TRUE(approvals->save());
    EXPECT_FALSE(approvals->isApproved(fading()));
    EXPECT_EQ(fileText().count('\n'), 2);
    approvals->approve(fading()); // the file does not have it yet
    writeFile(theirs);
    ASSERT_TRUE(approvals->save());
    EXPECT_TRUE(approvals->isApproved(fading()));

    // Converted line ends, another order, and a key of another program.
    writeFile("{\"ticket\":7, " + ours.sliced(1).replace("\n", "\r\n") + theirs);
    approvals.emplace(*project);
    approvals->approve(fading(), u"new reason"_s);
    ASSERT_TRUE(approvals->save());
    EXPECT_TRUE(fileText().contains("\"reason\":\"new reason\",\"ticket\":7}")) << fileText().toStdString();
    writeFile("{\"ticket\":7, " + ours.sliced(1).replace("\n", "\r\n"));
    approvals.emplace(*project);
    writeFile(theirs);
    ASSERT_TRUE(approvals->save());
    EXPECT_FALSE(approvals->isApproved(fading()));
    EXPECT_EQ(fileText(), theirs);
}

TEST_F(ProblemApprovalsTest, FollowNames)
{
    set(element("pwmOutput1"), "channel", u"1"_s);
    DesignerObject *twin = addTo(main, "PwmOutput");
    set(twin, "channel", u"1"_s);
    list->update();
    approvals->approve(fading());
    approvals->approve(problemOf(twin, ProblemCode::ChannelShared));
    push(Commands::renameOf(element("pwmOutput1"), u"fan"_s).command.release());
    DesignerObject *namesake = addTo(other, "PwmOutput"); // takes the name, and another one
    push(Commands::renameOf(namesake, u"fan"_s).command.release());
    push(Commands::renameOf(namesake, u"blower"_s).command.release());
    push(Commands::renameOf(element("rectangle1"), u"shade"_s).command.release());
    push(Commands::renameOf(main, u"First"_s).command.release());
    list->update();
    EXPECT_EQ(list->approvedCount(), 2);
    push(new RenameProject(project.get(), u"Fans"_s));
    save();
    EXPECT_TRUE(project->approvalsPath().endsWith("/Fans/Approvals.jsonl"_L1));
    EXPECT_TRUE(fileText().contains("\"object\":\"First.shade\"")) << fileText().toStdString();
    EXPECT_TRUE(fileText().contains("pwmOutput2 and fan")) << fileText().toStdString();
    ASSERT_TRUE(project->loadFile(project->fullFilePath()));
    list->update();
    EXPECT_EQ(list->approvedCount(), 2);
}

TEST_F(ProblemApprovalsTest, GoWithTheirObjectUntilItComesBack)
{
    approvals->approve(fading());
    push(Commands::deletionOf(element("rectangle1")).command.release());
    ASSERT_TRUE(approvals->save());
    EXPECT_FALSE(QFile::exists(project->approvalsPath()));
    stack().undo();
    list->update();
    EXPECT_TRUE(fading().isApproved);
    save();
    EXPECT_TRUE(fileText().contains("Main.rectangle1"));
    ASSERT_TRUE(project->createFileCopy(folder.path(), u"Copy"_s)) << qPrintable(project->fileError());
    EXPECT_TRUE(QFile::exists(folder.filePath(u"Copy/Approvals.jsonl"_s)));
}

TEST_F(ProblemApprovalsTest, OfAnotherProgramOrAVersionControlAreNotLost)
{
    const QByteArray foreign = "{\"code\":\"x.y\",\"message\":\"m\",\"object\":\"Gone.a\"}\n\n";
    writeFile(foreign);
    approvals.emplace(*project);
    EXPECT_EQ(approvals->errorString(), QString());
    approvals->approve(fading());
    save();
    EXPECT_TRUE(fileText().startsWith(foreign.trimmed() + '\n')) << fileText().toStdString();

    for (const QByteArray bad : {"<<<<<<< HEAD", "{\"code\":\"x.y\"}", "[1]", "\xff\xfe", "{\"code\":"}) {
        writeFile(foreign + bad);
        approvals.emplace(*project);
        EXPECT_TRUE(approvals->errorString().contains(u"Line 3"_s)) << qPrintable(approvals->errorString());
        approvals->approve(fading());
        EXPECT_FALSE(approvals->save());
        save();
        EXPECT_EQ(fileText(), foreign + bad);
    }
}

} // namespace Halvane::Corvex::Designer::Test
