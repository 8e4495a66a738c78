// SPDX-License-Identifier: MIT
#include "corvex/values/GeneralDataList.h"
#include "corvex/variables/BooleanVariable.h"
#include "corvex/variables/ColorVariable.h"
#include "corvex/variables/DeviceVariable.h"
#include "corvex/variables/MappingVariable.h"
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

enum class Persistence { Chosen, Never, Always };
using enum Persistence;

struct Kind
{
    const char *className;
    Type type;
    const char *title;
    const char *value;
    const char *editor;
    int valueFlags;
    Persistence persistence;
};

constexpr Kind kinds[] = {
    {"BooleanVariable", Type::BooleanVariable, "Variable Value", "false", "BooleanEditor", 15, Chosen},
    {"NumberVariable", Type::IntegerVariable, "Variable Value", "0", "LargeNumberEditor", 15, Chosen},
    {"StringVariable", Type::StringVariable, "Variable Value", "", "PlainTextEditor", 15, Chosen},
    {"ColorVariable", Type::ColorVariable, "Variable Value", "#FF000000", "ColorEditor", 15, Chosen},
    {"AutoSettingVariable", Type::DeviceVariable, "Value List", "", "PropertyEditor", 3, Never},
    {"MappingVariable", Type::DeviceVariable, "Variable Value", "", "PropertyEditor", 15, Chosen},
    {"CANVariable", Type::DeviceVariable, "Variable Value", "", "PropertyEditor", 15, Never},
    {"FtpVariable", Type::FtpVariable, "Ftp Value", "", "PropertyEditor", 15, Always},
    {"LogVariable", Type::LogVariable, "Variable Value", "0", "LargeNumberEditor", 15, Never},
    {"BACnetDevice", Type::DeviceVariable, "Variable Value", "", "PropertyEditor", 15, Never},
    {"BACnetObject", Type::DeviceVariable, "Variable Value", "", "PropertyEditor", 15, Never},
};

TEST(ProjectVariable, startsAsItsKindSays)
{
    for (const Kind &kind : kinds) {
        SCOPED_TRACE(kind.className);
        const auto variable = makeVariable(QString::fromLatin1(kind.className));
        ASSERT_TRUE(variable);
        const QStringList chain{u"IDesignerObject"_s, u"DesignerObject"_s, u"ProjectVariable"_s,
                                QString::fromLatin1(kind.className)};
        EXPECT_EQ(variable->classNames(), chain);
        EXPECT_EQ(variable->variableType(), kind.type);
        EXPECT_FALSE(variable->baseName().isEmpty());
        EXPECT_EQ(variable->getIdInfo(), IdentifierInfo(variable->baseName(), u"Project"_s, chain.last()));
        EXPECT_EQ(int(variable->idProperty()->flags()), 15);

        const DesignerProperty &value = *variable->value();
        EXPECT_EQ(value.valueString(), QString::fromLatin1(kind.value));
        EXPECT_EQ(value.name(), QString::fromLatin1(kind.title));
        EXPECT_EQ(value.editor(), QString::fromLatin1(kind.editor));
        EXPECT_EQ(int(value.flags()), kind.valueFlags);
        EXPECT_TRUE(value.allowInvalidValue());

        EXPECT_EQ(variable->persistent()->valueString(), kind.persistence == Always ? u"true"_s : u"false"_s);
        EXPECT_EQ(isShown(*variable, u"persistent"), kind.persistence == Chosen);
        EXPECT_EQ(variable->persistent()->editorParameter(u"tooltip"_s).toString(),
                  variable->persistent()->description());
        int rank = 12;
        for (const SharedProperty &property : variable->properties().sliced(3)) {
            EXPECT_EQ(property->rank(), rank++) << qPrintable(property->id());
            EXPECT_TRUE(property->allowInvalidValue()) << qPrintable(property->id());
        }
    }
}

TEST(ProjectVariable, marksBadNamesAndKeepsThem)
{
    const auto variable = makeVariable(u"NumberVariable"_s);
    EXPECT_TRUE(variable->setIdName(u"1st"_s));
    EXPECT_EQ(variable->getIdName(), u"1st"_s);
    EXPECT_FALSE(variable->idProperty()->isValid());
}

TEST(ProjectVariable, aCopyIsWhatWouldBeSaved)
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

TEST(ProjectVariable, persistenceThatTheKindDecidesNeverChanges)
{
    const auto variable = makeVariable(u"AutoSettingVariable"_s);
    EXPECT_FALSE(change(*variable, u"persistent", u"true"_s));
    QString text = DesignerObject::toString(variable.get());
    text.replace(u"\"persistent\" value=\"false\""_s, u"\"persistent\" value=\"true\""_s);
    const std::unique_ptr<DesignerObject> read(DesignerObject::createFromString(text));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->getProperty(u"persistent")->valueString(), u"false"_s);
}

TEST(NumberVariable, theDecimalPointDecides)
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
        {"-26", Type::IntegerVariable, -26},
        {"1.0", Type::FloatVariable, 1.0F},
        {"3.", Type::FloatVariable, 3.0F},
        {".5", Type::FloatVariable, 0.5F},
        {"-2.5e2", Type::FloatVariable, -250.0F},
        {"Infinity", Type::FloatVariable, infinity},
        {"-Infinity", Type::FloatVariable, -infinity},
        {"infinity", Type::IntegerVariable, none},
        {"1e3", Type::IntegerVariable, none},
        {"2147483647", Type::IntegerVariable, 2147483647},
        {"2147483648", Type::IntegerVariable, none},
        {"1.0e39", Type::FloatVariable, none},
        {"1,5", Type::IntegerVariable, none},
        {"1,000.5", Type::FloatVariable, none},
        {"abc", Type::IntegerVariable, none},
        {"a.b", Type::FloatVariable, none},
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

TEST(NumberVariable, tellsNumbersThatTheDeviceCannotHold)
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
        {"-99999999999", {}},
        {"abc", {}},
        {"x.y", {}},
        {"", {}},
    };
    for (const auto &[text, error] : cases) {
        EXPECT_EQ(errorOf(u"NumberVariable"_s, u"value", QString::fromLatin1(text)), error) << text;
    }
}

TEST(ProjectVariable, typedValuesOfTheOtherKinds)
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

    const auto list = makeVariable(u"AutoSettingVariable"_s);
    change(*list, u"value", u"<0304label1.x><0204A>"_s);
    EXPECT_EQ(list->toVariant(), QVariant(u"<0304label1.x><0204A>"_s));
    const auto text = makeVariable(u"StringVariable"_s);
    EXPECT_EQ(text->toVariant(), QVariant(QString()));
}

TEST(MappingVariable, checksEachMapForItsOwnRegisters)
{
    const struct
    {
        const char *id;
        const char *title;
        int registerType;
        int first;
        int last;
    } maps[] = {
        {"coilMap", "Coil Map (00001 - 09999)", 2, 1, 9999},
        {"discreteInputMap", "Discrete Input Map (10001 - 19999)", 1, 10001, 19999},
        {"inputRegMap", "Input Regiseter Map (30001 - 39999)", 4, 30001, 39999},
        {"holdingRegMap", "Holding Register Map (40001 - 49999)", 5, 40001, 49999},
        {"virtualRegMap", "Virtual Register Map", 7, 0, 2147483647},
        {"virtualStringMap", "Virtual String Map (5000 and above)", 8, 5000, 2147483647},
    };
    const auto variable = makeVariable(u"MappingVariable"_s);
    for (const auto &[id, title, registerType, first, last] : maps) {
        SCOPED_TRACE(id);
        const SharedProperty property = variable->getProperty(QString::fromLatin1(id));
        ASSERT_TRUE(property);
        EXPECT_EQ(property->name(), QString::fromLatin1(title));
        EXPECT_EQ(property->editor(),
                  registerType == 8 ? u"StringAddressMapEditor"_s : u"AddressMapEditor"_s);
        EXPECT_EQ(property->editorParameter(u"RegType"_s), QVariant(registerType));
        const auto bind = [&](qint64 address) {
            GeneralDataList terms;
            terms.append(GeneralDataInfo::ConstantValue, GeneralDataInfo::IntegerData,
                         QString::number(address));
            terms.append(GeneralDataInfo::VariableValue, GeneralDataInfo::NumberData, u"speed"_s);
            return errorOf(u"MappingVariable"_s, property->id(), terms.toString());
        };
        EXPECT_EQ(bind(first), QString());
        EXPECT_EQ(bind(last), QString());
        EXPECT_EQ(bind(first - 1), u"Data value at %1 is undefined"_s.arg(first - 1));
        EXPECT_EQ(bind(last + qint64(1)), u"Data value at %1 is undefined"_s.arg(last + qint64(1)));
    }
    auto &mapping = static_cast<MappingVariable &>(*variable);
    EXPECT_EQ(mapping.holdingRegMap(), mapping.getProperty(u"holdingRegMap"));
    EXPECT_EQ(mapping.toQml(1), QString());
}

} // namespace
