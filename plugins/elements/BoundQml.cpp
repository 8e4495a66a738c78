// SPDX-License-Identifier: MIT
#include "elements/BoundQml.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlBinding.h"
#include "corvex/values/expressions/GeneralDataList.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

constexpr auto suffix = "Binding"_L1;

//! How an expression is translated. Its editor determines its purpose.
struct Binding
{
    QLatin1StringView editor;
    GeneralDataList::InfoType kind;
    GeneralDataInfo::OutputType output;
};

constexpr Binding bindings[] = {
    {"VerticalStringExpressionEditor"_L1, GeneralDataList::StringExpression, GeneralDataInfo::StringOutput},
    {"VerticalMathExpressionEditor"_L1, GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput},
    {"VerticalBooleanExpressionEditor"_L1, GeneralDataList::BoolExpression, GeneralDataInfo::RawOutput},
};

constexpr Binding colorBinding{"PropertyEditor"_L1, GeneralDataList::GeneralExpression,
                               GeneralDataInfo::ColorOutput};

//! A color is a single term, converted to a color. In any other expression all terms would become colors: a
//! condition, for example, would be a color and always true. Only texts that name colors can be selected.
constexpr Binding colorSelection{"PropertyEditor"_L1, GeneralDataList::StringExpression,
                                 GeneralDataInfo::RawOutput};

bool isSelection(const GeneralDataList &expression)
{
    return std::any_of(expression.begin(), expression.end(), [](const GeneralDataInfo &term) {
        return term.valueType() == GeneralDataInfo::OperatorValue && term.value() == u'?';
    });
}

const Binding &bindingOf(const DesignerProperty &property, const GeneralDataList &expression)
{
    const auto isIts = [&property](const Binding &entry) { return property.editor() == entry.editor; };
    const auto binding = std::ranges::find_if(bindings, isIts);
    return binding != std::end(bindings) ? *binding : isSelection(expression) ? colorSelection : colorBinding;
}

QString codeOf(const GeneralDataList &expression, const Binding &binding)
{
    const bool isTooLong = binding.output == GeneralDataInfo::ColorOutput && expression.count() > 1;
    return isTooLong ? QString() : completeCode(expression, binding.output, binding.kind);
}

//! The property with the expression for the property \a name; null if \a owner has none.
const DesignerProperty *propertyBeside(const DesignerObject *owner, const QString &name)
{
    const PropertyRange properties = owner->properties();
    const auto isIt = [&name](const SharedProperty &property) {
        const QString &id = property->id();
        return id.size() == name.size() + suffix.size() && id.endsWith(suffix) && id.startsWith(name);
    };
    // The elements of a class have it at the same index, and this is asked for each bound property.
    static thread_local QHash<QString, qsizetype> places;
    qsizetype &place = places[name];
    if (place >= properties.size() || !isIt(properties.at(place))) {
        place = std::ranges::distance(properties.begin(), std::ranges::find_if(properties, isIt));
    }
    return place < properties.size() ? properties.at(place).data() : nullptr;
}

//! Replaces the plain value by the code of its expression, if \a owner has one.
void replaceByExpression(QmlBinding &binding, const DesignerObject *owner)
{
    const DesignerProperty *source = propertyBeside(owner, binding.name);
    if (!source || expressionOf(*source).isEmpty()) {
        return;
    }
    const GeneralDataList &expression = expressionOf(*source);
    if (const QString code = codeOf(expression, bindingOf(*source, expression)); !code.isEmpty()) {
        binding.code = code;
        binding.source = source;
    }
}

} // namespace

bool bindingValidator(const DesignerProperty *property, QString &error)
{
    const GeneralDataList &expression = expressionOf(*property);
    const Binding &binding = bindingOf(*property, expression);
    if (acceptExpression(expression, binding.kind, !codeOf(expression, binding).isEmpty(), error)) {
        return true;
    }
    if (expression.count() > 1 && binding.editor == colorBinding.editor) {
        error = Common::LocalizationHelper::coreString(
            u"A color is a single term, or a boolean term selects one of two texts, as in "
            "<0403hot><0101?><0207cmVk><0101:><0207Z3JlZW4=>, which is hot ? \"red\" : \"green\"."_s);
    }
    return false;
}

QmlBindings boundToQml(const DesignerProperty *property)
{
    QmlBindings bindings = property->convertToBindings();
    for (QmlBinding &binding : bindings) {
        replaceByExpression(binding, property->parentObject());
    }
    return bindings;
}

} // namespace Halvane::Corvex::Elements
