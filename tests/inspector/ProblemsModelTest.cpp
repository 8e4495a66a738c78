// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemApprovals.h"
#include "corvex/checks/ProblemList.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/inspector/ObjectTreeModel.h"
#include "corvex/inspector/ProblemsModel.h"

#include "InspectorFixture.h"
#include "ViewMirror.h"

#include <QAbstractItemModelTester>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ProblemsModelTest : public InspectorFixture
{ };

TEST_F(ProblemsModelTest, RowsHavePlacesFixesAndApprovals)
{
    ASSERT_TRUE(HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA)));
    ProblemList problems(document->project(), *HardwareConfigurations::instance()->installed());
    ProblemApprovals approvals(document->project());
    problems.setApprovals(&approvals);
    ProblemsModel model(problems);
    ObjectTreeModel tree(*document);
    tree.setProblems(&problems);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QList<int> roles{Qt::DisplayRole, ProblemsModel::PathRole, ProblemsModel::ApprovedRole};
    const ViewMirror mirror(model, roles);
    ASSERT_TRUE(set(element("rectangle1"), "radius", u"-5"_s));
    problems.update();

    const QModelIndexList found =
        model.match(model.index(0, 0), ProblemsModel::PropertyRole, u"radius"_s, 1, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1);
    const QPersistentModelIndex row = found.constFirst();
    EXPECT_EQ(row.data(ProblemsModel::ObjectRole).value<DesignerObject *>(), element("rectangle1"));
    const QPersistentModelIndex object = tree.indexOf(element("rectangle1"));
    EXPECT_EQ(object.data(ObjectTreeModel::SeverityRole), int(Severity::Warning));
    EXPECT_EQ(row.data(ProblemsModel::CodeRole), u"appearance.range"_s);
    EXPECT_EQ(row.data(ProblemsModel::SeverityNameRole), u"warning"_s);
    EXPECT_EQ(row.sibling(row.row(), ProblemsModel::PlaceColumn).data(), u"Main.rectangle1: radius"_s);
    approvals.approve(model.problem(row.row()));
    EXPECT_TRUE(row.data(ProblemsModel::ApprovedRole).toBool());
    EXPECT_FALSE(object.data(ObjectTreeModel::SeverityRole).isValid()) << "approved";
    EXPECT_EQ(mirror.lines(), ViewMirror::linesOf(model, roles));

    for (DesignerObject *renamed : {element("rectangle1"), static_cast<DesignerObject *>(main)}) {
        ASSERT_TRUE(push(Commands::renameOf(renamed, renamed->getIdName() + u"New"_s)));
        problems.update();
        EXPECT_EQ(mirror.lines(), ViewMirror::linesOf(model, roles));
    }
    const QModelIndex renamed =
        model.match(model.index(0, 0), ProblemsModel::PropertyRole, u"radius"_s, 1, Qt::MatchExactly)
            .value(0);
    EXPECT_EQ(renamed.data(ProblemsModel::PathRole), u"MainNew.rectangle1New"_s);
    const QList<ProblemFix> fixes = model.fixes(renamed.row());
    ASSERT_EQ(renamed.data(ProblemsModel::FixesRole).toStringList().size(), fixes.size());
    ASSERT_FALSE(fixes.isEmpty());
    ASSERT_TRUE(document->push(fixes.constFirst().makeCommand().release()));
    problems.update();
    EXPECT_EQ(mirror.lines(), ViewMirror::linesOf(model, roles));
    EXPECT_FALSE(mirror.lines().join(u'\n').contains(u"radius"_s));
}

} // namespace Halvane::Corvex::Designer::Test
