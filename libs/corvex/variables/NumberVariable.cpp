// SPDX-License-Identifier: MIT
#include "corvex/variables/NumberVariable.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/variables/LogVariable.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Up to here a single-precision float holds every integer exactly.
constexpr float largestFloat = 16777215;
constexpr int smallestInteger = -2147483647;

bool validateNumber(const DesignerProperty *property, QString &error)
{
    return NumberVariable::isWithinLimits(property->valueString(), error);
}

} // namespace

NumberVariable::VariableType NumberVariable::typeOf(const QString &text)
{
    const bool isFloating =
        text.contains(u'.') || text == "NaN"_L1 || text == "Infinity"_L1 || text == "-Infinity"_L1;
    return isFloating ? VariableType::FloatVariable : VariableType::IntegerVariable;
}

QVariant NumberVariable::typedValue(const QString &text)
{
    using Limits = std::numeric_limits<float>;
    if (text == "NaN"_L1) {
        return Limits::quiet_NaN();
    }
    if (text == "Infinity"_L1 || text == "-Infinity"_L1) {
        return text.startsWith(u'-') ? -Limits::infinity() : Limits::infinity();
    }
    bool ok = false;
    const QVariant number =
        typeOf(text) == VariableType::FloatVariable ? QVariant(text.toFloat(&ok)) : QVariant(text.toInt(&ok));
    return ok ? number : QVariant();
}

bool NumberVariable::holdsNumber(const DesignerObject &variable)
{
    return variable.isKindOfClass(kindName()) || variable.isKindOfClass(LogVariable::kindName());
}

bool NumberVariable::lacksNumber(const ProjectVariable &variable)
{
    return holdsNumber(variable) && !variable.toVariant().isValid();
}

bool NumberVariable::isWithinLimits(const QString &text, QString &error)
{
    error.clear();
    bool ok = false;
    if (text.contains(u'.')) {
        const float number = text.toFloat(&ok);
        if (ok && (number < -largestFloat || number > largestFloat)) {
            error = Common::LocalizationHelper::coreString(
                u"The floating number value is not within limit -16777215 to 16777215"_s);
        }
    } else if (text.toInt(&ok) < smallestInteger && ok) {
        error = Common::LocalizationHelper::coreString(
            u"The integer value is not within limit 2147483647 to -2147483647"_s);
    }
    return error.isEmpty();
}

const PropertyRow &NumberVariable::numberRow()
{
    static const PropertyRow prototype =
        row<StringProperty>("value", "Variable Value", u"0"_s)
            .description("The number that the variable has when the device starts; it is a floating point "
                         "number if it is written with a point.")
            .example("20.5")
            .rank(10)
            .allowInvalid()
            .editor("LargeNumberEditor")
            .validator(&validateNumber);
    return prototype;
}

SharedProperty NumberVariable::initializeValueProperty()
{
    return numberRow().make(this);
}

} // namespace Halvane::Corvex::Designer
