// SPDX-License-Identifier: MIT
#include "corvex/common/TextHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/ObjectListProperty.h"

#include "TestObjects.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

//! An object of any class that counts the queries of its list.
class Item : public DesignerObject
{
public:
    Item(const QString &name, const QString &className = u"Thing"_s)
        : m_className(className)
    {
        initialize();
        setIdName(name);
    }

    QString className() const override { return m_className; }
    QStringList classNames() const override
    {
        ++questions;
        return DesignerObject::classNames() << m_className;
    }

    static inline int questions = 0;

protected:
    ObjectView *createGraphicsItem() override { return nullptr; }

private:
    QString m_className;
};

//! A list in the state during the reading of a file.
class OpenList : public ObjectListProperty
{
public:
    using ObjectListProperty::items;
    using ObjectListProperty::ObjectListProperty;
};

class Owner : public Node
{
public:
    explicit Owner(OrderRule rule)
        : list(QSharedPointer<OpenList>::create(this, u"list"_s, u"List"_s, rule))
    {
        initialize();
        addProperty(list);
    }

    bool add(const QString &name, const QString &className = u"Thing"_s)
    {
        return addListPropertyItem(list, new Item(name, className));
    }
    QString names() const { return list->listItemNames().join(u' '); }

    QSharedPointer<OpenList> list;
};

constexpr OrderRule allRules[] = {OrderRule::InsertionOrder, OrderRule::PlainOrder, OrderRule::NaturalOrder,
                                  OrderRule::FileNameOrder, OrderRule::KindOrder};

} // namespace

TEST(ObjectListProperty, EachRuleHasItsOwnOrder)
{
    const struct
    {
        OrderRule rule;
        const char *order;
    } rules[] = {
        {OrderRule::InsertionOrder, "b10.png b9.png B.png a.svg b-1.bmp"},
        {OrderRule::PlainOrder, "B.png a.svg b-1.bmp b10.png b9.png"},
        {OrderRule::NaturalOrder, "a.svg b-1.bmp B.png b9.png b10.png"},
        {OrderRule::FileNameOrder, "a.svg B.png b-1.bmp b9.png b10.png"},
        {OrderRule::KindOrder, "b10.png b9.png B.png a.svg b-1.bmp"},
    };
    for (const auto &[rule, order] : rules) {
        Owner owner(rule);
        for (const char *name : {"b10.png", "b9.png", "B.png", "a.svg", "b-1.bmp"}) {
            ASSERT_TRUE(owner.add(QString::fromLatin1(name)));
        }
        EXPECT_EQ(owner.names(), QLatin1StringView(order)) << int(rule);
    }
}

TEST(ObjectListProperty, KindsFollowEachOther)
{
    Owner owner(OrderRule::KindOrder);
    const std::pair<const char *, const char *> items[] = {
        {"o2", "Other"},           {"v2", "VisualElement"},   {"f10", "FunctionElement"},
        {"x2", "ProjectVariable"}, {"g1", "FilterElement"},   {"h1", "HardwareElement"},
        {"v1", "VisualElement"},   {"x1", "ProjectVariable"}, {"f9", "FunctionElement"},
        {"o1", "Other"},
    };
    for (const auto &[name, className] : items) {
        ASSERT_TRUE(owner.add(QString::fromLatin1(name), QString::fromLatin1(className)));
    }
    EXPECT_EQ(owner.names(), u"x1 x2 h1 f9 f10 g1 v2 v1 o2 o1"_s);
}

TEST(ObjectListProperty, StaysSortedAfterAnyInsertion)
{
    const QStringList classes{u"ProjectVariable"_s, u"VisualElement"_s, u"FilterElement"_s, u"Other"_s};
    for (const OrderRule rule : allRules) {
        std::mt19937 random(7);
        Owner owner(rule);
        Owner sortedOnce(rule);
        sortedOnce.list->items().isOrderingPaused = true;
        for (int i = 0; i < 300; ++i) {
            const QString name = u"%1%2"_s.arg(QChar(u'a' + char16_t(random() % 4)), QString::number(i));
            const QString &className = classes[random() % 4];
            ASSERT_TRUE(owner.add(name, className) && sortedOnce.add(name, className));
        }
        EXPECT_EQ(sortedOnce.list->items().isOrdered, false);
        sortedOnce.list->items().isOrderingPaused = false;
        sortedOnce.list->sortList();
        EXPECT_EQ(owner.names(), sortedOnce.names()) << int(rule);

        // In a sorted list an index is only a suggestion, and a renamed item moves to its new place.
        for (int i = 0; i < 100; ++i) {
            auto *item = new Item(u"n%1"_s.arg(i), classes[random() % 4]);
            ASSERT_TRUE(owner.insertListPropertyItemAt(owner.list, item, qsizetype(random() % 300)));
            ASSERT_TRUE(
                owner.list->getListItemAtIndex(qsizetype(random() % 300))
                    ->setIdName(u"%1new%2"_s.arg(QChar(u'a' + char16_t(random() % 26)), QString::number(i))));
        }
        const QString before = owner.names();
        owner.list->sortList();
        EXPECT_EQ(owner.names(), before) << int(rule);
    }
}

TEST(ObjectListProperty, InsertsByBinarySearchAndSortsALoadedListOnce)
{
    constexpr int count = 1000;
    Owner grown(OrderRule::KindOrder);
    Owner loaded(OrderRule::KindOrder);
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(u"v%1"_s.arg(i));
    }
    std::shuffle(names.begin(), names.end(), std::mt19937(7));

    Item::questions = 0;
    for (const QString &name : names) {
        grown.add(name, u"ProjectVariable"_s);
    }
    EXPECT_LT(Item::questions, count * 16);

    Item::questions = 0;
    loaded.list->items().isOrderingPaused = true;
    for (const QString &name : names) {
        loaded.add(name, u"ProjectVariable"_s);
    }
    EXPECT_EQ(Item::questions, 0);
    loaded.list->items().isOrderingPaused = false;
    loaded.list->sortList();
    EXPECT_EQ(Item::questions, count);
    EXPECT_EQ(loaded.names(), grown.names());
}

} // namespace Halvane::Corvex::Designer::Test
