// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/variables/BooleanVariable.h"
#include "corvex/variables/ColorVariable.h"
#include "corvex/variables/DeviceVariable.h"
#include "corvex/variables/NumberVariable.h"

#include "variables/VariableSupport.h"

#include <QColor>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Type = ProjectVariable::VariableType;

namespace {

TEST(ProjectVariable, MarksBadNamesAndKeepsThem)
{
    const auto variable = makeVariable(u"NumberVariable"_s);
    EXPECT_TRUE(variable->setIdName(u"1st"_s));
    EXPECT_EQ(variable->getIdName(), u"1st"_s);
    EXPECT_FALSE(variable->idProperty()->isValid());
}

TEST(ProjectVariable, ACopyEqualsTheSavedForm)
{
    const auto variable = makeVariable(u"StringVariable"_s);
    change(*variable, u"value", u"a < b\n\"c\""_s);
    change(*variable, u"persistent", u"true"_s);
    const std::unique_ptr<DesignerObject> copy(DesignerObject::createCopy(variable.get()));
    ASSERT_TRUE(copy);
    for (const SharedProperty &property : variable->properties()) {
        EXPECT_EQ(copy->getProperty(property->id())->valueString(), property->valueString());
    }
}

TEST(ProjectVariable, FixedPersistenceNeverChanges)
{
    const auto variable = makeVariable(u"AutoSettingVariable"_s);
    EXPECT_FALSE(change(*variable, u"persistent", u"true"_s));
    QString text = DesignerObject::toString(variable.get());
    text.replace(u"\"persistent\" value=\"false\""_s, u"\"persistent\" value=\"true\""_s);
    const std::unique_ptr<DesignerObject> read(DesignerObject::createFromString(text));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->getProperty(u"persistent")->valueString(), u"false"_s);
}

TEST(NumberVariable, TheDecimalPointDecides)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const QVariant none;
    const struct
    {
        const char *text;
        Type type;
        QVariant value;
    } cases[] = {
        {"1", Type::IntegerVariable, 1},
        {"1.0", Type::FloatVariable, 1.0F},
        {".5", Type::FloatVariable, 0.5F},
        {"-2.5e2", Type::FloatVariable, -250.0F},
        {"Infinity", Type::FloatVariable, infinity},
        {"infinity", Type::IntegerVariable, none},
        {"1e3", Type::IntegerVariable, none},
        {"2147483647", Type::IntegerVariable, 2147483647},
        {"2147483648", Type::IntegerVariable, none},
        {"1.0e39", Type::FloatVariable, none},
        {"1,000.5", Type::FloatVariable, none},
        {"abc", Type::IntegerVariable, none},
        {"", Type::IntegerVariable, none},
    };
    for (const auto &[text, type, value] : cases) {
        SCOPED_TRACE(text);
        const auto variable = makeVariable(u"NumberVariable"_s);
        change(*variable, u"value", QString::fromLatin1(text));
        EXPECT_EQ(variable->variableType(), type);
        EXPECT_EQ(variable->toVariant().metaType(), value.metaType());
        EXPECT_EQ(variable->toVariant(), value);
    }
    const QVariant notANumber = NumberVariable::typedValue(u"NaN"_s);
    EXPECT_EQ(notANumber.metaType(), QMetaType::fromType<float>());
    EXPECT_TRUE(std::isnan(notANumber.toFloat()));
}

TEST(NumberVariable, ReportsNumbersThatTheDeviceDoesNotSupport)
{
    const QString floating = u"The floating number value is not within limit -16777215 to 16777215"_s;
    const QString integer = u"The integer value is not within limit 2147483647 to -2147483647"_s;
    const struct
    {
        const char *text;
        QString error;
    } cases[] = {
        {"16777215.0", {}},
        {"-16777215.0", {}},
        {"16777216.0", floating},
        {"-16777216.0", floating},
        {"2147483647", {}},
        {"-2147483647", {}},
        {"-2147483648", integer},
        {"2147483648", {}},
        {"abc", {}},
        {"", {}},
    };
    for (const auto &[text, error] : cases) {
        EXPECT_EQ(errorOf(u"NumberVariable"_s, u"value", QString::fromLatin1(text)), error) << text;
    }
}

TEST(ProjectVariable, TypedValuesOfTheOtherKinds)
{
    EXPECT_EQ(BooleanVariable::typedValue(u"true"), QVariant(true));
    EXPECT_EQ(BooleanVariable::typedValue(u"false"), QVariant(false));
    for (const QString &text : {u"True"_s, u"1"_s, u" true"_s, QString()}) {
        EXPECT_FALSE(BooleanVariable::typedValue(text).isValid()) << qPrintable(text);
    }
    EXPECT_EQ(ColorVariable::typedValue(u"#80FF0000"), QVariant(QColor(255, 0, 0, 128)));
    EXPECT_FALSE(ColorVariable::typedValue(u"reddish").isValid());
    EXPECT_FALSE(ColorVariable::typedValue(u"").isValid());

    const QVariantMap map{{u"65"_s, u"12 V"_s}, {u"b"_s, QString()}};
    EXPECT_EQ(DeviceVariable::typedValue(u"key: 65; value: 12 V; | key: b; value: ;"_s), QVariant(map));
    for (const QString &text : {QString(), u"key: 1;"_s, u"key: 1; value: 2; |"_s}) {
        EXPECT_FALSE(DeviceVariable::typedValue(text).isValid()) << qPrintable(text);
    }
}

TEST(MappingVariable, ChecksEachMapForItsOwnRegisters)
{
    const struct
    {
        const char *id;
        int first;
        int last;
    } maps[] = {
        {"coilMap", 1, 9999},
        {"discreteInputMap", 10001, 19999},
        {"inputRegMap", 30001, 39999},
        {"holdingRegMap", 40001, 49999},
        {"virtualRegMap", 0, 2147483647},
        {"virtualStringMap", 5000, 2147483647},
    };
    for (const auto &[id, first, last] : maps) {
        SCOPED_TRACE(id);
        const auto bind = [&](qint64 address) {
            GeneralDataList terms;
            terms.append(GeneralDataInfo::ConstantValue, GeneralDataInfo::IntegerData,
                         QString::number(address));
            terms.append(GeneralDataInfo::VariableValue, GeneralDataInfo::NumberData, u"speed"_s);
            return errorOf(u"MappingVariable"_s, QString::fromLatin1(id), terms.toString());
        };
        EXPECT_EQ(bind(first), QString());
        EXPECT_EQ(bind(last), QString());
        EXPECT_EQ(bind(first - 1), u"Data value at %1 is undefined"_s.arg(first - 1));
        EXPECT_EQ(bind(last + qint64(1)), u"Data value at %1 is undefined"_s.arg(last + qint64(1)));
    }
}

} // namespace
