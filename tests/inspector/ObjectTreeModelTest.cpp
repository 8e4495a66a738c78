// SPDX-License-Identifier: MIT
#include "corvex/inspector/ObjectTreeModel.h"

#include "InspectorFixture.h"
#include "ViewMirror.h"

#include <QAbstractItemModelTester>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ObjectTreeModelTest : public InspectorFixture
{
protected:
    void SetUp() override
    {
        InspectorFixture::SetUp();
        model = std::make_unique<ObjectTreeModel>(*document);
        tester = std::make_unique<QAbstractItemModelTester>(
            model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }

    QModelIndex at(const QString &name) const { return model->indexOf(named(name)); }
    DesignerObject *named(const QString &name) const
    {
        for (const SharedProperty &list : {document->project().screens(), document->project().variables(),
                                           document->project().imageResources()}) {
            if (DesignerObject *found = list->getListItem(name, true)) {
                return found;
            }
        }
        return nullptr;
    }
    //! The names below a row, in the order of the view.
    QStringList names(const QModelIndex &parent) const
    {
        QStringList all;
        for (int row = 0; row < model->rowCount(parent); ++row) {
            all.append(model->index(row, 0, parent).data().toString());
        }
        return all;
    }
    bool drop(const QStringList &dragged, Qt::DropAction action, int row, const QModelIndex &parent)
    {
        QModelIndexList indexes;
        for (const QString &name : dragged) {
            indexes.append(at(name));
        }
        const std::unique_ptr<QMimeData> data(model->mimeData(indexes));
        const bool can = model->canDropMimeData(data.get(), action, row, 0, parent);
        const bool isDone = model->dropMimeData(data.get(), action, row, 0, parent);
        EXPECT_TRUE(can || !isDone);
        EXPECT_EQ(isDone, model->errorString().isEmpty());
        return isDone;
    }

    std::unique_ptr<ObjectTreeModel> model;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

TEST_F(ObjectTreeModelTest, RowsAreListsAndTheirItems)
{
    const QModelIndex top = model->index(0, 0);
    EXPECT_EQ(model->object(top), &document->project());
    EXPECT_EQ(names(top), (QStringList{u"Screens"_s, u"Project Variables"_s, u"Image Resources"_s}));
    EXPECT_EQ(names(model->indexOf(document->project().screens())), (QStringList{u"Main"_s, u"Other"_s}));
    EXPECT_EQ(names(at(u"Main"_s)), main->elements()->listItemNames() + main->filters()->listItemNames());

    const QModelIndex row = at(u"text1"_s);
    const QList<std::pair<int, QVariant>> expected{
        {Qt::DisplayRole, u"text1"_s},
        {ObjectTreeModel::ObjectRole, QVariant::fromValue(element("text1"))},
        {ObjectTreeModel::ClassRole, u"Text"_s},
        {ObjectTreeModel::PathRole, u"Main.text1"_s},
        {ObjectTreeModel::ValidRole, true},
        {ObjectTreeModel::ErrorsRole, QStringList()},
    };
    for (const auto &[role, value] : expected) {
        EXPECT_EQ(row.data(role), value) << model->roleNames().value(role).toStdString();
    }
    EXPECT_TRUE(row.flags() & Qt::ItemIsDragEnabled);
    EXPECT_FALSE(row.flags() & Qt::ItemIsDropEnabled);
    EXPECT_FALSE(top.flags() & Qt::ItemIsDragEnabled);
    EXPECT_FALSE(model->indexOf(document->project().screens()).flags() & Qt::ItemIsEditable);
    EXPECT_FALSE(model->indexOf(document->project().configuration()->objectValue()).isValid());
}

TEST_F(ObjectTreeModelTest, RenamesInPlaceWithReferences)
{
    const QString linked = u"filterType: VisualElement; objectId: %1; scopeType: Screen;"_s;
    ASSERT_TRUE(set(element("button1"), "visualElement", linked.arg(u"rectangle1"_s)));
    const QString before = text();
    ViewMirror mirror(*model, {Qt::DisplayRole});
    EXPECT_TRUE(model->setData(at(u"rectangle1"_s), u"lamp"_s));
    EXPECT_TRUE(at(u"lamp"_s).isValid());
    EXPECT_EQ(value(element("button1"), "visualElement"), linked.arg(u"lamp"_s));
    EXPECT_EQ(mirror.lines(), ViewMirror::linesOf(*model, {Qt::DisplayRole}));
    const QString after = text();
    for (const QString &bad : {u"rectangle2"_s, u"while"_s, u"1x"_s, u""_s}) {
        EXPECT_FALSE(model->setData(at(u"lamp"_s), bad)) << bad.toStdString();
        EXPECT_FALSE(model->errorString().isEmpty());
        EXPECT_EQ(text(), after);
    }
    EXPECT_TRUE(model->setData(at(u"lamp"_s), u"lamp"_s)) << "an editor that is closed without a change";
    EXPECT_FALSE(model->setData(model->indexOf(document->project().screens()), u"Pages"_s));
    EXPECT_EQ(document->history().count(), 1);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
}

TEST_F(ObjectTreeModelTest, DropsMoveAndCopyWhereItIsPossible)
{
    ASSERT_TRUE(addTo(other, "GroupElement") && addTo(other, "Text")); // text1, as on the other screen
    const QString before = text();
    const struct
    {
        QStringList dragged;
        QString parent;
        Qt::DropAction action = Qt::MoveAction;
        QString path = {}; // of an object that is there afterwards; empty if the drop is refused
    } cases[] = {
        {{u"rectangle1"_s, u"rectangle2"_s}, u"Other"_s, Qt::MoveAction, u"Other.rectangle2"_s},
        {{u"rectangle1"_s}, u"groupElement1"_s, Qt::MoveAction, u"Other.groupElement1.rectangle1"_s},
        {{u"filter1"_s}, u"Other"_s, Qt::MoveAction, u"Other.filter1"_s},
        {{u"Other"_s}, u""_s, Qt::MoveAction, u"Other.groupElement1"_s},
        {{u"rectangle1"_s}, u"Main"_s, Qt::CopyAction, u"Main.rectangle3"_s},
        {{u"rectangle1"_s}, u"Other"_s, Qt::CopyAction},
        {{u"text1"_s}, u"Other"_s},
        {{u"groupElement1"_s}, u"groupElement1"_s},
        {{u"speed"_s}, u"Main"_s},
        {{u"rectangle1"_s, u"filter1"_s}, u"Other"_s},
        {{u"rectangle1"_s}, u""_s},
        {{u"rectangle1"_s}, u"rectangle2"_s},
        {{u"rectangle1"_s}, u"Main"_s, Qt::LinkAction},
        {{u"logicBuilder1"_s}, u"Main"_s}, // the list sorts it
    };
    for (const auto &[dragged, parent, action, path] : cases) {
        SCOPED_TRACE((dragged.join(u',') + u" to "_s + parent).toStdString());
        const QModelIndex target =
            parent.isEmpty() ? model->indexOf(document->project().screens()) : at(parent);
        EXPECT_EQ(drop(dragged, action, 0, target), !path.isEmpty());
        EXPECT_EQ(text() != before, !path.isEmpty());
        if (!path.isEmpty()) {
            const QModelIndex there = at(path.section(u'.', -1));
            EXPECT_EQ(there.data(ObjectTreeModel::PathRole).toString(), path);
            ASSERT_TRUE(document->undo());
        }
        EXPECT_EQ(text(), before);
    }
    QMimeData foreign;
    foreign.setText(u"Main.rectangle1"_s);
    foreign.setData(model->mimeTypes().constFirst(), "Main.rectangle1");
    EXPECT_FALSE(model->dropMimeData(&foreign, Qt::MoveAction, 0, 0, at(u"Other"_s)));
    EXPECT_FALSE(model->dropMimeData(nullptr, Qt::MoveAction, 0, 0, at(u"Other"_s)));
    EXPECT_EQ(text(), before);
}

TEST_F(ObjectTreeModelTest, MovedObjectsComeBeforeTheRow)
{
    constexpr int count = 5;
    for (int i = 0; i < count; ++i) {
        ASSERT_TRUE(addTo(other, "Text"));
    }
    const QStringList before = names(at(u"Other"_s));
    ViewMirror mirror(*model, {Qt::DisplayRole});
    for (int chosen = 1; chosen < 1 << count; ++chosen) {
        QList<DesignerObject *> moved;
        for (int i = 0; i < count; ++i) {
            if (chosen >> i & 1) {
                moved.prepend(other->elements()->getListItemAtIndex(i)); // in any order
            }
        }
        for (int row = -1; row <= count; ++row) {
            SCOPED_TRACE(testing::Message() << "items " << chosen << " before " << row);
            QStringList expected;
            const int place = row < 0 ? count : row;
            for (int i = 0; i <= count; ++i) {
                for (int own = 0; i == place && own < count; ++own) {
                    expected.append(chosen >> own & 1 ? QStringList{before.at(own)} : QStringList());
                }
                expected.append(i < count && !(chosen >> i & 1) ? QStringList{before.at(i)} : QStringList());
            }
            PlannedCommand planned = Commands::moveOf(moved, other->elements(), row);
            ASSERT_EQ(planned.command == nullptr, expected == before);
            if (planned) {
                ASSERT_TRUE(document->push(planned.command.release()));
                ASSERT_EQ(names(at(u"Other"_s)), expected);
                ASSERT_TRUE(document->undo());
            }
            ASSERT_EQ(names(at(u"Other"_s)), before);
        }
    }
    EXPECT_EQ(mirror.lines(), ViewMirror::linesOf(*model, {Qt::DisplayRole}));
}

TEST_F(ObjectTreeModelTest, ItFollowsAProjectThatIsLoadedAgainOrGoes)
{
    ViewMirror mirror(*model, {Qt::DisplayRole});
    const QStringList before = mirror.lines();
    ASSERT_TRUE(push(Commands::deletionOf(document->project().screens()->getListItemAtIndex(0))));
    EXPECT_NE(mirror.lines(), before);
    ASSERT_TRUE(document->reload());
    EXPECT_EQ(mirror.lines(), before);
    document.reset();
    EXPECT_EQ(mirror.lines(), QStringList());
}

} // namespace Halvane::Corvex::Designer::Test
