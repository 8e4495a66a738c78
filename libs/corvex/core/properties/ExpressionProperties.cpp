// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ExpressionProperties.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Kinds = GeneralDataList;
using Outputs = GeneralDataInfo;

struct EditorPurpose
{
    QLatin1StringView editor;
    ExpressionPurpose purpose;
};

constexpr EditorPurpose editorPurposes[] = {
    {"VerticalStringExpressionEditor"_L1, {Kinds::StringExpression, Outputs::StringOutput}},
    {"VerticalMathExpressionEditor"_L1, {Kinds::MathExpression, Outputs::NumberOutput}},
    {"VerticalBooleanExpressionEditor"_L1, {Kinds::BoolExpression, Outputs::RawOutput}},
    {"PropertyChangesEditor"_L1, {Kinds::AssignExpression, Outputs::RawOutput}},
};

constexpr ExpressionPurpose color{Kinds::GeneralExpression, Outputs::ColorOutput, false, true};
//! A color is a single term, converted to a color. In any other expression all terms would become colors: a
//! condition, for example, would be a color and always true. Only texts that name colors can be selected.
constexpr ExpressionPurpose colorSelection{Kinds::StringExpression, Outputs::RawOutput, false, true};
constexpr ExpressionPurpose termList{Kinds::GeneralExpression, Outputs::RawOutput, true};

bool isSelection(const GeneralDataList &terms)
{
    return std::any_of(terms.begin(), terms.end(), [](const GeneralDataInfo &term) {
        return term.valueType() == GeneralDataInfo::OperatorValue && term.value() == u'?';
    });
}

} // namespace

ExpressionPurpose GeneralDataListProperty::purpose(const GeneralDataList &terms) const
{
    const auto *row = std::ranges::find(editorPurposes, editor(), &EditorPurpose::editor);
    if (row != std::end(editorPurposes)) {
        return row->purpose;
    }
    // Other expressions replace a value, the color; the rest are lists.
    return !id().endsWith("Binding"_L1) ? termList : isSelection(terms) ? colorSelection : color;
}

} // namespace Halvane::Corvex::Designer
