// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/UpdateObjectList.h"

#include "values/NastyText.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;

namespace {

UpdateObjectInfo nastyUpdate(NastyText &nasty)
{
    UpdateObjectInfo info;
    // Half of the fields are empty, so that updates that set nothing occur, too.
    const auto text = [&nasty] { return nasty.number(2) == 0 ? QString() : nasty.text(); };
    info.setName(text());
    info.setParentProperty(text());
    info.setParentObject(text());
    info.setClassName(text());
    info.setScreen(text());
    info.setUpgradeVersion(text());
    info.setElementIndex(nasty.number(4) - 2);
    PropertyInfoList values;
    for (int length = nasty.number(3); length > 0; --length) {
        values << PropertyInfo(nasty.text(), nasty.text());
    }
    info.setPropertyValues(values);
    return info;
}

} // namespace

TEST(UpdateObjectInfo, WritesTheFieldsThatAreSet)
{
    UpdateObjectInfo info;
    EXPECT_EQ(info.toString(), QString());
    info.setName(u"label1"_s);
    info.setElementIndex(0);
    EXPECT_EQ(info.toString(), u"index: 0; name: label1;"_s);
    info.setPropValueMap({{u"text"_s, u"Hi"_s}, {u"size"_s, u"height: 1; width: 2;"_s}});
    info.setClassName(u"Text"_s);
    info.setElementIndex(-5);
    EXPECT_EQ(info.toString(),
              u"className: Text; name: label1; propertyValues: propName%3A size%3B propValue%3A "
              "height%253A 1%253B width%253A 2%253B%3B %7C propName%3A text%3B propValue%3A Hi%3B;"_s);
    EXPECT_EQ(UpdateObjectInfo(info.toString()), info);
}

TEST(UpdateObjectInfo, RefusesWhatItDoesNotWrite)
{
    const QString bad[] = {
        u"name: a; index: -1"_s,
        u"name: a; index: b"_s,
        u"name: a; propertyValues: x"_s,
        u"; ;"_s,
        u""_s,
        u"name: a; index: 99999999999"_s,
        u"name: a; propertyValues: "_s,
    };
    for (const QString &text : bad) {
        bool ok = true;
        EXPECT_EQ(UpdateObjectInfo(text, &ok), UpdateObjectInfo()) << text.toStdString();
        EXPECT_FALSE(ok) << text.toStdString();
    }
    bool ok = true;
    EXPECT_TRUE(UpdateObjectList(u"name: a; | nothing"_s, &ok).isEmpty());
    EXPECT_FALSE(ok);
}

TEST(UpdateObjectList, ReadsBackWhatItPrints)
{
    NastyText nasty(3);
    for (int turn = 0; turn < 2000; ++turn) {
        UpdateObjectList list;
        for (int length = nasty.number(4); length > 0; --length) {
            list << nastyUpdate(nasty);
        }
        bool ok = false;
        ASSERT_EQ(UpdateObjectList(list.toString(), &ok), list) << list.toString().toStdString();
        ASSERT_EQ(ok, !list.isEmpty());
        for (const UpdateObjectInfo &info : list) {
            ASSERT_EQ(UpdateObjectInfo(info.toString(), &ok), info) << info.toString().toStdString();
            ASSERT_EQ(ok, info != UpdateObjectInfo());
        }
    }
}
