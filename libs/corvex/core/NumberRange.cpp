// SPDX-License-Identifier: MIT
#include "corvex/core/NumberRange.h"

#include "corvex/common/LocalizationHelper.h"

#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Without an exponent for all limits that properties use.
QString numberText(double number)
{
    constexpr int digits = 15;
    return QString::number(number, 'g', digits);
}

} // namespace

NumberRange NumberRange::of(const QVariantMap &editorParameters)
{
    NumberRange range;
    const auto take = [&editorParameters](const QString &key, double &limit) {
        const auto parameter = editorParameters.constFind(key);
        if (parameter == editorParameters.cend()) {
            return false;
        }
        limit = parameter->toDouble();
        return true;
    };
    take(u"minimum"_s, range.minimum);
    take(u"maximum"_s, range.maximum);
    range.isAbove = take(u"above"_s, range.minimum);
    for (const QVariant &number : editorParameters.value(u"values"_s).toList()) {
        range.choices.append(number.toDouble());
    }
    return range;
}

QString NumberRange::toString() const
{
    const auto text = [](const QString &english, auto... numbers) {
        return Common::LocalizationHelper::coreString(english).arg(numberText(numbers)...);
    };
    if (!choices.isEmpty()) {
        QStringList numbers;
        for (const double choice : choices) {
            numbers.append(numberText(choice));
        }
        const QString last = numbers.takeLast();
        return numbers.isEmpty()
                   ? last
                   : Common::LocalizationHelper::coreString(u"%1 or %2"_s).arg(numbers.join(u", "_s), last);
    }
    if (std::isinf(maximum)) {
        return std::isinf(minimum) ? QString()
               : isAbove           ? text(u"above %1"_s, minimum)
                                   : text(u"of at least %1"_s, minimum);
    }
    return std::isinf(minimum) ? text(u"up to %1"_s, maximum)
           : isAbove           ? text(u"above %1, up to %2"_s, minimum, maximum)
                               : text(u"from %1 to %2"_s, minimum, maximum);
}

} // namespace Halvane::Corvex::Designer
