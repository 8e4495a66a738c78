// SPDX-License-Identifier: MIT
#include "elements/BoundQml.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlBinding.h"
#include "corvex/values/expressions/GeneralDataList.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

constexpr auto suffix = "Binding"_L1;

//! How the expression for each bound name is translated.
struct Binding
{
    QLatin1StringView name;
    GeneralDataList::InfoType kind;
    GeneralDataInfo::OutputType output;
};

constexpr Binding bindings[] = {
    {"text"_L1, GeneralDataList::StringExpression, GeneralDataInfo::StringOutput},
    {"color"_L1, GeneralDataList::GeneralExpression, GeneralDataInfo::ColorOutput},
    {"rotation"_L1, GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput},
    {"visible"_L1, GeneralDataList::BoolExpression, GeneralDataInfo::RawOutput},
    {"x"_L1, GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput},
    {"y"_L1, GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput},
};

/*! A color is one term, which is made a color. Whatever else an expression of colors did, it would do with
    colors: a condition would be one, too, and always hold. Only texts that name colors can be selected. */
constexpr Binding colorSelection{"color"_L1, GeneralDataList::StringExpression, GeneralDataInfo::RawOutput};

bool isSelection(const GeneralDataList &expression)
{
    return std::any_of(expression.begin(), expression.end(), [](const GeneralDataInfo &term) {
        return term.valueType() == GeneralDataInfo::OperatorValue && term.value() == u'?';
    });
}

//! Null when nothing of that name can be bound.
const Binding *bindingOf(QStringView name)
{
    const auto binding =
        std::ranges::find_if(bindings, [name](const Binding &entry) { return name == entry.name; });
    return binding == std::end(bindings) ? nullptr : binding;
}

//! How that expression is translated.
const Binding &formOf(const GeneralDataList &expression, const Binding &binding)
{
    const bool isColor = binding.output == GeneralDataInfo::ColorOutput;
    return isColor && isSelection(expression) ? colorSelection : binding;
}

QString codeOf(const GeneralDataList &expression, const Binding &binding)
{
    const auto &[name, kind, output] = formOf(expression, binding);
    const bool isTooLong = output == GeneralDataInfo::ColorOutput && expression.count() > 1;
    return isTooLong ? QString() : completeCode(expression, output, kind);
}

//! The property beside the plain value of that name that holds its expression; null when \a owner has none.
const DesignerProperty *propertyBeside(const DesignerObject *owner, const Binding &binding)
{
    const PropertyRange properties = owner->properties();
    const auto isIt = [&binding](const SharedProperty &property) {
        const QString &id = property->id();
        return id.size() == binding.name.size() + suffix.size() && id.endsWith(suffix)
               && id.startsWith(binding.name);
    };
    // Elements of a class have it at one place, and each bound property of each element asks.
    static thread_local std::array<qsizetype, std::size(bindings)> places{};
    qsizetype &place = places[size_t(&binding - std::begin(bindings))];
    if (place >= properties.size() || !isIt(properties.at(place))) {
        place = std::ranges::distance(properties.begin(), std::ranges::find_if(properties, isIt));
        if (place == properties.size()) {
            return nullptr;
        }
    }
    return properties.at(place).data();
}

//! Puts the code of the expression beside the plain value of \a owner, if it has one, in its place.
void replaceByExpression(QmlBinding &binding, const DesignerObject *owner)
{
    const Binding *form = bindingOf(binding.name);
    const DesignerProperty *source = form ? propertyBeside(owner, *form) : nullptr;
    if (!source || expressionOf(*source).isEmpty()) {
        return;
    }
    if (const QString code = codeOf(expressionOf(*source), *form); !code.isEmpty()) {
        binding.code = code;
        binding.source = source;
    }
}

} // namespace

bool bindingValidator(const DesignerProperty *property, QString &error)
{
    const GeneralDataList &expression = expressionOf(*property);
    const Binding *binding = bindingOf(QStringView(property->id()).chopped(suffix.size()));
    if (!binding
        || acceptExpression(expression, formOf(expression, *binding).kind,
                            !codeOf(expression, *binding).isEmpty(), error)) {
        return true;
    }
    if (expression.count() > 1 && property->id() == "colorBinding"_L1) {
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
