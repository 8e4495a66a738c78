// SPDX-License-Identifier: MIT
#include "corvex/editors/ReferenceEditors.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/ObjectListModel.h"
#include "corvex/widgets/ObjectSelector.h"

#include "EditorFixture.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ReferenceEditorsTest : public EditorFixture
{
protected:
    //! The popup that Alt+Down opens, with the names that it offers.
    static ObjectSelector *open(PropertyEditor *editor, QStringList &names)
    {
        QTest::keyClick(field<KdLineEdit>(editor), Qt::Key_Down, Qt::AltModifier);
        auto *selector = editor->findChild<ObjectSelector *>();
        for (int row = 0; selector && row < selector->model().rowCount(); ++row) {
            names.append(selector->model().object(row)->getIdName());
        }
        return selector;
    }
    static QStringList items(const PropertyEditor *editor)
    {
        QStringList texts;
        const auto *list = field<QListWidget>(editor);
        for (int i = 0; i < list->count(); ++i) {
            texts.append(list->item(i)->text());
        }
        return texts;
    }
};

TEST_F(ReferenceEditorsTest, ATakenNameIsExplainedWhileTypingAndAFreeOneIsOffered)
{
    DesignerObject *rectangle = element("rectangle1");
    PropertyEditor *editor = edit({rectangle}, "id");
    auto *line = field<KdLineEdit>(editor);
    const auto hint = [editor] {
        for (const QLabel *label : editor->findChildren<QLabel *>()) {
            if (label->objectName() != "error"_L1 && !label->isHidden()) {
                return label->text();
            }
        }
        return QString();
    };
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(line, u"text1"_s);
    EXPECT_EQ(editor->errorString(), u"The name is not unique."_s);
    EXPECT_TRUE(hint().contains(u"\"text2\""_s)) << qPrintable(hint());
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(rectangle->getIdName(), u"rectangle1"_s);
    EXPECT_EQ(line->text(), u"text1"_s);
    emit editor->findChild<QLabel *>(u"hint"_s)->linkActivated(u"text2"_s);
    QApplication::processEvents();
    EXPECT_EQ(rectangle->getIdName(), u"text2"_s);
    EXPECT_EQ(hint(), QString());
    type(u"9 lives"_s, Qt::Key_Escape);
    EXPECT_EQ(line->text(), u"text2"_s);
    EXPECT_EQ(hint(), QString());
}

TEST_F(ReferenceEditorsTest, ARenamingUpdatesAndCountsItsUses)
{
    DesignerObject *button = element("button1");
    ASSERT_TRUE(
        push(Commands::changeOf({{button->getProperty(u"visualElement"_s), u"objectId: rectangle1;"_s}})));
    PropertyEditor *editor = edit({element("rectangle1")}, "id");
    QTest::keyClick(field<KdLineEdit>(editor), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field<KdLineEdit>(editor), u"tank"_s);
    EXPECT_TRUE(editor->findChild<QLabel *>(u"hint"_s)->text().contains(u"one place"_s));
    QTest::keyClick(field<KdLineEdit>(editor), Qt::Key_Tab);
    EXPECT_TRUE(value(button, "visualElement").contains(u"objectId: tank;"_s));
    ASSERT_TRUE(document->undo());
    EXPECT_TRUE(value(button, "visualElement").contains(u"objectId: rectangle1;"_s));
    EXPECT_EQ(field<KdLineEdit>(editor)->text(), u"rectangle1"_s);

    editor = edit({element("rectangle1"), element("rectangle2")}, "id");
    EXPECT_TRUE(field<KdLineEdit>(editor)->isReadOnly());
    EXPECT_FALSE(field<KdLineEdit>(editor)->placeholderText().isEmpty());
}

TEST_F(ReferenceEditorsTest, ALinkIsTypedChosenFollowedAndCleared)
{
    DesignerObject *button = element("button1");
    PropertyEditor *editor = edit({button}, "visualElement");
    type(u"text1"_s);
    EXPECT_TRUE(value(button, "visualElement").contains(u"objectId: text1;"_s));

    QStringList names;
    ObjectSelector *selector = open(editor, names);
    ASSERT_TRUE(selector);
    EXPECT_TRUE(names.contains(u"rectangle2"_s));
    EXPECT_FALSE(names.contains(u"button2"_s)) << "a function element";
    EXPECT_FALSE(names.contains(u"speed"_s));
    QTest::keyClicks(selector->focusProxy(), u"ANGLE2"_s);
    EXPECT_EQ(selector->model().rowCount(), 1);
    QTest::keyClick(selector->focusProxy(), Qt::Key_Return);
    EXPECT_TRUE(value(button, "visualElement").contains(u"objectId: rectangle2;"_s));

    const DesignerObject *requested = nullptr;
    QObject::connect(&panel->requests(), &EditorRequests::objectRequested, panel.get(),
                     [&](const DesignerObject *object) { requested = object; });
    QToolButton *goTo = nullptr;
    for (QToolButton *tool : editor->findChildren<QToolButton *>()) {
        goTo = tool->accessibleName() == "Visual Element, go to"_L1 ? tool : goTo;
    }
    ASSERT_TRUE(goTo);
    goTo->click();
    EXPECT_EQ(requested, element("rectangle2"));
    type(u"later"_s);
    EXPECT_FALSE(goTo->isEnabled());
    add(main->elements(), "Text", "later");
    QCoreApplication::processEvents();
    EXPECT_TRUE(goTo->isEnabled()) << "follows the project";
    auto *line = field<KdLineEdit>(editor);
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Delete);
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(value(button, "visualElement").contains(u"objectId: ;"_s));
    EXPECT_FALSE(goTo->isEnabled());
}

TEST_F(ReferenceEditorsTest, AnImageIsChosenWithItsThumbnailAndANewOneCanBeRequested)
{
    DesignerObject *image = element("image1");
    PropertyEditor *editor = edit({image}, "source");
    QStringList names;
    ObjectSelector *selector = open(editor, names);
    ASSERT_TRUE(selector);
    EXPECT_EQ(names, QStringList{u"pump.png"_s});
    EXPECT_FALSE(selector->model().index(0).data(Qt::DecorationRole).value<QPixmap>().isNull());
    const qsizetype buttons = selector->findChildren<QPushButton *>().size();
    selector->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QString wanted;
    QObject::connect(&panel->requests(), &EditorRequests::newObjectRequested, panel.get(),
                     [&](const QString &className, const EditorRequests::ObjectAnswer &answer) {
                         wanted = className;
                         answer(document->project().imageResources()->getListItem(u"pump.png"_s));
                     });
    selector = open(editor, names);
    ASSERT_TRUE(selector);
    EXPECT_EQ(selector->findChildren<QPushButton *>().size(), buttons + 1) << "someone makes new ones now";
    selector->findChildren<QPushButton *>().constLast()->click();
    EXPECT_EQ(wanted, u"ImageResource"_s);
    EXPECT_TRUE(value(image, "source").contains(u"objectId: pump.png;"_s));
    EXPECT_TRUE(std::ranges::any_of(editor->findChildren<QLabel *>(), [](const QLabel *label) {
        return label->isVisible() && !label->pixmap(Qt::ReturnByValue).isNull();
    }));
}

TEST_F(ReferenceEditorsTest, ASearchFindsNamesAndTypesAndClosesWhenObjectsLeave)
{
    ObjectListModel model;
    QList<DesignerObject *> objects =
        main->elements()->listItems() + document->project().variables()->listItems();
    model.setObjects(objects);
    const struct
    {
        QString search;
        QStringList names;
    } cases[] = {
        {u"rect"_s, {u"rectangle1"_s, u"rectangle2"_s}},
        {u"tangle2"_s, {u"rectangle2"_s}},
        {u"rectangle  2"_s, {u"rectangle2"_s}},
        {u"number speed"_s, {u"speed"_s}},
        {u"s"_s, {}},
        {u"nothing like it"_s, {}},
    };
    for (const auto &[search, names] : cases) {
        model.setSearch(search);
        QStringList found;
        for (int row = 0; row < model.rowCount(); ++row) {
            found.append(model.index(row).data(Qt::DisplayRole).toString());
        }
        if (search == "s"_L1) {
            EXPECT_TRUE(found.value(0).startsWith(u's')) << "names that begin with the text come first";
        } else {
            EXPECT_EQ(found, names) << qPrintable(search);
        }
    }
    model.setSearch({});
    EXPECT_EQ(model.rowCount(), objects.size());
    QSignalSpy emptied(&model, &ObjectListModel::emptied);
    ASSERT_TRUE(push(Commands::deletionOf(element("rectangle1"))));
    EXPECT_EQ(emptied.size(), 1);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(ReferenceEditorsTest, ItemsAreMovedAddedRemovedAndRestored)
{
    DesignerObject *service = element("bACnetService1");
    ASSERT_TRUE(service);
    for (const char *name : {"tank1", "tank2"}) {
        add(document->project().variables(), "BACnetObject", name);
    }
    ASSERT_TRUE(
        push(Commands::changeOf({{service->getProperty(u"bacNetObjectList"_s), u"tank1 | other"_s}})));
    PropertyEditor *editor = edit({service}, "bacNetObjectList");
    auto *list = field<QListWidget>(editor);
    EXPECT_EQ(items(editor), QStringList({u"tank1"_s, u"other"_s}));
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(value(service, "bacNetObjectList"), u"other | tank1"_s);
    EXPECT_EQ(list->currentRow(), 1) << "the moved item stays current";
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(value(service, "bacNetObjectList"), u"other | tank1"_s);

    QTest::keyClick(list, Qt::Key_Insert);
    auto *selector = editor->findChild<ObjectSelector *>();
    ASSERT_TRUE(selector);
    EXPECT_EQ(selector->model().rowCount(), 1) << "tank1 is in the list already";
    QTest::keyClick(selector->focusProxy(), Qt::Key_Return);
    EXPECT_EQ(value(service, "bacNetObjectList"), u"other | tank1 | tank2"_s);
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(value(service, "bacNetObjectList"), u"tank1 | tank2"_s);
    ASSERT_TRUE(list->model()->moveRow({}, 1, {}, 0)); // as a drag does
    QCoreApplication::processEvents();
    EXPECT_EQ(value(service, "bacNetObjectList"), u"tank2 | tank1"_s);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(items(editor), QStringList({u"tank1"_s, u"tank2"_s}));
}

TEST_F(ReferenceEditorsTest, ActionsAreAListInTheirOwnForm)
{
    DesignerObject *trigger = element("propertyTrigger1");
    PropertyEditor *editor = edit({trigger}, "actionScheduler");
    auto *list = field<QListWidget>(editor);
    ASSERT_TRUE(list);
    QTest::keyClick(list, Qt::Key_Insert);
    QTest::keyClick(editor->findChild<ObjectSelector *>()->focusProxy(), Qt::Key_Return);
    EXPECT_EQ(value(trigger, "actionScheduler"), u"action1"_s);
}

} // namespace Halvane::Corvex::Designer::Test
