// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ValueCode.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/ExpressionGrammar.h"
#include "corvex/values/text/ValueConversion.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Info = GeneralDataInfo;

bool isTruth(const Info &constant)
{
    const QString &value = constant.value();
    return constant.dataType() == Info::StringData
               ? value.compare("true"_L1, Qt::CaseInsensitive) == 0
                     || value.compare("false"_L1, Qt::CaseInsensitive) == 0
               : constant.dataType() != Info::ColorData;
}

bool isColor(const Info &constant)
{
    bool ok = constant.dataType() == Info::ColorData;
    if (constant.dataType() == Info::StringData) {
        ValueConversion::toColor(constant.value(), &ok);
    }
    return ok;
}

//! Whether the term is the whole value, or one of those from which "?" selects, also in parentheses.
bool isResult(const GeneralDataList &terms, qsizetype index)
{
    const auto isSign = [&terms](qsizetype place, QChar sign) {
        return place >= 0 && place < terms.count() && ExpressionGrammar::isOperator(terms.at(place), sign);
    };
    qsizetype before = index - 1;
    while (isSign(before, u'(')) {
        --before;
    }
    qsizetype after = index + 1;
    while (isSign(after, u')')) {
        ++after;
    }
    return (before < 0 || isSign(before, u'?') || isSign(before, u':'))
           && (after == terms.count() || isSign(after, u':'));
}

bool isCondition(const ExpressionPurpose &purpose)
{
    return purpose.kind == GeneralDataList::BoolExpression;
}

} // namespace

QString ValueCode::of(const GeneralDataList &terms, const ExpressionPurpose &purpose)
{
    if (!terms.isComplete(purpose.kind) || misfit(terms, purpose) >= 0) {
        return {};
    }
    const bool isConverted =
        isCondition(purpose) && terms.count() == 1 && terms.at(0).valueType() == Info::ConstantValue;
    return terms.toQmlString(isConverted ? Info::BooleanOutput : purpose.output, purpose.kind);
}

qsizetype ValueCode::misfit(const GeneralDataList &terms, const ExpressionPurpose &purpose)
{
    if (!purpose.isColor && (!isCondition(purpose) || terms.count() != 1)) {
        return -1;
    }
    for (qsizetype i = 0; i < terms.count(); ++i) {
        const Info &term = terms.at(i);
        if (term.valueType() == Info::ConstantValue && isResult(terms, i)
            && !(purpose.isColor ? isColor(term) : isTruth(term))) {
            return i;
        }
    }
    return -1;
}

QString ValueCode::explanation(const ExpressionPurpose &purpose)
{
    return Common::LocalizationHelper::coreString(
        purpose.isColor ? u"This is not a color. Write #RRGGBB, #AARRGGBB or a name such as \"red\"."_s
                        : u"This is neither true nor false. Write true, false or a comparison."_s);
}

QString ValueCode::comparable(const QColor &color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

} // namespace Halvane::Corvex::Designer
