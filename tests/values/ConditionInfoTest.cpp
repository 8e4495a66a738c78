// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ConditionInfo.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;

TEST(ConditionInfo, TextForm)
{
    const QString text = u"condition1: GT; condition2: LE; operator: OR; value1: 1.5; value2: -3;"_s;
    const ConditionInfo condition(u"GT"_s, 1.5, u"LE"_s, -3, true);
    bool ok = false;
    EXPECT_EQ(condition.toString(), text);
    EXPECT_EQ(ConditionInfo(text, &ok), condition);
    EXPECT_TRUE(ok && condition.isOr() && !condition.isAnd());
    EXPECT_EQ(ConditionInfo(ConditionInfo().toString(), &ok), ConditionInfo());
    EXPECT_TRUE(ok && ConditionInfo().isAnd());

    const QString refused[]{
        u""_s,
        QString(text).replace(u"OR"_s, u"or"_s),
        QString(text).replace(u"OR"_s, u"XOR"_s),
        QString(text).replace(u"1.5"_s, u"x"_s),
        QString(text).replace(u" value2: -3;"_s, u""_s),
        QString(text).replace(u"condition2"_s, u"condition3"_s),
        text + u" more: 1;"_s,
    };
    for (const QString &bad : refused) {
        EXPECT_EQ(ConditionInfo(bad, &ok), ConditionInfo());
        EXPECT_FALSE(ok) << qPrintable(bad);
    }
}
