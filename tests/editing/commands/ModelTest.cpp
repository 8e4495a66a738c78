// SPDX-License-Identifier: MIT
// Random edits with random undo and redo, in a project with elements of every class. The model must be
// consistent after each step; at the end, undo must restore the first state to the byte, and redo the last
// one.
//
// CORVEX_MODEL_STEPS and CORVEX_MODEL_SEED set the number of steps and the seed; scripts/soak uses them.
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/document/ProjectHistory.h"
#include "corvex/editing/references/ReferenceChanges.h"
#include "corvex/editing/references/ReferenceScanner.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/project/files/ProjectAutosave.h"
#include "corvex/values/records/ListInfo.h"

#include "ModelMirror.h"
#include "support/RandomEdits.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

//! The first differing line on both sides; empty for equal texts.
QString difference(const QString &text, const QString &expected)
{
    const QStringList left = text.split(u'\n');
    const QStringList right = expected.split(u'\n');
    for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i) {
        if (left.value(i) != right.value(i)) {
            return u"line %1:\n%2\ninstead of\n%3"_s.arg(QString::number(i + 1), left.value(i).left(2000),
                                                         right.value(i).left(2000));
        }
    }
    return {};
}

} // namespace

class ModelTest : public RandomEdits
{
protected:
    void edit();
    void checkModel();
    void checkOwners(const DesignerObject *owner);
    void checkReferences(const DesignerObject *object);
};

void ModelTest::checkOwners(const DesignerObject *owner)
{
    for (const SharedProperty &list : owner->properties()) {
        if (!list->isList()) {
            continue;
        }
        for (DesignerObject *item : list->listItems()) {
            ASSERT_EQ(item->parent(), owner) << qPrintable(item->objectPath());
            ASSERT_EQ(item->listProperty(), list) << qPrintable(item->objectPath());
            ASSERT_EQ(item->listProperties().size(), 1) << qPrintable(item->objectPath());
            ASSERT_EQ(item->project(), project.get()) << qPrintable(item->objectPath());
            ASSERT_EQ(list->getListItem(item->getIdName()), item) << qPrintable(item->objectPath());
            checkOwners(item);
        }
        const QStringList names = list->listItemNames();
        list->sortList();
        ASSERT_EQ(list->listItemNames(), names) << qPrintable(owner->objectPath() + u'.' + list->id());
    }
}

//! The index must contain the same sites as a search.
void ModelTest::checkReferences(const DesignerObject *object)
{
    if (object->getIdName().isEmpty()) {
        return;
    }
    QSet<SharedProperty> walked;
    for (const ReferenceUse &use : ReferenceScanner::uses(ReferenceTarget::toItself(object))) {
        walked.insert(use.property);
    }
    QSet<SharedProperty> indexed;
    for (const ValueChange &change : ReferenceChanges::renamed(object, u"anything"_s)) {
        indexed.insert(change.property);
    }
    ASSERT_EQ(indexed, walked) << qPrintable(object->objectPath());
}

void ModelTest::checkModel()
{
    ASSERT_NO_FATAL_FAILURE(checkOwners(project.get()));
    const QList<DesignerObject *> all = below(project.get());
    // Objects with a bad or duplicate name are marked, and references to them are ambiguous.
    for (const DesignerObject *object : hasHostileNames ? QList<DesignerObject *>() : all) {
        if (const auto *group = kindCast<GroupElement>(object)) {
            QStringList indexes = ListInfo(group->indexes()->valueString()).toList();
            QStringList members = group->elements()->listItemNames();
            indexes.sort();
            members.sort();
            ASSERT_EQ(indexes, members) << qPrintable(group->objectPath());
        }
        for (const SharedProperty &property : object->properties()) {
            if (property->isKindOfClass(LinkProperty::kindName())) {
                const auto &link = static_cast<const LinkProperty &>(*property);
                ASSERT_TRUE(!link.value().isValid() || link.connectLink())
                    << qPrintable(object->objectPath() + u": "_s + property->valueString());
            }
        }
    }
    ASSERT_NO_FATAL_FAILURE(checkReferences(random.oneOf(all)));
}

void ModelTest::edit()
{
    const int steps = setting("CORVEX_MODEL_STEPS", 1000);
    UndoStack *stack = project->undoStack();
    const ModelMirror mirror(*project);
    ASSERT_NO_FATAL_FAILURE(checkModel());
    const QString first = text();
    int done = 0;
    for (int step = 0; step < steps; ++step) {
        QString what = u"undo or redo"_s;
        if (random.chance(25)) {
            stack->setIndex(std::clamp(stack->index() + random.between(-4, 3), 0, stack->count()));
        } else if (std::unique_ptr<UndoCommand> command{anyCommand()}; command && command->isValid()) {
            what = command->text();
            done += stack->push(command.release()) ? 1 : 0;
        }
        SCOPED_TRACE(testing::Message()
                     << "seed " << seed << ", step " << step << ": " << what.toStdString());
        ASSERT_NO_FATAL_FAILURE(checkModel());
        if (step % setting("CORVEX_MODEL_WALK", 250) == 0 || step == steps - 1) {
            const int index = stack->index();
            const QString last = text();
            stack->setIndex(0);
            ASSERT_EQ(difference(text(), first), QString());
            stack->setIndex(index);
            ASSERT_EQ(difference(text(), last), QString());
        }
        if (step % 20 == 0) {
            ASSERT_EQ(mirror.difference(), QString());
        }
    }
    EXPECT_EQ(mirror.difference(), QString());
    EXPECT_GT(done, steps / 3);
}

TEST_F(ModelTest, UndoingRandomEditsRestoresEveryByte)
{
    edit();
}

TEST_F(ModelTest, UndoingEditsWithHostileNamesRestoresEveryByte)
{
    hasHostileNames = true;
    edit();
}

//! Records all states of a history as texts.
class HistoryTest : public ModelTest
{
protected:
    //! The project and the contents of its image files.
    QString state() const
    {
        QString all = text();
        for (const QString &name : project->imageResources()->listItemNames()) {
            all +=
                u"\n%1: %2"_s.arg(name, Common::FileHelper::md5(QDir(project->imagesPath()).filePath(name)));
        }
        return all;
    }
    void push(ProjectHistory &history)
    {
        std::unique_ptr<UndoCommand> command{anyCommand()};
        if (command && command->isValid() && project->undoStack()->push(command.release())) {
            note(history);
        }
    }
    //! Records a new step.
    void note(const ProjectHistory &history)
    {
        states.resize(position + 1);
        states.append(state());
        saved = saved > position ? -1 : saved;
        position = history.position();
    }
    void gesture(ProjectHistory &history)
    {
        UndoStack *stack = project->undoStack();
        ASSERT_TRUE(stack->beginGesture(u"Gesture"_s));
        for (int i = random.below(8); i > 0; --i) {
            if (std::unique_ptr<UndoCommand> command{anyCommand()}; command && command->isValid()) {
                stack->push(command.release());
            }
        }
        const bool hasChanged = stack->hasChangedInGesture();
        if (random.chance(40)) {
            ASSERT_TRUE(stack->rollBackGesture());
        } else if (stack->commitGesture() && hasChanged) {
            note(history);
        }
    }
    void save(const ProjectHistory &history)
    {
        ASSERT_TRUE(project->saveFile()) << qPrintable(project->fileError());
        saved = history.position();
    }
    void check(const ProjectHistory &history) const
    {
        ASSERT_EQ(history.position(), position);
        ASSERT_EQ(history.count(), states.size() - 1);
        ASSERT_EQ(history.savedPosition(), saved);
        ASSERT_EQ(project->undoStack()->isSaved(), position == saved);
        ASSERT_EQ(history.canUndo(), position > 0);
        ASSERT_EQ(history.canRedo(), position < states.size() - 1);
        ASSERT_EQ(difference(state(), states.at(position)), QString());
    }

    QStringList states;
    int position = 0;
    int saved = 0;
};

TEST_F(HistoryTest, UndoAndRedoCrossSaves)
{
    ProjectHistory history(*project);
    states = {state()};
    const int steps = setting("CORVEX_MODEL_STEPS", 1000) / 4;
    for (int step = 0; step < steps; ++step) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step);
        const int kind = random.below(100);
        if (kind < 25) {
            position = std::clamp(position + random.between(-9, 8), 0, int(states.size()) - 1);
            ASSERT_TRUE(history.goTo(position)) << qPrintable(history.errorString());
        } else if (kind < 37) {
            ASSERT_NO_FATAL_FAILURE(save(history));
        } else if (kind < 39) {
            project->autosave().run();
        } else if (kind < 50) {
            ASSERT_NO_FATAL_FAILURE(gesture(history));
        } else {
            push(history);
        }
        ASSERT_NO_FATAL_FAILURE(check(history));
    }
    for (position = int(states.size()) - 1; position >= 0; position -= 7) {
        ASSERT_TRUE(history.goTo(position)) << qPrintable(history.errorString());
        ASSERT_NO_FATAL_FAILURE(check(history));
    }
}

} // namespace Halvane::Corvex::Designer::Test
