// SPDX-License-Identifier: MIT
// The notifications of observers: complete and in order.
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include "CommandFixture.h"
#include "ModelMirror.h"
#include "Random.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

//! Does something once during a notification.
class Doer : public ModelObserver
{
public:
    explicit Doer(std::function<void()> what)
        : m_what(std::move(what))
    { }

    void valueChanged(const SharedProperty &, const QString &) override
    {
        ++calls;
        if (m_what) {
            std::exchange(m_what, nullptr)();
        }
    }

    int calls = 0;

private:
    std::function<void()> m_what;
};

} // namespace

class ObserverTest : public CommandFixture
{
protected:
    //! A list and the classes of its possible items.
    struct List
    {
        SharedProperty list;
        QList<const char *> classes;
    };

    List anyList()
    {
        auto *screen = static_cast<Screen *>(project->screens()->getListItemAtIndex(0));
        return random.oneOf(QList<List>{
            {project->variables(), {"NumberVariable", "StringVariable", "FtpVariable"}},
            {project->screens(), {"Screen"}},
            {screen->elements(), {"Rectangle", "Text", "LogicBuilder", "PwmOutput", "Action"}},
            {screen->filters(), {"FilterElement"}},
        });
    }
    QString newName() { return u"%1%2"_s.arg(QChar(u'a' + char16_t(random.below(26)))).arg(++lastNumber); }
    DesignerObject *newItem(const List &list)
    {
        return make(QString::fromLatin1(random.oneOf(list.classes)), newName());
    }
    void editList(const List &target);
    void editObject(DesignerObject *object);
    void editProject();

    Examples::Random random{7};
    int lastNumber = 0;
};

void ObserverTest::editList(const List &target)
{
    const SharedProperty &list = target.list;
    DesignerObject *owner = list->parentObject();
    const int count = int(list->listItemCount());
    DesignerObject *item = count > 0 ? list->getListItemAtIndex(random.below(count)) : nullptr;
    DesignerObject *partner = count > 0 ? list->getListItemAtIndex(random.below(count)) : nullptr;
    // Other parts of the test use the first screen and its lists.
    const bool isSpare = item && (list != project->screens() || item != list->getListItemAtIndex(0));
    switch (random.below(9)) {
    case 0:
    case 1:
        EXPECT_TRUE(owner->addListPropertyItem(list, newItem(target)));
        break;
    case 2:
        EXPECT_TRUE(owner->insertListPropertyItemAt(list, newItem(target), random.below(count + 1)));
        break;
    case 3:
        owner->swapListPropertyItems(list, item, partner);
        break;
    case 4:
        if (isSpare && owner->takeListPropertyItem(list, item)) {
            item->setIdName(newName());
            EXPECT_TRUE(owner->insertListPropertyItemAt(list, item, random.below(count)));
        }
        break;
    case 5:
        if (isSpare && owner->replaceListPropertyItem(list, item, newItem(target))) {
            delete item;
        }
        break;
    case 6:
        if (isSpare && count > 3) {
            delete item; // while it is in the model
        }
        break;
    case 7:
        if (isSpare && count > 3) {
            delete owner->takeListPropertyItem(list, item);
        }
        break;
    default:
        list->setOrderingPaused(true);
        for (int i = 0; i < 3; ++i) {
            EXPECT_TRUE(owner->insertListPropertyItemAt(list, newItem(target), 0));
        }
        list->setOrderingPaused(false);
        if (random.chance(50)) {
            list->sortList();
        }
    }
}

void ObserverTest::editObject(DesignerObject *object)
{
    const QList<SharedProperty> properties = object->properties().toList();
    const SharedProperty property = random.oneOf(properties);
    switch (random.below(7)) {
    case 0:
        object->setIdName(random.chance(80) ? newName() : u"not a name"_s);
        break;
    case 1:
        property->setEditorParameter(u"visible"_s, random.chance(50));
        break;
    case 2:
        property->setName(newName());
        property->setFlag(EditableFlag, random.chance(50));
        break;
    case 3:
        object->setDisableValidation(true);
        object->changePropertyValue(property, u"500"_s);
        object->setDisableValidation(false);
        object->validate();
        break;
    case 4:
        if (!property->isList() && !property->isObject() && property != object->idProperty()) {
            project->undoStack()->push(
                new ChangeProperty(property, QString::number(random.below(200)), true));
        }
        break;
    default:
        object->changePropertyValue(property, QString::number(random.between(-200, 200)));
    }
}

void ObserverTest::editProject()
{
    switch (random.below(5)) {
    case 0:
        // A project without a configuration cannot be saved.
        if (random.chance(50)) {
            project->changePropertyObjectValue(project->configuration(), nullptr, true);
        }
        project->changePropertyObjectValue(project->configuration(), make(u"Configuration"_s, newName()),
                                           true);
        break;
    case 1:
        EXPECT_TRUE(project->saveFile()) << qPrintable(project->fileError());
        break;
    case 2:
        EXPECT_TRUE(project->saveFile() && project->loadFile(project->fullFilePath()));
        break;
    case 3: {
        // A part of a project that is read in place is reported item by item.
        DesignerObject *screen = project->screens()->getListItemAtIndex(0);
        const QString file = folder.filePath(u"screen.xml"_s);
        EXPECT_TRUE(DesignerObject::saveToFile(screen, file));
        editObject(screen);
        EXPECT_TRUE(DesignerObject::loadFromFile(screen, file));
        break;
    }
    default:
        project->undoStack()->setIndex(random.below(project->undoStack()->count() + 1));
    }
}

TEST_F(ObserverTest, ACopyUpdatedByIndexesEqualsTheProject)
{
    ModelMirror mirror(*project);
    ASSERT_EQ(mirror.difference(), QString());
    for (int step = 0; step < 600; ++step) {
        SCOPED_TRACE(step);
        const int kind = random.below(20);
        if (kind == 0) {
            editProject();
        } else if (kind < 10) {
            editList(anyList());
        } else if (const List target = anyList(); target.list->listItemCount() > 0) {
            editObject(target.list->getListItemAtIndex(random.below(int(target.list->listItemCount()))));
        }
        ASSERT_EQ(mirror.difference(), QString());
        ASSERT_FALSE(HasFailure());
    }
    project.reset();
    EXPECT_EQ(mirror.heard.size(), 12) << "all operations but those that announce others";
}

TEST_F(ObserverTest, ANewItemIsReportedOnceAtItsFinalPlace)
{
    struct Log : public ModelObserver
    {
        void aboutToInsert(const SharedProperty &, qsizetype index, DesignerObject *) override
        {
            text += u"about to insert %1;"_s.arg(index);
        }
        void inserted(const SharedProperty &, qsizetype index, DesignerObject *) override
        {
            text += u"inserted %1;"_s.arg(index);
        }
        void moved(const SharedProperty &, qsizetype from, qsizetype to) override
        {
            text += u"moved %1 %2;"_s.arg(from).arg(to);
        }
        void valueChanged(const SharedProperty &property, const QString &) override
        {
            text += property->id() + u';';
        }
        QString text;
    } log;
    project->observers().add(&log);
    DesignerObject *first = add(project->variables(), "NumberVariable", "a1");
    EXPECT_EQ(log.text, u"about to insert 0;inserted 0;"_s);
    log.text.clear();
    EXPECT_TRUE(first->setIdName(u"z1"_s));
    EXPECT_EQ(log.text, u"id;moved 0 4;"_s);
    log.text.clear();
    // A new screen gets its size from the configuration while it is inserted.
    add(project->screens(), "Screen", "Third");
    EXPECT_EQ(log.text, u"about to insert 2;inserted 2;"_s);
}

TEST_F(ObserverTest, ObserversCanBeAddedAndRemovedDuringCalls)
{
    auto change = [this, step = 0]() mutable {
        EXPECT_TRUE(set(element("text1"), "text", QString::number(++step)));
    };
    Doer last(nullptr);
    auto gone = std::make_unique<Doer>(nullptr);
    Doer added(nullptr);
    Doer first([&] {
        project->observers().add(&added);
        project->observers().remove(&first);
        gone.reset();
    });
    project->observers().add(&first);
    project->observers().add(gone.get());
    project->observers().add(&last);
    project->observers().add(&last);
    change();
    EXPECT_EQ(first.calls, 1);
    EXPECT_EQ(last.calls, 1) << "it is there once";
    EXPECT_EQ(added.calls, 0) << "it hears from the next operation on";
    change();
    EXPECT_EQ(first.calls, 1);
    EXPECT_EQ(last.calls, 2);
    EXPECT_EQ(added.calls, 1);

    // An observer follows one project. Either of the two may be deleted first.
    auto elsewhere = std::unique_ptr<Project>(static_cast<Project *>(make(u"Project"_s, u"Elsewhere"_s)));
    elsewhere->observers().add(&last);
    change();
    EXPECT_EQ(last.calls, 2);
    elsewhere.reset();
    project->observers().add(&last);
    change();
    EXPECT_EQ(last.calls, 3);
}

TEST_F(ObserverTest, AnObserverMustNotChangeTheModel)
{
#ifdef QT_NO_DEBUG
    GTEST_SKIP() << "only debug builds look";
#else
    const SharedProperty list = main->elements();
    const QList<std::function<void()>> changes{
        [&] { set(element("text1"), "text", u"again"_s); },
        [&] { set(element("text1"), "text", value(element("text1"), "text")); },
        [&] { add(list, "Text", "more"); },
        [&] { main->takeListPropertyItem(list, element("text1")); },
        [&] { main->swapListPropertyItems(list, element("text1"), element("image1")); },
        [&] { project->changePropertyObjectValue(project->configuration(), nullptr, true); },
        [&] { list->sortList(); },
        [&] { property(element("text1"), "text")->setName(u"Title"_s); },
        [&] { delete element("text1"); },
        [&] { project->loadFile(project->fullFilePath()); },
    };
    for (const std::function<void()> &wrong : changes) {
        Doer observer(wrong);
        project->observers().add(&observer);
        EXPECT_DEATH(set(element("rectangle1"), "opacity", u"11"_s), "An observer must not change the model");
    }
#endif
}

} // namespace Halvane::Corvex::Designer::Test
