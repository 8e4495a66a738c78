// SPDX-License-Identifier: MIT
#include "corvex/inspector/PropertySheet.h"

#include "InspectorFixture.h"
#include "ViewMirror.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class PropertySheetTest : public InspectorFixture
{
protected:
    void SetUp() override
    {
        InspectorFixture::SetUp();
        sheet = std::make_unique<PropertySheet>(document->project());
        tester = std::make_unique<QAbstractItemModelTester>(
            sheet.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }

    const SheetRow &row(const char *id) const { return sheet->row(rowOf(id)); }
    int rowOf(const char *id) const { return sheet->rowOf(QString::fromLatin1(id)); }
    QStringList ids() const
    {
        QStringList all;
        for (int i = 0; i < sheet->rowCount(); ++i) {
            all.append(sheet->row(i).id);
        }
        return all;
    }
    static QList<int> roles()
    {
        QList<int> all{Qt::DisplayRole, Qt::EditRole};
        for (int role = PropertySheet::IdRole; role <= PropertySheet::ReadableRole; ++role) {
            all.append(role);
        }
        return all;
    }

    std::unique_ptr<PropertySheet> sheet;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

TEST_F(PropertySheetTest, RowsComeByGroupsAndRanks)
{
    sheet->setObjects({element("rectangle1")});
    const QStringList first{u"id"_s, u"position"_s, u"size"_s, u"color"_s, u"colorBinding"_s};
    EXPECT_EQ(ids().first(first.size()), first);
    QStringList groups;
    for (int i = 0; i < sheet->rowCount(); ++i) {
        if (groups.isEmpty() || groups.constLast() != sheet->row(i).group) {
            groups.append(sheet->row(i).group);
        }
    }
    EXPECT_EQ(groups, (QStringList{u""_s, u"Appearance"_s, u"Expressions"_s}));
    const SheetRow &opacity = row("opacity");
    EXPECT_EQ(opacity.title, u"Opacity"_s);
    EXPECT_EQ(opacity.value, property(element("rectangle1"), "opacity")->valueString());
    EXPECT_EQ(opacity.editor, u"OpacityEditor"_s);
    EXPECT_EQ(opacity.editorParameters.value(u"minimum"_s), 10);
    EXPECT_TRUE(opacity.description.startsWith(u"The minimum opacity"_s));
    EXPECT_TRUE(opacity.isDefault && opacity.isVisible && !opacity.isReadOnly && !opacity.isMixed);

    sheet->setObjects({main});
    EXPECT_TRUE(row("size").isReadOnly);
    EXPECT_EQ(sheet->set(rowOf("size"), u"width: 5; height: 5;"_s).command, nullptr);
    EXPECT_EQ(rowOf("elements"), -1) << "lists have views of their own";
    DesignerObject *speed = document->project().variables()->getListItem(u"speed"_s);
    sheet->setObjects({nullptr, speed, speed});
    EXPECT_EQ(sheet->objects(), QList<DesignerObject *>{speed});
}

TEST_F(PropertySheetTest, SeveralObjectsShareRowsAndCommands)
{
    DesignerObject *const rectangle = element("rectangle1");
    sheet->setObjects({rectangle, element("rectangle2"), element("text1")});
    EXPECT_EQ(rowOf("radius"), -1);
    EXPECT_TRUE(row("id").isMixed && row("id").isReadOnly);
    EXPECT_EQ(row("id").value, QString());
    ASSERT_FALSE(row("opacity").isMixed);
    ViewMirror mirror(*sheet, roles());

    ASSERT_TRUE(set(rectangle, "opacity", u"50"_s));
    EXPECT_TRUE(row("opacity").isMixed && !row("opacity").isDefault);
    EXPECT_EQ(mirror.changes, 1);
    ASSERT_TRUE(set(rectangle, "opacity", u"60"_s));
    ASSERT_TRUE(set(rectangle, "opacity", u"50"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(std::exchange(mirror.changes, 1), 2) << "one report for all values that still differ";
    const QString before = text();
    ASSERT_TRUE(push(sheet->set(rowOf("opacity"), u"70"_s)));
    EXPECT_EQ(row("opacity").value, u"70"_s);
    EXPECT_EQ(value(element("text1"), "opacity"), u"70"_s);
    EXPECT_EQ(mirror.changes, 2) << "values on the way to a common one";
    EXPECT_EQ(document->history().count(), 1);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
    ASSERT_TRUE(document->redo());

    ASSERT_TRUE(push(sheet->reset(rowOf("opacity"))));
    EXPECT_TRUE(row("opacity").isDefault);
    EXPECT_EQ(row("opacity").value, u"100"_s);
    const PlannedCommand again = sheet->reset(rowOf("opacity"));
    EXPECT_TRUE(!again && again.reason.isEmpty()) << "there is nothing to do";
    mirror.changes = 0;
    ASSERT_TRUE(set(element("image1"), "opacity", u"20"_s));
    EXPECT_EQ(mirror.changes, 0) << "another object";
    EXPECT_EQ(mirror.lines(), ViewMirror::linesOf(*sheet, roles()));
}

TEST_F(PropertySheetTest, PeopleReadAndEnterTheReadableForm)
{
    DesignerObject *const text = element("text1");
    sheet->setObjects({text});
    ViewMirror mirror(*sheet, roles());
    const struct
    {
        const char *id;
        QString entered;
        QString stored;
        QString readable; //!< empty: as entered
    } cases[] = {
        {"textBinding", u"concat(\"v \", speed)"_s, u"<0502concat><0207diA=><0101,><0406speed><0101)>"_s, {}},
        {"textBinding", u"0406speed"_s, u"0406speed"_s, u"speed"_s},
        {"size", u"50x20"_s, u"height: 20; width: 50;"_s, u"50 x 20"_s},
        {"text", u"\"a\\nb\""_s, u"a\nb"_s, {}},
        {"opacity", u"40"_s, u"40"_s, {}},
    };
    for (const auto &[id, entered, stored, readable] : cases) {
        ASSERT_TRUE(push(sheet->enter(rowOf(id), entered))) << id;
        EXPECT_EQ(row(id).value, stored);
        const QModelIndex index = sheet->index(rowOf(id), PropertySheet::ValueColumn);
        EXPECT_EQ(index.data(PropertySheet::ReadableRole).toString(),
                  readable.isEmpty() ? entered : readable);
        EXPECT_EQ(sheet->copy({rowOf(id)}).contains(stored), stored != u"a\nb"_s);
    }
    EXPECT_EQ(mirror.lines(), ViewMirror::linesOf(*sheet, roles()));
    DesignerObject *speed = document->project().variables()->getListItem(u"speed"_s);
    ASSERT_TRUE(push(Commands::renameOf(speed, u"rate"_s)));
    EXPECT_EQ(sheet->readable(rowOf("textBinding")), u"rate"_s);
    EXPECT_EQ(mirror.lines(), ViewMirror::linesOf(*sheet, roles())) << "the rename is reported";

    const PlannedCommand refused = sheet->enter(rowOf("textBinding"), u"concat(\"v \", rat)"_s);
    EXPECT_EQ(refused.command, nullptr);
    EXPECT_TRUE(refused.reason.startsWith(u"At \"rat\": "_s)) << qPrintable(refused.reason);
    sheet->setObjects({text, element("rectangle1")});
    EXPECT_TRUE(row("size").isMixed);
    EXPECT_EQ(sheet->readable(rowOf("size")), QString());
    ASSERT_TRUE(push(sheet->enter(rowOf("size"), u"7 x 8"_s)));
    EXPECT_EQ(sheet->readable(rowOf("size")), u"7 x 8"_s);
}

TEST_F(PropertySheetTest, RefusalsSayWhyAndChangeNothing)
{
    const QString before = text();
    const struct
    {
        QList<DesignerObject *> objects;
        const char *id;
        QString value;
        QString reason; // a part of it
    } cases[] = {
        {{element("rectangle1")}, "color", u"no colour"_s, u"color"_s},
        {{element("rectangle1"), element("text1")}, "color", u"no colour"_s, u"Main.rectangle1: "_s},
        {{element("rectangle1")}, "radius", u"x"_s, u"radius takes"_s},
        {{element("rectangle1")}, "id", value(element("rectangle2"), "id"), u""_s},
        {{element("rectangle1"), element("rectangle2")}, "id", u"name: lamp;"_s, u"one object"_s},
        {{element("rectangle1")}, "color", u"red\u0001"_s, u""_s},
    };
    for (const auto &[objects, id, value, reason] : cases) {
        sheet->setObjects(objects);
        const PlannedCommand planned = sheet->set(rowOf(id), value);
        EXPECT_FALSE(planned) << id;
        EXPECT_FALSE(planned.reason.isEmpty()) << id;
        EXPECT_TRUE(planned.reason.contains(reason)) << qPrintable(planned.reason);
    }
    sheet->setObjects({element("rectangle1")});
    EXPECT_FALSE(sheet->reset(rowOf("id")).reason.isEmpty());
    for (const QString &hostile : {u""_s, u"{"_s, u"[]"_s, u"{\"nothing\": \"1\"}"_s, u"{\"id\": \"lamp\"}"_s,
                                   u"{\"radius\": 5}"_s, u"{\"radius\": \"5\", \"color\": \"no\"}"_s}) {
        const PlannedCommand planned = sheet->paste(hostile);
        EXPECT_TRUE(!planned && !planned.reason.isEmpty()) << qPrintable(hostile);
    }
    EXPECT_EQ(text(), before);
}

TEST_F(PropertySheetTest, WhatIsCopiedCanBePastedElsewhere)
{
    ASSERT_TRUE(set(element("rectangle1"), "radius", u"7"_s));
    ASSERT_TRUE(set(element("rectangle1"), "opacity", u"40"_s));
    sheet->setObjects({element("rectangle1")});
    const QString copied = sheet->copy({rowOf("id"), rowOf("radius"), rowOf("opacity")});
    sheet->setObjects({element("text1"), element("rectangle2")});
    ASSERT_TRUE(push(sheet->paste(copied)));
    EXPECT_EQ(row("opacity").value, u"40"_s);
    EXPECT_EQ(value(element("rectangle2"), "radius"), u"0"_s) << "not a row of the sheet";
    EXPECT_EQ(sheet->copy({rowOf("id")}), u"{}"_s) << "mixed";
    sheet->setObjects({element("rectangle2")});
    ASSERT_TRUE(push(sheet->paste(copied)));
    EXPECT_EQ(row("radius").value, u"7"_s);
    EXPECT_EQ(row("id").value, element("rectangle2")->idProperty()->valueString());
}

TEST_F(PropertySheetTest, RowsFollowDescriptionsValidityAndObjects)
{
    DesignerObject *const rectangle = element("rectangle1");
    sheet->setObjects({rectangle, element("text1")});
    ViewMirror mirror(*sheet, roles());
    const auto isSame = [&] { return mirror.lines() == ViewMirror::linesOf(*sheet, roles()); };

    ASSERT_TRUE(set(element("text1"), "opacity", u"3"_s));
    EXPECT_FALSE(row("opacity").error.isEmpty());
    property(rectangle, "opacity")->setEditorParameter(u"visible"_s, false);
    EXPECT_FALSE(row("opacity").isVisible);
    property(rectangle, "visible")->setRank(0);
    EXPECT_TRUE(isSame());
    property(rectangle, "opacity")->setFlag(EditableFlag, false);
    EXPECT_EQ(rowOf("opacity"), -1);
    property(rectangle, "opacity")->setFlag(EditableFlag, true);
    property(rectangle, "visible")->setRank(55);
    property(rectangle, "opacity")->setEditorParameter(u"visible"_s, true);
    ASSERT_TRUE(set(element("text1"), "opacity", u"100"_s));
    EXPECT_TRUE(isSame());

    // With the text, the sheet loses what the rectangle does not share, and gets it back.
    ASSERT_TRUE(push(Commands::deletionOf(element("text1"))));
    EXPECT_EQ(sheet->objects(), QList<DesignerObject *>{rectangle});
    EXPECT_GE(rowOf("radius"), 0);
    EXPECT_TRUE(isSame());
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(sheet->objects().size(), 2);
    ASSERT_TRUE(push(Commands::moveOf({rectangle}, main->elements(), -1)));
    EXPECT_EQ(sheet->objects().constFirst(), rectangle) << "out and in again, in its place";
    ASSERT_TRUE(push(Commands::deletionOf(main)));
    EXPECT_EQ(sheet->rowCount(), 0);
    ASSERT_TRUE(document->undo() && document->undo());
    EXPECT_EQ(sheet->objects().size(), 2);
    EXPECT_TRUE(isSame());
    ASSERT_TRUE(document->reload());
    EXPECT_EQ(sheet->rowCount(), 0);
    document.reset();
    EXPECT_TRUE(isSame());
}

TEST_F(PropertySheetTest, AnEditOfManyObjectsIsReportedOnce)
{
    constexpr int count = 2000;
    main->elements()->setOrderingPaused(true);
    QList<DesignerObject *> texts;
    for (int i = 0; i < count; ++i) {
        DesignerObject *made = make(u"Text"_s, u"many%1"_s.arg(i));
        ASSERT_TRUE(main->addListPropertyItem(main->elements(), made));
        texts.append(made);
    }
    main->elements()->setOrderingPaused(false);
    sheet->setObjects(texts);
    EXPECT_TRUE(row("id").isMixed);
    tester.reset(); // which looks at everything each time
    ViewMirror mirror(*sheet, roles());
    ASSERT_TRUE(push(sheet->set(rowOf("opacity"), u"30"_s)));
    EXPECT_EQ(mirror.changes, 2) << "mixed, and all alike again";
    ASSERT_TRUE(push(Commands::deletionOf(texts.first(count - 1))));
    EXPECT_EQ(sheet->objects(), QList<DesignerObject *>{texts.constLast()});
    EXPECT_FALSE(row("id").isMixed || row("id").isReadOnly);
    ASSERT_TRUE(document->undo() && document->undo());
    EXPECT_EQ(sheet->objects(), texts);
    EXPECT_EQ(mirror.lines(), ViewMirror::linesOf(*sheet, roles()));
}

} // namespace Halvane::Corvex::Designer::Test
