// SPDX-License-Identifier: MIT
#include "elements/BoundQml.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlBinding.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/values/expressions/ValueCode.h"

#include "elements/Validators.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

constexpr auto suffix = "Binding"_L1;

QString codeOf(const GeneralDataList &expression, const ExpressionPurpose &purpose)
{
    const bool isTooLong = purpose.output == GeneralDataInfo::ColorOutput && expression.count() > 1;
    return isTooLong ? QString() : ValueCode::of(expression, purpose);
}

//! The property with the expression for the property \a name; null if \a owner has none.
const GeneralDataListProperty *propertyBeside(const DesignerObject *owner, const QString &name)
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
    return place < properties.size() ? propertyCast<GeneralDataListProperty>(properties.at(place).data())
                                     : nullptr;
}

//! Replaces the plain value by the code of its expression, if \a owner has one.
void replaceByExpression(QmlBinding &binding, const DesignerObject *owner)
{
    const GeneralDataListProperty *source = propertyBeside(owner, binding.name);
    if (!source || source->value().isEmpty()) {
        return;
    }
    if (const QString code = codeOf(source->value(), source->purpose()); !code.isEmpty()) {
        binding.code = code;
        binding.source = source;
    }
}

} // namespace

bool bindingValidator(const DesignerProperty *property, QString &error)
{
    const auto &typed = static_cast<const GeneralDataListProperty &>(*property);
    const GeneralDataList &expression = typed.value();
    const ExpressionPurpose purpose = typed.purpose();
    if (acceptExpression(expression, purpose, !codeOf(expression, purpose).isEmpty(), error)) {
        return true;
    }
    if (expression.count() > 1 && purpose.isColor && ValueCode::misfit(expression, purpose) < 0) {
        error = Common::LocalizationHelper::coreString(
            u"A color is a single term, or a boolean term selects one of two texts, as in "
            "hot ? \"red\" : \"green\"."_s);
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
