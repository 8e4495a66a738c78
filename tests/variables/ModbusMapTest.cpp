// SPDX-License-Identifier: MIT
#include "corvex/variables/ModbusMap.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;

namespace {

Info address(const QString &number)
{
    return {Info::ConstantValue, Info::IntegerData, number};
}

Info variable(const QString &name)
{
    return {Info::VariableValue, Info::NumberData, name};
}

QString problem(ModbusMap::RegisterKind kind, const QList<Info> &terms)
{
    ModbusMap map(kind);
    QString error;
    const bool good = map.read(terms, error);
    EXPECT_EQ(good, error.isEmpty());
    EXPECT_EQ(map.entries().isEmpty(), !good || terms.isEmpty());
    return error;
}

TEST(ModbusMap, ReportsTheFirstProblem)
{
    const Info speed = variable(u"speed"_s);
    const Info noSource(Info::VariableValue, Info::NumberData, {});
    const Info asText(Info::ConstantValue, Info::StringData, u"40001"_s);
    const Info sum(Info::OperatorValue, Info::OperatorData, u"+"_s);
    const QString duplicate = u"Duplicate Value is Not Allowed"_s;
    const struct
    {
        QList<Info> terms;
        QString error;
    } cases[] = {
        {{}, {}},
        {{address(u"40001"_s), speed}, {}},
        {{address(u"40001"_s), {Info::ObjectValue, Info::IntegerData, u"Main.pump.speed"_s}}, {}},
        {{address(u"40001"_s)}, u"Incomplete data"_s},
        {{Info(), speed}, u"Data value at 1 is undefined"_s},
        {{address(u"40001"_s), speed, Info(), speed}, u"Data value at 2 is undefined"_s},
        {{asText, speed}, u"Data value at 40001 is undefined"_s},
        {{address(u"30001"_s), speed}, u"Data value at 30001 is undefined"_s},
        {{address(u"40001"_s), Info()}, u"Element not set for data value at: 40001"_s},
        {{address(u"40001"_s), noSource}, u"Element not set for data value at: 40001"_s},
        {{address(u"40001"_s), address(u"7"_s)}, u"Element not set for data value at: 40001"_s},
        {{address(u"40001"_s), sum}, u"Element not set for data value at: 40001"_s},
        {{address(u"40001"_s), speed, address(u"40002"_s), speed}, {}},
        {{address(u"40001"_s), speed, address(u"40001"_s), variable(u"level"_s)}, duplicate},
        {{address(u"40001"_s), speed, address(u"40001"_s), speed, Info(), speed}, duplicate},
    };
    for (const auto &[terms, error] : cases) {
        EXPECT_EQ(problem(ModbusMap::HoldingRegister, terms), error)
            << GeneralDataList(terms).toString().toStdString();
    }
    EXPECT_EQ(problem(ModbusMap::VirtualString, {address(u"5000"_s)}), u"incompeletd data"_s);
    EXPECT_EQ(problem(ModbusMap::Coil, {address(u"1"_s), Info()}),
              u"Element not set for data value at: 00001"_s);
}

} // namespace
