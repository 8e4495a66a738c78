// SPDX-License-Identifier: MIT
#include "corvex/values/private/ExpressionPercent.h"

#include "corvex/values/private/ExpressionOperations.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

QList<ExpressionPercent> ExpressionPercent::of(const GeneralDataList &terms, const ExpressionPurpose &purpose,
                                               const ExpressionNames &names)
{
    using Info = GeneralDataInfo;
    QList<ExpressionPercent> found;
    const auto look = [&](qsizetype name, qsizetype constant) {
        if (name < 0 || constant < 0 || terms.at(name).valueType() != Info::ObjectValue
            || terms.at(constant).valueType() != Info::ConstantValue) {
            return;
        }
        const double largest = names.traitsOf(terms.at(name).value()).largestFraction;
        const double number = terms.at(constant).value().toDouble();
        if (largest > 0 && std::isfinite(number) && std::abs(number) > largest) {
            constexpr int digits = 15;
            const QString fraction = QString::number(number / 100, 'g', digits);
            found.append({name, constant, Info(Info::ConstantValue, Info::FloatData, fraction)});
        }
    };
    const bool hasProperty = std::any_of(
        terms.begin(), terms.end(), [](const Info &term) { return term.valueType() == Info::ObjectValue; });
    if (purpose.isAssignment()) {
        for (qsizetype i = 0; i + 1 < terms.count(); i += 2) {
            look(i, i + 1);
        }
    } else if (!purpose.isTermList && hasProperty && ExpressionOperation::compares(terms)
               && terms.isComplete(purpose.kind)) {
        for (const auto &[sign, left, right] : ExpressionOperation::of(terms, purpose.kind)) {
            if (ExpressionOperation::isComparison(terms.at(sign).value())) {
                look(left.term, right.term);
                look(right.term, left.term);
            }
        }
    }
    return found;
}

} // namespace Halvane::Corvex::Designer
