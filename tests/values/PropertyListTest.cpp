// SPDX-License-Identifier: MIT
#include "corvex/values/runtime/PropertyList.h"

#include "values/NastyText.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;

namespace {

PropertyChangeInfo change(const QString &element, const QString &property, const QString &value = {})
{
    return {element, property, value};
}

//! "b.x c.y": the pairs in order.
QString pairs(const PropertyList &list)
{
    QStringList pairs;
    for (const PropertyChangeInfo &change : list) {
        pairs << change.elementName() + u'.' + change.propertyName();
    }
    return pairs.join(u' ');
}

PropertyList sample()
{
    PropertyList list;
    list << QList{change(u"b"_s, u"y"_s), change(u"a"_s, u"x"_s), change(u"b"_s, u"x"_s),
                  change(u"c"_s, u"x"_s)};
    return list;
}

} // namespace

TEST(PropertyChangeInfo, Text)
{
    EXPECT_EQ(change(u"label1"_s, u"text"_s, u"Hello"_s).toString(),
              u"elementName: label1; propertyName: text; valueString: SGVsbG8=;"_s);
    const QString bad[] = {
        u"elementName: a; valueString: SGVsbG8=;"_s,
        u"elementName: a; propertyName: b; valueString: Hello;"_s,
        u"elementName: a; propertyName: b; valueString: x: y; z"_s,
        u"elementName: a; propertyName: b; valueString: ; screen: c"_s,
        u""_s,
    };
    for (const QString &text : bad) {
        bool ok = true;
        EXPECT_EQ(PropertyChangeInfo(text, &ok), PropertyChangeInfo()) << text.toStdString();
        EXPECT_FALSE(ok) << text.toStdString();
    }
}

TEST(PropertyList, AppendKeepsTheFirstOfAPairInOrder)
{
    PropertyList list;
    list << change(u"label1"_s, u"text"_s, u"A"_s) << change(u"label1"_s, u"text"_s, u"B"_s)
         << change(u""_s, u"text"_s) << change(u"label1"_s, u""_s) << change(u"label1"_s, u"color"_s)
         << change(u"Label2"_s, u"z"_s);
    EXPECT_EQ(pairs(list), u"Label2.z label1.color label1.text"_s);
    EXPECT_EQ(list.value(u"label1"_s, u"text"_s).valueString(), u"A"_s);

    list << sample() << list;
    EXPECT_EQ(pairs(list), u"Label2.z a.x b.x b.y c.x label1.color label1.text"_s);
    EXPECT_EQ(list.elements().join(u' '), u"Label2 a b c label1"_s);
    PropertyList flat;
    for (const auto &changes : list.toMap()) {
        flat << changes.values();
    }
    EXPECT_EQ(flat, list);
}

TEST(PropertyList, Replace)
{
    PropertyList list = sample();
    EXPECT_FALSE(list.replace(u"b"_s, u"x"_s, change(u"b"_s, u"y"_s)));
    EXPECT_FALSE(list.replace(u"b"_s, u"x"_s, change(u""_s, u"x"_s)));
    EXPECT_FALSE(list.replace(4, change(u"d"_s, u"x"_s)));
    EXPECT_FALSE(list.replace(-1, change(u"d"_s, u"x"_s)));
    EXPECT_FALSE(list.replace(u"d"_s, {change(u"d"_s, u"x"_s)}));
    EXPECT_FALSE(list.replace(u"b"_s, {change(u"d"_s, u"x"_s), change(u"d"_s, u"x"_s)}));
    EXPECT_FALSE(list.replace(u"b"_s, {change(u"d"_s, u"x"_s), change(u"a"_s, u"x"_s)}));
    EXPECT_FALSE(list.replace(u"b"_s, {change(u"d"_s, u""_s)}));
    EXPECT_EQ(list, sample());

    EXPECT_TRUE(list.replace(3, change(u"c"_s, u"x"_s, u"new"_s)));
    EXPECT_EQ(list.at(3).valueString(), u"new"_s);
    EXPECT_TRUE(list.replace(u"a"_s, u"x"_s, change(u"d"_s, u"x"_s)));
    EXPECT_EQ(pairs(list), u"b.x b.y c.x d.x"_s);
    EXPECT_TRUE(list.replace(u"b"_s, {change(u"e"_s, u"y"_s), change(u"b"_s, u"x"_s, u"kept"_s)}));
    EXPECT_EQ(pairs(list), u"b.x c.x d.x e.y"_s);
    EXPECT_EQ(list[0].valueString(), u"kept"_s);
}

TEST(PropertyList, ThousandsInRandomOrderBehaveLikeAMap)
{
    NastyText random(7);
    QMap<QString, QString> expected;
    PropertyList list;
    for (int turn = 0; turn < 6000; ++turn) {
        const QString name = u"p%1"_s.arg(random.number(2000), 4, 10, QChar(u'0'));
        const QString value = QString::number(turn);
        if (random.number(4) > 0) {
            list << change(u"e"_s, name, value);
            expected.insert(name, expected.value(name, value));
        } else if (random.number(2) > 0) {
            ASSERT_EQ(list.remove(u"e"_s, name), expected.remove(name));
        } else {
            const QString other = name.chopped(1);
            const bool isFree = expected.contains(name) && !expected.contains(other);
            ASSERT_EQ(list.replace(u"e"_s, name, change(u"e"_s, other, value)), isFree);
            if (isFree) {
                expected.remove(name);
                expected.insert(other, value);
            }
        }
    }
    ASSERT_GT(list.size(), 1000);
    QMap<QString, QString> held;
    for (const PropertyChangeInfo &entry : list) {
        held.insert(entry.propertyName(), entry.valueString());
    }
    EXPECT_EQ(held, expected);
    for (qsizetype i = 0; i < list.size(); ++i) {
        ASSERT_EQ(list.indexOf(list.at(i)), i);
    }
    EXPECT_EQ(list.take(u"e"_s).size(), expected.size());
}

TEST(PropertyList, ReadsBackWhatItPrints)
{
    NastyText nasty(5);
    for (int turn = 0; turn < 2000; ++turn) {
        PropertyList list;
        for (int length = nasty.number(4); length >= 0; --length) {
            list << change(u"e"_s + nasty.text(), nasty.text() + u'p', nasty.text());
        }
        bool ok = false;
        ASSERT_EQ(PropertyList(list.toString(), &ok), list) << list.toString().toStdString();
        ASSERT_TRUE(ok);
    }
    bool ok = true;
    EXPECT_TRUE(PropertyList(sample().toString() + u" | "_s, &ok).isEmpty());
    EXPECT_FALSE(ok);
    EXPECT_EQ(PropertyList().toString(), QString());
}
