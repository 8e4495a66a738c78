// SPDX-License-Identifier: MIT
#include "corvex/variables/BACnetPropertyList.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;

namespace {

Info text(const QString &value)
{
    return {Info::ConstantValue, Info::StringData, value};
}

QString problem(const QList<Info> &terms)
{
    BACnetPropertyList list;
    QString error;
    const bool good = list.read(terms, error);
    EXPECT_EQ(good, error.isEmpty());
    EXPECT_EQ(good, !list.entries().isEmpty());
    return error;
}

TEST(BACnetPropertyList, ReportsTheFirstProblem)
{
    const Info value = text(u"present-value"_s);
    const Info real = text(u"real"_s);
    const Info speed(Info::VariableValue, Info::NumberData, u"speed"_s);
    const Info forgotten(Info::VariableValue, Info::NumberData, {});
    const Info plus(Info::OperatorValue, Info::OperatorData, u"+"_s);
    const Info eightyFive(Info::ConstantValue, Info::IntegerData, u"85"_s);
    const QString invalid = u"Invalid property list entry at 1"_s;
    const struct
    {
        QList<Info> terms;
        QString error;
    } cases[] = {
        {{value, real, speed}, {}},
        {{value, real, {Info::VariableValue, Info::NoData, u"speed"_s}}, {}},
        {{value, real, {Info::ObjectValue, Info::FloatData, u"Main.gauge1.level"_s}}, {}},
        {{value, real, {Info::ConstantValue, Info::FloatData, u"0.5"_s}}, {}},
        {{text(u"description"_s), text(u"character-string"_s), text({})}, {}},
        {{text(u"512"_s), real, speed, text(u"4194303"_s), real, speed}, {}},
        {{}, u"BACnet Object properties not set"_s},
        {{value, real}, u"Incomplete property list."_s},
        {{value, real, speed, value}, u"Incomplete property list."_s},
        {{value, real, plus}, u"Invalid property list entry."_s},
        {{Info(), real, speed}, u"Property name not set at : 1"_s},
        {{value, real, speed, text({}), real, speed}, u"Property name not set at : 2"_s},
        {{text(u"present_value"_s), real, speed}, invalid},
        {{text(u"85"_s), real, speed}, invalid},
        {{text(u"4194304"_s), real, speed}, invalid},
        {{text(u"-1"_s), real, speed}, invalid},
        {{text(u"0512"_s), real, speed}, invalid},
        {{eightyFive, real, speed}, invalid},
        {{value, Info(), speed}, invalid},
        {{value, text(u"float"_s), speed}, invalid},
        {{value, real, Info()}, invalid},
        {{value, real, forgotten}, invalid},
        {{value, real, speed, value, real, speed},
         u"The property name provided at 2 has duplicate entries"_s},
    };
    for (const auto &[terms, error] : cases) {
        EXPECT_EQ(problem(terms), error) << qPrintable(GeneralDataList(terms).toString());
    }
}

} // namespace
