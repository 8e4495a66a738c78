// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ExpressionProperties.h"

#include "corvex/common/LocalizationHelper.h"

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

QString GeneralDataListProperty::formText() const
{
    const auto text = [](const QString &english) { return Common::LocalizationHelper::coreString(english); };
    const ExpressionPurpose empty = purpose({});
    if (empty.isTermList) {
        const QString example = editorParameter(u"example"_s).toString();
        return text(u"values such as %1"_s).arg(example.isEmpty() ? u"level, lamp.visible"_s : example);
    }
    switch (empty.kind) {
    case Kinds::BoolExpression:
        return text(u"a condition such as level > limit"_s);
    case Kinds::MathExpression:
        return text(u"a number or an expression such as level * 2"_s);
    case Kinds::StringExpression:
        return text(u"an expression with a text such as concat(\"Level \", level)"_s);
    case Kinds::AssignExpression:
        return text(u"assignments such as alarm = false; Main.lamp.visible = true"_s);
    default:
        return text(u"a color, or a selection such as alarm ? \"red\" : \"green\""_s);
    }
}

} // namespace Halvane::Corvex::Designer
