// SPDX-License-Identifier: MIT
#include "corvex/preview/state/Variable.h"

#include <QColor>
#include <QLocale>

#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

using Common::EnumHelper;

namespace {

QVariant toBoolean(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<QString>()) {
        const QString text = value.toString();
        return text == "true"_L1 ? QVariant(true) : text == "false"_L1 ? QVariant(false) : QVariant();
    }
    return value.canConvert<bool>() ? QVariant(value.toBool()) : QVariant();
}

//! The shortest decimal for a float, so that 12.3 is shown as entered, not as 12.300000190734863.
double toDouble(float value)
{
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    double result = value;
    std::from_chars(digits, end, result);
    return result;
}

QVariant toNumber(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<float>()) {
        return toDouble(value.toFloat());
    }
    if (value.metaType() == QMetaType::fromType<bool>()) {
        return value.toBool() ? 1.0 : 0.0;
    }
    bool ok = false;
    const double number = value.metaType() == QMetaType::fromType<QString>()
                              ? QLocale::c().toDouble(value.toString().trimmed(), &ok)
                              : value.toDouble(&ok);
    return ok ? QVariant(number) : QVariant();
}

QVariant toColor(const QVariant &value)
{
    const QColor color =
        value.metaType() == QMetaType::fromType<QColor>() ? value.value<QColor>() : QColor(value.toString());
    return color.isValid() ? QVariant(color.name(QColor::HexArgb).toUpper()) : QVariant();
}

QVariant initialValue(Variable::Type type)
{
    switch (type) {
    case EnumHelper::BooleanVariable:
        return false;
    case EnumHelper::ColorVariable:
        return u"#FF000000"_s;
    case EnumHelper::IntegerVariable:
    case EnumHelper::FloatVariable:
    case EnumHelper::LogVariable:
    case EnumHelper::NumberVariable:
        return 0.0;
    default:
        return QString();
    }
}

bool isSame(const QVariant &left, const QVariant &right)
{
    const bool areNumbers =
        left.metaType() == QMetaType::fromType<double>() && right.metaType() == QMetaType::fromType<double>();
    return left == right || (areNumbers && std::isnan(left.toDouble()) && std::isnan(right.toDouble()));
}

} // namespace

Variable::Variable(const QString &name, Type type, bool isPersistent, QObject *parent)
    : QObject(parent)
    , m_name(name)
    , m_type(type)
    , m_isPersistent(isPersistent)
    , m_value(initialValue(type))
{ }

bool Variable::setValue(const QVariant &value)
{
    const QVariant newValue = converted(value, m_type);
    if (!newValue.isValid()) {
        return false;
    }
    if (!isSame(m_value, newValue)) {
        m_value = newValue;
        emit valueChanged();
    }
    return true;
}

QVariant Variable::converted(const QVariant &value, Type type)
{
    switch (type) {
    case EnumHelper::BooleanVariable:
        return toBoolean(value);
    case EnumHelper::IntegerVariable:
    case EnumHelper::FloatVariable:
    case EnumHelper::LogVariable:
    case EnumHelper::NumberVariable:
        return toNumber(value);
    case EnumHelper::ColorVariable:
        return toColor(value);
    default:
        return textOf(value);
    }
}

QString Variable::textOf(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<QColor>()) {
        return toColor(value).toString();
    }
    if (value.metaType() == QMetaType::fromType<double>()
        || value.metaType() == QMetaType::fromType<float>()) {
        const double number = toNumber(value).toDouble();
        return std::isnan(number)   ? u"NaN"_s
               : std::isinf(number) ? (number < 0 ? u"-Infinity"_s : u"Infinity"_s)
                                    : QString::number(number, 'g', QLocale::FloatingPointShortest);
    }
    return value.toString();
}

QString Variable::nameOf(Type type)
{
    switch (type) {
    case EnumHelper::BooleanVariable:
        return u"boolean"_s;
    case EnumHelper::IntegerVariable:
    case EnumHelper::FloatVariable:
    case EnumHelper::NumberVariable:
        return u"number"_s;
    case EnumHelper::ColorVariable:
        return u"color"_s;
    case EnumHelper::LogVariable:
        return u"log"_s;
    default:
        return u"text"_s;
    }
}

} // namespace Halvane::Corvex::Preview
