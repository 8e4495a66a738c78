// SPDX-License-Identifier: MIT
#include "corvex/preview/window/PreviewWindow.h"

#include "preview/TestBuild.h"

#include <QCheckBox>
#include <QComboBox>
#include <QQuickWidget>
#include <QSlider>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

using Common::EnumHelper;

QModelIndex cellOf(const QTableView *table, const QString &text, int column)
{
    const QModelIndexList found = table->model()->match(table->model()->index(0, 0), Qt::DisplayRole, text);
    return found.isEmpty() ? QModelIndex() : found.constFirst().siblingAtColumn(column);
}

} // namespace

TEST(PreviewWindow, ShowsAndMovesThePanel)
{
    TestBuild build;
    build.addVariable(u"speed"_s, EnumHelper::IntegerVariable, 7);
    build.addVariable(u"lamp"_s, EnumHelper::BooleanVariable, false);
    build.writeConfiguration(u"qml_Main"_s);
    build.addScreen("Aside", "");
    build.addScreen("Main", R"(
        color: "white"
        analogInputs: [ AnalogInput { id: level; objectName: "level"; channel: 2; voltageRange: [0, 5] } ]
        digitalIOs: [ DigitalInputOutput { id: door; objectName: "door"; channel: 1 } ]
        functions: [ LogicBuilder { objectName: "follow"; conditions: [door.value]
                                    onEvaluate: qmlViewer.setVariableValue("lamp", door.value, 1) },
                     CheckButton { objectName: "button"; visualElement: box; variable: "lamp" } ]
        Text { objectName: "label"; text: qmlViewer.getVariableValue("speed") + " / " + level.value }
        Rectangle { id: box; objectName: "box"; x: 100; y: 50; width: 40; height: 40
                    color: qmlViewer.getVariableValue("lamp") ? "red" : "blue" }
        Text { objectName: "wrong"; y: 70; text: qmlViewer.getVariableValue("nobody") }
    )");
    PreviewWindow window;
    QString error;
    ASSERT_TRUE(window.open(build.path(), QString(), &error)) << qPrintable(error);
    window.resize(760, 480);
    window.show();
    QTest::qWait(50);

    const QList<QTableView *> tables = window.findChildren<QTableView *>();
    ASSERT_EQ(tables.size(), 2);
    const bool isFirst = cellOf(tables.at(0), u"speed"_s, 2).isValid();
    const QTableView *variables = tables.at(isFirst ? 0 : 1);
    const QTableView *problems = tables.at(isFirst ? 1 : 0);
    EXPECT_TRUE(cellOf(problems, u"Main.wrong"_s, 1).isValid());

    QObject *label = window.session().find(u"label");
    EXPECT_TRUE(variables->model()->setData(cellOf(variables, u"speed"_s, 2), u"40"_s));
    EXPECT_FALSE(variables->model()->setData(cellOf(variables, u"speed"_s, 2), u"many"_s));
    window.findChild<QSlider *>()->setValue(500);
    EXPECT_EQ(label->property("text").toString(), u"40 / 2.5"_s);
    window.findChild<QCheckBox *>()->setChecked(true);
    window.session().settle();
    EXPECT_EQ(cellOf(variables, u"lamp"_s, 2).data(Qt::CheckStateRole).toInt(), Qt::Checked);

    auto *panel = window.findChild<QQuickWidget *>();
    EXPECT_EQ(panel->size(), QSize(200, 100));
    const auto becomes = [panel](const QColor &color) {
        return QTest::qWaitFor(
            [panel, color] { return panel->grab().toImage().pixelColor(120, 70) == color; });
    };
    EXPECT_TRUE(becomes(Qt::red));
    QTest::mouseClick(panel, Qt::LeftButton, {}, {120, 70});
    window.session().settle();
    EXPECT_EQ(cellOf(variables, u"lamp"_s, 2).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_TRUE(becomes(Qt::blue));

    // A new build is loaded, and the same screen is shown.
    window.session().showScreen(u"Aside"_s);
    build.addScreen("Aside", "Text { objectName: \"new\" }");
    EXPECT_TRUE(QTest::qWaitFor([&window] { return window.session().find(u"new") != nullptr; }, 5000));
    EXPECT_EQ(window.findChild<QComboBox *>()->currentText(), u"Aside"_s);
}

} // namespace Halvane::Corvex::Preview
