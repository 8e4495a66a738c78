// SPDX-License-Identifier: MIT
#include "corvex/values/runtime/RuntimeLists.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;
using Halvane::Corvex::Common::EnumHelper;

namespace {

RuntimeProperty make(const QString &name, const QString &displayName, const RuntimeProperty &)
{
    return {name, displayName, EnumHelper::IntegerVariable, EnumHelper::ReadWrite, {}};
}

RuntimeAutoSettingProperty make(const QString &name, const QString &displayName,
                                const RuntimeAutoSettingProperty &)
{
    return {name, displayName, EnumHelper::IntegerVariable, EnumHelper::ReadWrite, {}, u"0"_s};
}

template<class List>
class RuntimeLists : public testing::Test
{
protected:
    using Record = typename List::value_type;

    static Record record(const QString &name, const QString &displayName = {})
    {
        return make(name, displayName, Record());
    }
    //! The names in order, joined.
    static QString names(const List &list) { return list.names().join(u","_s); }

    List m_list;
};

using Lists = testing::Types<RuntimePropertyList, RuntimeAutoSettingList>;
TYPED_TEST_SUITE(RuntimeLists, Lists);

} // namespace

TYPED_TEST(RuntimeLists, AppendKeepsTheFirstOfANameInOrder)
{
    auto &list = this->m_list;
    list << this->record(u"b"_s, u"first"_s) << this->record(u"a"_s) << this->record(u"b"_s, u"second"_s)
         << this->record(u""_s);
    EXPECT_EQ(this->names(list), u"a,b"_s);
    list << QList{this->record(u"c"_s, u"first"_s), this->record(u"B"_s), this->record(u""_s),
                  this->record(u"b"_s, u"third"_s), this->record(u"c"_s, u"second"_s)};
    EXPECT_EQ(this->names(list), u"B,a,b,c"_s);
    EXPECT_EQ(list.property(u"b"_s).displayName(), u"first"_s);
    EXPECT_EQ(list.property(u"c"_s).displayName(), u"first"_s);
    list << list;
    EXPECT_EQ(list.count(), 4);
    EXPECT_EQ(list.toMap().values(), list.toList());
}

TYPED_TEST(RuntimeLists, Replace)
{
    auto &list = this->m_list;
    list << QList{this->record(u"a"_s), this->record(u"b"_s), this->record(u"c"_s)};
    const auto before = list;
    EXPECT_FALSE(list.replace(u"x"_s, this->record(u"x"_s)));
    EXPECT_FALSE(list.replace(u"a"_s, this->record(u"b"_s)));
    EXPECT_FALSE(list.replace(-1, this->record(u"x"_s)));
    EXPECT_EQ(list, before);

    EXPECT_TRUE(list.replace(u"c"_s, this->record(u"c"_s, u"shown"_s)));
    EXPECT_EQ(list.at(2).displayName(), u"shown"_s);
    EXPECT_TRUE(list.replace(0, this->record(u"d"_s)));
    EXPECT_EQ(this->names(list), u"b,c,d"_s);

    TypeParam single;
    single << this->record(u"a"_s);
    EXPECT_FALSE(single.replace(0, this->record(u"a"_s)));
}

TYPED_TEST(RuntimeLists, SortedByDisplayName)
{
    auto &list = this->m_list;
    EXPECT_TRUE(list.toSortedList().isEmpty());
    list << this->record(u"x"_s, u"Speed"_s) << this->record(u"y"_s, u"Level"_s)
         << this->record(u"z"_s, u"Speed"_s) << this->record(u"w"_s, u"a"_s);
    QStringList names;
    for (const auto &record : list.toSortedList()) {
        names << record.property();
    }
    EXPECT_EQ(names, QStringList({u"y"_s, u"z"_s, u"w"_s}));
}

TYPED_TEST(RuntimeLists, Similar)
{
    TypeParam other;
    EXPECT_TRUE(this->m_list.isSimilar(other));
    this->m_list << this->record(u"a"_s, u"shown"_s);
    EXPECT_FALSE(this->m_list.isSimilar(other));
    other << this->record(u"a"_s, u"shown otherwise"_s);
    EXPECT_TRUE(this->m_list.isSimilar(other));
    auto readOnly = this->record(u"b"_s);
    readOnly.setAccessMode(EnumHelper::ReadOnly);
    this->m_list << this->record(u"b"_s);
    other << readOnly;
    EXPECT_FALSE(this->m_list.isSimilar(other));
}
