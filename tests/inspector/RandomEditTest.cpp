// SPDX-License-Identifier: MIT
// The models of the inspector follow random edits with undo and redo. After each of them, a view that knows
// the signals alone holds what a model has that was just made.
#include "corvex/checks/ProblemList.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/inspector/ObjectTreeModel.h"
#include "corvex/inspector/ProblemsModel.h"
#include "corvex/inspector/PropertySheet.h"

#include "ProjectGenerator.h"
#include "ViewMirror.h"
#include "support/RandomEdits.h"

#include <QAbstractItemModelTester>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class RandomEditTest : public RandomEdits
{
protected:
    //! The document owns the project from here on; the generator of edits uses it further.
    void open()
    {
        document = std::make_unique<ProjectDocument>(std::unique_ptr<Project>(project.get()));
        tree = std::make_unique<ObjectTreeModel>(*document);
        sheet = std::make_unique<PropertySheet>(*project);
        problems = std::make_unique<ProblemList>(*project, *HardwareConfigurations::instance()->installed());
        problems->update();
        tree->setProblems(problems.get());
        problemsModel = std::make_unique<ProblemsModel>(*problems);
        problemsMirror = std::make_unique<ViewMirror>(*problemsModel, problemRoles);
        treeMirror = std::make_unique<ViewMirror>(*tree, treeRoles);
        sheetMirror = std::make_unique<ViewMirror>(*sheet, sheetRoles);
    }
    void TearDown() override { std::ignore = project.release(); }
    void addTesters()
    {
        for (QAbstractItemModel *model : {static_cast<QAbstractItemModel *>(tree.get()),
                                          static_cast<QAbstractItemModel *>(problemsModel.get()),
                                          static_cast<QAbstractItemModel *>(sheet.get())}) {
            testers.push_back(std::make_unique<QAbstractItemModelTester>(
                model, QAbstractItemModelTester::FailureReportingMode::Fatal));
        }
    }
    void edit()
    {
        UndoStack *stack = project->undoStack();
        if (random.chance(30)) {
            stack->setIndex(std::clamp(stack->index() + random.between(-4, 3), 0, stack->count()));
            return;
        }
        std::unique_ptr<UndoCommand> command{random.chance(10) ? moveCommand() : anyCommand()};
        if (command && command->isValid()) {
            what = command->text();
            document->push(command.release());
        }
    }
    UndoCommand *moveCommand()
    {
        const Screen *to = anyScreen();
        const QList<DesignerObject *> moved{anyElement(), anyElement(), anyElement(u"GroupElement"_s)};
        return Commands::moveOf(moved, to->elements(), random.below(60)).command.release();
    }
    //! Some objects of one kind, or of several.
    void selectAny()
    {
        const QList<DesignerObject *> all = below(project.get());
        const QString className = random.oneOf(all)->className();
        QList<DesignerObject *> some;
        for (DesignerObject *object : all) {
            if (some.size() < 6 && random.chance(object->className() == className ? 50 : 2)) {
                some.append(object);
            }
        }
        sheet->setObjects(some);
    }
    void check() const
    {
        problems->update();
        ASSERT_EQ(problemsMirror->lines(), ViewMirror::linesOf(*problemsModel, problemRoles));
        ObjectTreeModel newTree(*document);
        newTree.setProblems(problems.get());
        ASSERT_EQ(treeMirror->lines(), ViewMirror::linesOf(newTree, treeRoles));
        PropertySheet newSheet(*project);
        newSheet.setObjects(sheet->objects());
        ASSERT_EQ(sheetMirror->lines(), ViewMirror::linesOf(newSheet, sheetRoles));
    }
    void checkPersistent(const QList<std::pair<QPersistentModelIndex, DesignerObject *>> &held) const
    {
        for (const auto &[index, object] : held) {
            if (index.isValid()) {
                ASSERT_EQ(tree->object(index), object);
                ASSERT_EQ(QModelIndex(index), tree->indexOf(object));
            }
        }
    }

    const QList<int> treeRoles{Qt::DisplayRole,
                               Qt::EditRole,
                               Qt::ToolTipRole,
                               ObjectTreeModel::ObjectRole,
                               ObjectTreeModel::ClassRole,
                               ObjectTreeModel::ValidRole,
                               ObjectTreeModel::ErrorsRole,
                               ObjectTreeModel::SeverityRole};
    const QList<int> problemRoles{Qt::DisplayRole,           ProblemsModel::SeverityRole,
                                  ProblemsModel::CodeRole,   ProblemsModel::PathRole,
                                  ProblemsModel::ObjectRole, ProblemsModel::ApprovedRole};
    const QList<int> sheetRoles{Qt::DisplayRole,
                                PropertySheet::IdRole,
                                PropertySheet::GroupRole,
                                PropertySheet::MixedRole,
                                PropertySheet::DefaultRole,
                                PropertySheet::ErrorRole,
                                PropertySheet::VisibleRole,
                                PropertySheet::ReadOnlyRole,
                                PropertySheet::EditorParametersRole};
    QString what;
    std::unique_ptr<ProjectDocument> document;
    std::unique_ptr<ObjectTreeModel> tree;
    std::unique_ptr<PropertySheet> sheet;
    std::unique_ptr<ProblemList> problems;
    std::unique_ptr<ProblemsModel> problemsModel;
    std::unique_ptr<ViewMirror> treeMirror;
    std::unique_ptr<ViewMirror> problemsMirror;
    std::unique_ptr<ViewMirror> sheetMirror;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> testers;
};

TEST_F(RandomEditTest, AllModelsFollow)
{
    open();
    addTesters();
    QList<std::pair<QPersistentModelIndex, DesignerObject *>> held;
    for (DesignerObject *object : below(project.get())) {
        held.append({tree->indexOf(object), object});
    }
    for (int step = 0; step < 250; ++step) {
        hasHostileNames = step > 150;
        if (step % 8 == 0) {
            selectAny();
        }
        edit();
        SCOPED_TRACE(testing::Message() << "step " << step << ": " << what.toStdString());
        ASSERT_NO_FATAL_FAILURE(check());
        ASSERT_NO_FATAL_FAILURE(checkPersistent(held));
    }
}

class LargeEditTest : public RandomEditTest
{
protected:
    void SetUp() override
    {
        Examples::ProjectGenerator generator(u"Large"_s, {.screens = 5, .variables = 100, .elements = 50'000},
                                             seed);
        project = generator.generate();
        ASSERT_TRUE(project->createFile(folder.path()));
    }
};

TEST_F(LargeEditTest, AllModelsFollow)
{
    open();
    selectAny();
    for (int step = 0; step < 40; ++step) {
        edit();
    }
    ASSERT_NO_FATAL_FAILURE(check());
    addTesters(); // each signal makes them look at all rows
    edit();
    ASSERT_NO_FATAL_FAILURE(check());
}

} // namespace Halvane::Corvex::Designer::Test
