// SPDX-License-Identifier: MIT
#include "corvex/editors/PropertyPanel.h"
#include "corvex/inspector/SearchModel.h"
#include "corvex/widgets/SearchLine.h"

#include "apps/nova/NovaFixture.h"
#include "panels/FindPanel.h"
#include "panels/PropertiesPanel.h"

#include <QApplication>
#include <QLabel>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova::Test {

using namespace Designer;

namespace {

class FindTest : public NovaFixture
{
protected:
    FindPanel *find() const { return qobject_cast<FindPanel *>(window->panel(u"panel.find"_s)); }
    SearchModel &places() const { return find()->places(); }
    void click(int row) const
    {
        auto *list = find()->findChild<QTreeView *>();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(places().index(row, 0)).center());
    }
};

} // namespace

// Find looks in the whole project, and each place opens.
TEST_F(FindTest, findOpensPlaces)
{
    window->canvas()->setFocus();
    QCoreApplication::processEvents();
    QTest::keyClick(window->canvas(), Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY(qobject_cast<SearchLine *>(QApplication::focusWidget()));
    QTest::keyClicks(QApplication::focusWidget(), u"pump1Running"_s);
    QTRY_VERIFY(!places().isRunning() && places().rowCount() > 2);
    for (int row = 0; row < std::min(3, places().rowCount()); ++row) {
        const auto *object = places().index(row, 0).data(SearchModel::ObjectRole).value<DesignerObject *>();
        click(row);
        EXPECT_EQ(document().selection().constFirst(), object);
        EXPECT_TRUE(!object->screen() || workspace().screen() == object->screen());
    }
    // In the properties, the same key filters the rows.
    auto *properties = qobject_cast<PropertiesPanel *>(window->panel(u"panel.properties"_s));
    properties->rows().setFocus();
    QTest::keyClick(&properties->rows(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(properties->isAncestorOf(QApplication::focusWidget()));
}

// "Find uses" shows the places first; "rename everywhere" is one step and changes all of them.
TEST_F(FindTest, renamesEverywhere)
{
    DesignerObject *variable = workspace().project().variables()->getListItem(u"pump1Running"_s);
    document().select({variable});
    trigger("edit.findUses");
    const int uses = places().rowCount();
    EXPECT_GT(uses, 1);
    trigger("edit.rename");
    auto *name = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    ASSERT_TRUE(name);
    EXPECT_EQ(name->selectedText(), u"pump1Running"_s);
    const QByteArray before = savedBytes();
    QTest::keyClicks(name, u"firstPump"_s);
    EXPECT_EQ(savedBytes(), before);
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_EQ(variable->getIdName(), u"firstPump"_s);
    EXPECT_FALSE(savedBytes().contains("pump1Running"));
    EXPECT_EQ(places().rowCount(), uses);
    EXPECT_EQ(document().history().count(), 1);
    trigger("edit.undo");
    EXPECT_EQ(savedBytes(), before);
}

} // namespace Halvane::Corvex::Nova::Test
