// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/GeneralDataInfo.h"

#include "corvex/common/TextHelper.h"
#include "corvex/values/expressions/ExpressionCode.h"
#include "corvex/values/expressions/ExpressionRules.h"
#include "corvex/values/private/ModelLookup.h"
#include "corvex/values/text/ObjectPath.h"

#include <QColor>

#include <array>
#include <limits>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;
using Common::EnumHelper;
using Kind = ExpressionRules::Kind;

namespace {

constexpr int headSize = 4;

struct Pairing
{
    EnumHelper::VariableType counterpart; //!< The type of the variables that match the data type.
    EnumHelper::VariableType written;     //!< The type number in generated code.
};

//! Indexed by data type.
constexpr std::array<Pairing, GeneralDataInfo::CommandData + 1> pairings{{
    {EnumHelper::NoVariable, EnumHelper::NoVariable},
    {EnumHelper::NoVariable, EnumHelper::NoVariable},
    {EnumHelper::NoVariable, EnumHelper::NoVariable},
    {EnumHelper::BooleanVariable, EnumHelper::BooleanVariable},
    {EnumHelper::IntegerVariable, EnumHelper::IntegerVariable},
    {EnumHelper::FloatVariable, EnumHelper::FloatVariable},
    {EnumHelper::NumberVariable, EnumHelper::NumberVariable},
    {EnumHelper::StringVariable, EnumHelper::StringVariable},
    {EnumHelper::ColorVariable, EnumHelper::ColorVariable},
    {EnumHelper::NoVariable, EnumHelper::NoVariable},
    {EnumHelper::LogVariable, EnumHelper::NoVariable},
    {EnumHelper::DeviceVariable, EnumHelper::NoVariable},
    {EnumHelper::FtpVariable, EnumHelper::NoVariable},
    {EnumHelper::NoVariable, EnumHelper::NoVariable},
}};

void appendTwoDigits(QString &text, quint8 number)
{
    constexpr auto digits = "0123456789ABCDEF"_L1;
    text += digits[number >> 4];
    text += digits[number & 0xf];
}

//! -1 if the two characters are not hexadecimal digits.
int twoDigits(QStringView text)
{
    return ExpressionRules::isHexadecimal(text) ? int(text.toUInt(nullptr, 16)) : -1;
}

QString encodedInteger(const QString &value)
{
    if (!ExpressionRules::isConstant(GeneralDataInfo::IntegerData, value)) {
        return {};
    }
    const qlonglong number = value.toLongLong();
    const auto magnitude = number < 0 ? 0 - qulonglong(number) : qulonglong(number);
    return (number < 0 ? u"-"_s : QString()) + QString::number(magnitude, 16).toUpper();
}

QString decodedInteger(QStringView text, bool &ok)
{
    const bool negative = text.startsWith(u'-');
    const QStringView digits = negative ? text.sliced(1) : text;
    ok = ExpressionRules::isHexadecimal(digits);
    const qulonglong magnitude = ok ? digits.toULongLong(&ok, 16) : 0;
    constexpr auto largest = qulonglong(std::numeric_limits<qlonglong>::max());
    ok = ok && magnitude <= largest + (negative ? 1 : 0);
    return ok ? QString::number(qlonglong(negative ? 0 - magnitude : magnitude)) : QString();
}

QString encodedConstant(GeneralDataInfo::DataType type, const QString &value)
{
    switch (type) {
    case GeneralDataInfo::BooleanData:
        return value == "true"_L1 ? u"1"_s : u"0"_s;
    case GeneralDataInfo::IntegerData:
        return encodedInteger(value);
    case GeneralDataInfo::StringData:
        return Common::TextHelper::convertToBase64(value);
    case GeneralDataInfo::ColorData:
        return (value.startsWith(u'#') ? value.sliced(1) : value).toUpper();
    case GeneralDataInfo::HexData:
    case GeneralDataInfo::CommandData:
        return value.toUpper();
    default:
        return value;
    }
}

QString decodedConstant(GeneralDataInfo::DataType type, QStringView text, bool &ok)
{
    switch (type) {
    case GeneralDataInfo::BooleanData:
        ok = text == u'1' || text == u'0';
        return text == u'1' ? u"true"_s : u"false"_s;
    case GeneralDataInfo::IntegerData:
        return decodedInteger(text, ok);
    case GeneralDataInfo::StringData:
        return Common::TextHelper::convertFromBase64(text.toString(), &ok);
    case GeneralDataInfo::ColorData:
        ok = text.size() == 8 && ExpressionRules::isHexadecimal(text);
        return u'#' + text.toString().toUpper();
    case GeneralDataInfo::HexData:
    case GeneralDataInfo::CommandData:
        ok = ExpressionRules::isHexadecimal(text);
        return text.toString().toUpper();
    default:
        ok = true;
        return text.toString();
    }
}

} // namespace

GeneralDataInfo::GeneralDataInfo(ValueType valueType, DataType dataType, const QString &value)
    : m_value(value)
    , m_valueType(valueType)
    , m_dataType(dataType)
{ }

GeneralDataInfo::GeneralDataInfo(const QString &text, bool *ok)
{
    const bool parsed = parse(text);
    if (ok) {
        *ok = parsed;
    }
}

bool GeneralDataInfo::parse(QStringView text)
{
    if (text.size() < headSize) {
        return false;
    }
    const int valueType = twoDigits(text.first(2));
    const int dataType = twoDigits(text.sliced(2, 2));
    if (valueType < 0 || valueType > CommandValue || dataType < 0 || dataType > CommandData) {
        return false;
    }
    const QStringView rest = text.sliced(headSize);
    bool ok = true;
    QString value =
        valueType == ConstantValue ? decodedConstant(DataType(dataType), rest, ok) : rest.toString();
    if (!ok) {
        return false;
    }
    m_valueType = ValueType(valueType);
    m_dataType = DataType(dataType);
    m_value = std::move(value);
    return true;
}

void GeneralDataInfo::appendTo(QString &text) const
{
    appendTwoDigits(text, m_valueType);
    appendTwoDigits(text, m_dataType);
    text += m_valueType == ConstantValue ? encodedConstant(m_dataType, m_value) : m_value;
}

QString GeneralDataInfo::toString() const
{
    QString text;
    text.reserve(headSize + m_value.size());
    appendTo(text);
    return text;
}

bool GeneralDataInfo::isValidValueType() const
{
    return ExpressionRules::allowsValueType(Kind::General, *this);
}

bool GeneralDataInfo::isValidDataType() const
{
    return ExpressionRules::allowsDataType(Kind::General, *this);
}

bool GeneralDataInfo::isValidValue() const
{
    return ExpressionRules::allowsValue(Kind::General, *this);
}

bool GeneralDataInfo::isValid(bool allowEmpty) const
{
    if (!allowEmpty && (m_valueType == NoValue || m_dataType == NoData)) {
        return false;
    }
    return isValidValueType() && isValidDataType() && isValidValue();
}

QString GeneralDataInfo::toQmlString(const OutputType &output) const
{
    QString code;
    // A kind without a translation of its own still has its own rules.
    if (isValidValueType() && isValidDataType() && isValidValue()) {
        ExpressionCode::appendAllowed(code, Kind::General, *this, output);
    }
    return code;
}

QVariant GeneralDataInfo::toVariant() const
{
    if (m_valueType == NoValue) {
        return {};
    }
    if (m_valueType != ConstantValue) {
        return m_value;
    }
    if (m_dataType == NoData || !ExpressionRules::isConstant(m_dataType, m_value)) {
        return {};
    }
    switch (m_dataType) {
    case BooleanData:
        return m_value == "true"_L1;
    case IntegerData:
        return m_value.toLongLong();
    case FloatData:
    case NumberData:
        return ExpressionRules::toNumber(m_value);
    case ColorData:
        return QColor(m_value);
    default:
        return m_value;
    }
}

bool GeneralDataInfo::names(NameKind kind) const
{
    switch (m_valueType) {
    case VariableValue:
        return (kind & VariableName) != 0;
    case ObjectValue:
        return (kind & ElementName) != 0 || m_dataType == LogData || m_dataType == DeviceData;
    default:
        return false;
    }
}

QStringView GeneralDataInfo::objectPart() const
{
    if (m_valueType == VariableValue) {
        return m_value;
    }
    if (m_valueType != ObjectValue) {
        return {};
    }
    const qsizetype dot = m_value.lastIndexOf(u'.');
    return QStringView(m_value).first(dot < 0 ? m_value.size() : dot);
}

QString GeneralDataInfo::objectName() const
{
    return objectPart().toString();
}

bool GeneralDataInfo::containsObject(const QString &name, NameKind kind) const
{
    if (!names(kind)) {
        return false;
    }
    return m_valueType == VariableValue ? !name.isEmpty() && m_value == name
                                        : ObjectPath::contains(objectPart(), name);
}

bool GeneralDataInfo::replaceObject(const QString &name)
{
    const QStringView objects = objectPart();
    if (objects.isEmpty() || name.isEmpty()) {
        return false;
    }
    m_value.replace(0, objects.size(), name);
    return true;
}

bool GeneralDataInfo::replaceObject(const QString &oldName, const QString &newName, NameKind kind)
{
    if (newName.isEmpty() || !containsObject(oldName, kind)) {
        return false;
    }
    if (m_valueType == VariableValue) {
        m_value = newName;
        return true;
    }
    QString objects = objectName();
    const qsizetype size = objects.size();
    ObjectPath::replace(objects, oldName, newName);
    m_value.replace(0, size, objects);
    return true;
}

bool GeneralDataInfo::containsScreenObject(const QString &name) const
{
    return m_valueType == ObjectValue && !name.isEmpty() && ObjectPath::firstSegment(m_value) == name;
}

bool GeneralDataInfo::replaceScreenObject(const QString &name)
{
    if (m_valueType != ObjectValue || m_value.isEmpty() || name.isEmpty()) {
        return false;
    }
    m_value.replace(0, ObjectPath::firstSegment(m_value).size(), name);
    return true;
}

bool GeneralDataInfo::replaceScreenObject(const QString &oldName, const QString &newName)
{
    return containsScreenObject(oldName) && replaceScreenObject(newName);
}

bool GeneralDataInfo::removeObject()
{
    if (objectPart().isEmpty()) {
        return false;
    }
    m_value.clear();
    return true;
}

bool GeneralDataInfo::isSameDataType(EnumHelper::VariableType variableType, DataType dataType)
{
    return dataType <= CommandData && pairings[dataType].counterpart == variableType;
}

EnumHelper::VariableType GeneralDataInfo::variableType(DataType dataType)
{
    return dataType <= CommandData ? pairings[dataType].written : EnumHelper::NoVariable;
}

ProjectVariable *GeneralDataInfo::toVariable(Project *project) const
{
    return project && valueType() == VariableValue ? ModelLookup::instance().variable(*project, value())
                                                   : nullptr;
}

DesignerObject *GeneralDataInfo::toProcess(Screen *screen) const
{
    return screen && valueType() == ObjectValue
               ? ModelLookup::instance().element(*screen, objectName().section(u'.', -1))
               : nullptr;
}

} // namespace Halvane::Corvex::Designer
