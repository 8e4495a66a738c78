// SPDX-License-Identifier: MIT
// Lists and maps of free texts, which must read back unchanged.
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/records/MapInfo.h"
#include "corvex/values/text/NestedText.h"

#include "values/NastyText.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;

TEST(NestedText, EscapesOnlyWhatIsNecessary)
{
    const struct
    {
        QString text, field, item;
    } rows[] = {
        {u"plain text, 100% {ü}"_s, u"plain text, 100% {ü}"_s, u"plain text, 100% {ü}"_s},
        {u"a:b;c"_s, u"a%3Ab%3Bc"_s, u"a:b;c"_s},
        {u"pump1|speed"_s, u"pump1%7Cspeed"_s, u"pump1|speed"_s},
        {u"|b"_s, u"%7Cb"_s, u"|b"_s},
        {u"a | b"_s, u"a %7C b"_s, u"a %7C b"_s},
        {u"|"_s, u"%7C"_s, u"%7C"_s},
        {u"  two "_s, u"%20 two%20"_s, u"%20 two%20"_s},
        {u"\u2003x"_s, u"%E2%80%83x"_s, u"%E2%80%83x"_s},
        {u"%3B %3b %41 %zz %"_s, u"%253B %253b %41 %zz %"_s, u"%253B %253b %41 %zz %"_s},
        {u"a\v\fb"_s, u"a%0B%0Cb"_s, u"a%0B%0Cb"_s},
        {u"%C2%A0 %C2"_s, u"%25C2%A0 %C2"_s, u"%25C2%A0 %C2"_s},
    };
    for (const auto &[text, field, item] : rows) {
        EXPECT_EQ(NestedText::toField(text), field);
        EXPECT_EQ(NestedText::toItem(text), item);
        EXPECT_EQ(NestedText::fromField(field), text);
        EXPECT_EQ(NestedText::fromField(item), text);
    }
}

TEST(ListInfo, Text)
{
    const struct
    {
        QString text;
        QStringList items;
        QString printed;
    } rows[] = {
        {u"a | b"_s, {u"a"_s, u"b"_s}, u"a | b"_s},
        {u" a  |  b | "_s, {u"a"_s, u"b"_s, u""_s}, u"a | b | "_s},
        {u"a|x | |b | c|"_s, {u"a|x"_s, u"|b"_s, u"c|"_s}, u"a|x | |b | c|"_s},
        {u"|"_s, {u""_s, u""_s}, u" | "_s},
        {u"%00"_s, {u""_s}, u"%00"_s},
    };
    for (const auto &[text, items, printed] : rows) {
        bool ok = false;
        const ListInfo list(text, &ok);
        EXPECT_TRUE(ok);
        EXPECT_EQ(list.toList(), items) << text.toStdString();
        EXPECT_EQ(list.toString(), printed);
    }
    bool ok = true;
    EXPECT_TRUE(ListInfo(u" "_s, &ok).isEmpty());
    EXPECT_FALSE(ok);
    EXPECT_EQ(ListInfo().toString(), QString());
}

TEST(MapInfo, Text)
{
    const struct
    {
        QString text, printed;
    } rows[] = {
        {u" value:x;key:"_s, u"key: ; value: x;"_s},
        {u"key: a%3Ab; value: %41"_s, u"key: a%3Ab; value: %41;"_s},
        {u"key: 1; value: On; |"_s, u"refused"_s},
        {u"key: 1;"_s, u"refused"_s},
        {u"key: 1; value: 2; more: 3"_s, u"refused"_s},
        {u""_s, u"refused"_s},
    };
    for (const auto &[text, printed] : rows) {
        bool ok = false;
        const MapInfo map(text, &ok);
        EXPECT_EQ(ok ? map.toString() : u"refused"_s, printed) << text.toStdString();
        EXPECT_TRUE(ok || map.isEmpty());
    }
}

TEST(MapInfo, KeepsOrderAndDuplicates)
{
    MapInfo map;
    map << QPair(u"b"_s, u"1"_s) << QMap<QString, QString>{{u"a"_s, u"2"_s}, {u"b"_s, u"3"_s}};
    map << QPair(QStringList{u"c"_s, u"b"_s, u"d"_s}, QStringList{u"4"_s, u"5"_s});
    map << map;
    EXPECT_EQ(map.keys().join(QString()), u"babcbbabcb"_s);
    EXPECT_EQ(map.values(u"b"_s).join(QString()), u"135135"_s);
    EXPECT_EQ(map.value(u"b"_s), u"5"_s);
    EXPECT_EQ(map.take(u"b"_s), u"5"_s);
    EXPECT_EQ(map.value(u"b"_s), u"3"_s);
    EXPECT_EQ(map.key(u"2"_s), u"a"_s);
    EXPECT_EQ(map.remove(u"b"_s), 5);
    EXPECT_EQ(map.remove(u"b"_s), 0);
    EXPECT_EQ(map.value(u"b"_s, u"none"_s) + map.key(u"9"_s, u"none"_s), u"nonenone"_s);
    map[u"e"_s] = u"6"_s;
    map[u"a"_s] = u"7"_s;
    EXPECT_EQ(map.values().join(QString()), u"24746"_s);
    EXPECT_EQ(map.count(u"a"_s), 2);
}

TEST(ListsAndMaps, ReadBackWhatTheyPrint)
{
    NastyText nasty(11);
    for (int turn = 0; turn < 3000; ++turn) {
        ListInfo list;
        MapInfo map;
        for (int length = nasty.number(5); length > 0; --length) {
            list.append(nasty.text());
            map.insert(nasty.text(), nasty.text());
        }
        bool listOk = false;
        bool mapOk = false;
        ASSERT_EQ(ListInfo(list.toString(), &listOk), list) << list.toString().toStdString();
        ASSERT_EQ(MapInfo(map.toString(), &mapOk), map) << map.toString().toStdString();
        ASSERT_EQ(listOk, !list.isEmpty());
        ASSERT_EQ(mapOk, !map.isEmpty());
    }
}
