// SPDX-License-Identifier: MIT
// Compares the live list of problems with a check of the whole project.
#include "corvex/checks/ProblemList.h"
#include "corvex/checks/ProjectProblems.h"
#include "corvex/core/ItemList.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/hardware/ConfigurationContainer.h"

#include "support/RandomEdits.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

QStringList textsOf(const QList<Problem> &problems)
{
    QStringList texts;
    for (const Problem &problem : problems) {
        texts.append(u"%1 (%2, %3)"_s.arg(problem.toString(), QString::fromUtf8(problem.kind().word),
                                          problem.property));
    }
    return texts;
}

//! The texts that are in only one of the lists.
QString difference(QStringList texts, QStringList expected)
{
    texts.sort();
    expected.sort();
    QStringList tooMany;
    QStringList missing;
    std::ranges::set_difference(texts, expected, std::back_inserter(tooMany));
    std::ranges::set_difference(expected, texts, std::back_inserter(missing));
    return tooMany.isEmpty() && missing.isEmpty()
               ? QString()
               : u"too many:\n%1\nmissing:\n%2"_s.arg(tooMany.join(u'\n'), missing.join(u'\n'));
}

} // namespace

class ProblemListTest : public RandomEdits
{
protected:
    void SetUp() override
    {
        RandomEdits::SetUp();
        list.emplace(*project, *models());
        QObject::connect(&*list, &ProblemList::aboutToRemove, &*list,
                         [this](qsizetype first, qsizetype last) {
                             ASSERT_EQ(rows.size(), list->count());
                             ASSERT_TRUE(0 <= first && first <= last && last < list->count());
                         });
        QObject::connect(&*list, &ProblemList::removed, &*list, [this](qsizetype first, qsizetype last) {
            rows.remove(first, last - first + 1);
            ASSERT_EQ(rows.size(), list->count());
        });
        QObject::connect(&*list, &ProblemList::inserted, &*list, [this](qsizetype first, qsizetype last) {
            ASSERT_EQ(first, rows.size());
            for (qsizetype row = first; row <= last; ++row) {
                rows.append(list->at(row).message);
            }
            ASSERT_EQ(rows.size(), list->count());
        });
        list->update();
    }

    static const ConfigurationContainer *models() { return HardwareConfigurations::instance()->installed(); }

    //! The list must equal the result of a check of the validated project, and its signals must have reported
    //! each row.
    void check()
    {
        list->update();
        ASSERT_TRUE(list->isCurrent());
        project->validate();
        const QStringList texts = textsOf(list->problems());
        ASSERT_EQ(difference(texts, textsOf(ProjectProblems::find(*project, *models()))), QString());
        QStringList messages;
        for (const Problem &problem : list->problems()) {
            messages.append(problem.message);
        }
        ASSERT_EQ(rows, messages);
        ASSERT_EQ(list->count(Severity::Error) + list->count(Severity::Warning), list->count());
    }

    void edit(int steps)
    {
        UndoStack *stack = project->undoStack();
        ASSERT_NO_FATAL_FAILURE(check());
        for (int step = 0; step < steps; ++step) {
            QString what = u"undo or redo"_s;
            if (random.chance(25)) {
                stack->setIndex(std::clamp(stack->index() + random.between(-4, 3), 0, stack->count()));
            } else if (std::unique_ptr<UndoCommand> command{anyCommand()}; command && command->isValid()) {
                what = command->text();
                stack->push(command.release());
            }
            SCOPED_TRACE(testing::Message()
                         << "seed " << seed << ", step " << step << ": " << what.toStdString());
            if (random.chance(70)) {
                ASSERT_NO_FATAL_FAILURE(check());
            }
        }
        stack->setIndex(0);
        ASSERT_NO_FATAL_FAILURE(check());
        stack->setIndex(stack->count());
        ASSERT_NO_FATAL_FAILURE(check());
    }

    void changeAnyValue();

    std::optional<ProblemList> list;
    QStringList rows; //!< messages, as the signals tell
};

TEST_F(ProblemListTest, FollowsRandomEdits)
{
    edit(setting("CORVEX_MODEL_STEPS", 400));
}

TEST_F(ProblemListTest, FollowsRandomEditsWithHostileNames)
{
    hasHostileNames = true;
    edit(setting("CORVEX_MODEL_STEPS", 400));
}

//! A value of the same property elsewhere, or one that is wrong in most places.
void ProblemListTest::changeAnyValue()
{
    static const QStringList wrong{u""_s,
                                   u"-1"_s,
                                   u"99999"_s,
                                   u"1e300"_s,
                                   u"filterType: ; objectId: nothing; scopeType: Screen;"_s,
                                   u"filterType: ; objectId: nothing; scopeType: Project;"_s,
                                   u"5,1"_s,
                                   u"nothing"_s,
                                   u"while"_s,
                                   u"name: first1; scopeType: Screen; type: Text;"_s,
                                   u"name: Screen1; scopeType: Project; type: Screen;"_s,
                                   u"variable|bool|nothing"_s};
    const QList<DesignerObject *> all = below(project.get());
    DesignerObject *object = random.oneOf(all);
    const SharedProperty property = random.oneOf(object->properties().toList());
    if (property->isList() || property->isObject()) {
        return;
    }
    const SharedProperty other = random.oneOf(all)->getProperty(property->id());
    const QString value = other && random.chance(60) ? other->valueString() : random.oneOf(wrong);
    object->setDisableValidation(random.chance(30));
    object->changePropertyValue(property, value);
    object->setDisableValidation(false);
}

//! The model changes without a command, and takes what validation would refuse.
TEST_F(ProblemListTest, FollowsChangesOfAnyValue)
{
    for (int i = 0; i < setting("CORVEX_MODEL_STEPS", 400); ++i) {
        for (int times = random.below(4); times >= 0; --times) {
            changeAnyValue();
        }
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << i);
        ASSERT_NO_FATAL_FAILURE(check());
    }
    EXPECT_GT(list->count(), 40);
}

TEST_F(ProblemListTest, ChecksWhileTheEventLoopIsIdle)
{
    DesignerObject *element = anyElement(u"VisualElement"_s);
    QSignalSpy current(&*list, &ProblemList::currentChanged);
    element->changePropertyValue(element->getProperty(u"opacity"), u"500"_s);
    EXPECT_FALSE(list->isCurrent());
    ASSERT_TRUE(current.wait());
    EXPECT_TRUE(list->isCurrent());
    const QList<Problem> found = list->problemsOf(*element->getProperty(u"opacity"));
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.first().code, ProblemCode::AppearanceRange);
    // The path is that of the present name.
    element->changePropertyValue(element->idProperty(), named(element, u"renamed"_s));
    EXPECT_EQ(list->problemsOf(element).first().path(), element->objectPath());
}

TEST_F(ProblemListTest, OutlivesItsProject)
{
    ASSERT_GT(list->count(), 0);
    project.reset();
    EXPECT_EQ(list->count(), 0);
    EXPECT_EQ(list->project(), nullptr);
    list->checkAll();
    list->update();
    EXPECT_TRUE(list->isCurrent());
    EXPECT_EQ(rows, QStringList());
}

} // namespace Halvane::Corvex::Designer::Test
