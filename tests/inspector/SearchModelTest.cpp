// SPDX-License-Identifier: MIT
#include "corvex/inspector/SearchModel.h"

#include "InspectorFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

TEST_F(InspectorFixture, SearchFindsEachKindOfPlace)
{
    SearchModel model(document->project());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy finished(&model, &SearchModel::finished);
    const auto hits = [&](const QString &text, SearchModel::Places places = SearchModel::Everywhere) {
        model.find(text, places);
        model.finish();
        QStringList found;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row, 0);
            found.append(index.data().toString() + u' ' + index.data(SearchModel::PropertyRole).toString());
        }
        return found;
    };
    set(element("text1"), "text", u"Pressure of\nthe Pump"_s);
    set(element("rectangle2"), "xBinding", u"<0306rectangle1.x><0101+><0406speed>"_s);
    EXPECT_EQ(hits(u"pressure OF"_s), QStringList{u"Main.text1 text"_s});
    EXPECT_EQ(model.index(0, SearchModel::ValueColumn).data().toString(), u"Pressure of the Pump"_s);
    EXPECT_EQ(hits(u"rectangle2"_s), QStringList{u"Main.rectangle2 id"_s});
    EXPECT_EQ(hits(u"rectangle1.x + speed"_s), QStringList{u"Main.rectangle2 xBinding"_s});
    EXPECT_EQ(hits(u"speed"_s, SearchModel::Names), QStringList{u"speed id"_s});
    const QString channel = value(element("pwmOutput1"), "channel");
    EXPECT_TRUE(hits(channel, SearchModel::Addresses).contains(u"Main.pwmOutput1 channel"_s));

    model.findUses(*document->project().variables()->getListItem(u"speed"_s));
    ASSERT_EQ(model.rowCount(), 1);
    const QModelIndex use = model.index(0, 0);
    EXPECT_EQ(use.data(SearchModel::ObjectRole).value<DesignerObject *>(), element("rectangle2"));
    push(Commands::deletionOf(element("rectangle2")));
    EXPECT_FALSE(use.data(SearchModel::ObjectRole).value<DesignerObject *>());
    push(Commands::deletionOf(element("rectangle1")));
    EXPECT_EQ(hits(u"  "_s), QStringList());
    EXPECT_EQ(hits(u"no such text"_s), QStringList());
    EXPECT_FALSE(finished.isEmpty());
}

} // namespace Halvane::Corvex::Designer::Test
