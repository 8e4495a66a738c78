// SPDX-License-Identifier: MIT
#include "corvex/common/EnumHelper.h"
#include "corvex/values/records/BorderInfo.h"
#include "corvex/values/records/EnumInfo.h"
#include "corvex/values/records/FieldbusErrorInfo.h"
#include "corvex/values/records/IdentifierInfo.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/values/records/RangeInfo.h"
#include "corvex/values/records/ValueRangeInfo.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;
using Halvane::Corvex::Common::EnumHelper;

namespace {

struct Row
{
    QString text, expected;
};

//! Reads each text as a record and prints it again. "refused" must leave a default record.
template<class Record, size_t Count>
void expectCanonical(const Row (&rows)[Count])
{
    for (const auto &[text, expected] : rows) {
        bool ok = false;
        const Record record(text, &ok);
        EXPECT_EQ(ok ? record.toString() : u"refused"_s, expected) << text.toStdString();
        EXPECT_TRUE(ok || record == Record()) << text.toStdString();
        EXPECT_EQ(record, Record(text)) << "without an ok";
    }
}

} // namespace

TEST(BorderInfo, Text)
{
    EXPECT_EQ(BorderInfo(2, Qt::red).toString(), u"color: #FFFF0000; width: 2;"_s);
    EXPECT_EQ(BorderInfo().toString(), u"color: #FF000000; width: 0;"_s);
    expectCanonical<BorderInfo>({{u"width: 3; color: #80ff0000"_s, u"color: #80FF0000; width: 3;"_s},
                                 {u"width: 1; color: red; width: 2"_s, u"color: #FFFF0000; width: 2;"_s},
                                 {u"width: -1; color: red"_s, u"color: #FFFF0000; width: -1;"_s},
                                 {u"width: 3;"_s, u"refused"_s},
                                 {u"width: 1; color: red; width: a"_s, u"refused"_s},
                                 {u""_s, u"refused"_s}});
}

TEST(RangeInfo, Text)
{
    EXPECT_EQ(RangeInfo(-0.5, 100).toString(), u"maximum: 100; minimum: -0.5;"_s);
    expectCanonical<RangeInfo>({{u"minimum: 5; maximum: 1"_s, u"maximum: 1; minimum: 5;"_s},
                                {u"minimum: 5"_s, u"refused"_s},
                                {u"minimum: 5; maximum: inf"_s, u"refused"_s}});
}

TEST(ValueRangeInfo, Text)
{
    EXPECT_EQ(ValueRangeInfo(0, 50, 0, 100).toString(), u"value1: 0, value2: 50, min: 0, max: 100"_s);
    EXPECT_EQ(ValueRangeInfo(5, -1), ValueRangeInfo(5, -1, -1, 5));
    expectCanonical<ValueRangeInfo>(
        {{u" max:4,min :x"_s, u"refused"_s},
         {u"max: 4, min: 3, value2: 2, value1: 1.5"_s, u"value1: 1.5, value2: 2, min: 3, max: 4"_s},
         {u"value1: 1, value2: 2, min: 3, max : 4"_s, u"refused"_s},
         {u"value1: 1, value2: 2, min: 3, max: 4, "_s, u"refused"_s},
         {u""_s, u"refused"_s}});
}

TEST(ErrorInfos, Text)
{
    EXPECT_EQ(SendErrorInfo(false, true).toString(), u"busy: false, offline: true"_s);
    expectCanonical<SendErrorInfo>({{u"offline:TRUE,busy:false"_s, u"busy: false, offline: true"_s},
                                    {u"busy: true, busy: true"_s, u"refused"_s},
                                    {u"busy: true, offline: "_s, u"refused"_s}});
    bool ok = false;
    EXPECT_TRUE(SendErrorInfo(u"busy: true, offline: false"_s, &ok).isBusy()) << "a literal is no boolean";

    EXPECT_EQ(ReceiveErrorInfo(true, false, false, true).toString(),
              u"name: true, value: false, type: false, dataFlow: true"_s);
    expectCanonical<ReceiveErrorInfo>({{u"dataFlow: false, type: true, value: false, name: false"_s,
                                        u"name: false, value: false, type: true, dataFlow: false"_s}});
}

TEST(IdentifierInfo, Text)
{
    EXPECT_EQ(IdentifierInfo(u"speed"_s, u"Project"_s, u"NumberVariable"_s).toString(),
              u"filterType: NumberVariable; name: speed; scopeType: Project;"_s);
    EXPECT_EQ(IdentifierInfo(u""_s, u"Screen"_s, u""_s).toString(), u"scopeType: Screen;"_s);
    expectCanonical<IdentifierInfo>(
        {{u"name: a"_s, u"name: a;"_s},
         {u"scopeType:S;colour:red;name:b;filterType:"_s, u"name: b; scopeType: S;"_s},
         {u"name: %3B%1"_s, u"name: %3B%1;"_s},
         {u"scopeType: Screen;"_s, u"refused"_s},
         {u"name: a: b"_s, u"refused"_s},
         {u"a"_s, u"refused"_s}});
    bool ok = false;
    EXPECT_FALSE(IdentifierInfo(u"name: ;"_s, &ok).isValid());
    EXPECT_TRUE(ok);
}

TEST(ObjectLinkInfo, Text)
{
    const ObjectLinkInfo link(u"label1"_s, u"Screen"_s, QStringList{u"Text"_s, u"Image"_s});
    EXPECT_EQ(link.toString(), u"filterType: Text | Image; objectId: label1; scopeType: Screen;"_s);
    EXPECT_EQ(ObjectLinkInfo(u"a"_s, QString(), QString()).filterType(), QStringList());
    expectCanonical<ObjectLinkInfo>(
        {{u"filterType:Text|Image| |; objectId: a.png"_s, u"filterType: Text | Image; objectId: a.png;"_s},
         {u"scopeType: Project"_s, u"filterType: ; objectId: ; scopeType: Project;"_s},
         {ObjectLinkInfo().toString(), u"filterType: ; objectId: ;"_s},
         {u"objectId: a; b"_s, u"refused"_s},
         {u"; ;"_s, u"refused"_s},
         {u""_s, u"refused"_s}});
    EXPECT_EQ(ObjectLinkInfo(link.toString()), link);
}

TEST(EnumInfo, KeysAndValues)
{
    const QMetaEnum types = EnumHelper::metaEnum(u"InputOutputType"_s);
    const EnumInfo info(types, EnumHelper::SEND);
    EXPECT_EQ(info.keyOf(u"1"_s), info.key(1));
    EXPECT_EQ(info.keyOf(u"SEND"_s), u"SEND"_s);
    EXPECT_EQ(info.keyOf(u"99"_s), QString());
    EXPECT_EQ(info.key(-1), QString());
    EXPECT_FALSE(info == EnumInfo(EnumHelper::metaEnum(u"VariableType"_s), EnumHelper::SEND));

    const EnumInfo none;
    EXPECT_FALSE(none.isValid());
    EXPECT_EQ(none.valueString() + none.key(0) + none.keyOf(u"0"_s), QString());
    EXPECT_EQ(none, EnumInfo());
}
