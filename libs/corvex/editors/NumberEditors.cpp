// SPDX-License-Identifier: MIT
#include "corvex/editors/NumberEditors.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/variables/NumberVariable.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

//! The number without an exponent and without digits that a calculation only adds by rounding.
QString decimalText(double number)
{
    constexpr int digits = 15;
    const int whole = number == 0 ? 1 : int(std::floor(std::log10(std::abs(number)))) + 1;
    QString text = QString::number(number, 'f', std::clamp(digits - whole, 0, digits));
    if (text.contains(u'.')) {
        while (text.endsWith(u'0')) {
            text.chop(1);
        }
        if (text.endsWith(u'.')) {
            text.chop(1);
        }
    }
    return text == "-0"_L1 ? u"0"_s : text;
}

} // namespace

PropertyEditor::Entry LargeNumberEditor::stored(const Arithmetic::Result &result, const QString &own,
                                                const QString &typed) const
{
    for (const QLatin1StringView word : {"NaN"_L1, "Infinity"_L1, "-Infinity"_L1}) {
        if (typed.compare(word, Qt::CaseInsensitive) == 0) {
            return {word, {}};
        }
    }
    QString text = QString(typed).replace(u',', u'.');
    if (!result.isPlain) {
        // A floating-point number remains one, even if its value is whole.
        const bool isFloating =
            (typed.isEmpty() || result.isChange ? own + typed : typed).contains(u'.') || typed.contains(u',');
        text = decimalText(result.number);
        text += isFloating && !text.contains(u'.') ? u".0"_s : QString();
    }
    if (!NumberVariable::typedValue(text).isValid()) {
        return {
            {},
            LocalizationHelper::coreString(
                u"%1 takes a number, not \"%2\". Whole numbers go up to 2147483647; with a decimal point, "
                "numbers go up to 16777215."_s)
                .arg(row().id, typed.isEmpty() ? text : typed)};
    }
    return {text, {}};
}

QString OpacityEditor::ownUnit() const
{
    return u"%"_s;
}

QString ScaleEditor::ownUnit() const
{
    return u"%"_s;
}

} // namespace Halvane::Corvex::Designer
