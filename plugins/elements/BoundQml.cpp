// SPDX-License-Identifier: MIT
#include "elements/BoundQml.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlText.h"
#include "corvex/values/GeneralDataList.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

constexpr auto suffix = "Binding"_L1;

//! How the expression for each bound name is translated.
struct Binding
{
    const char *name;
    GeneralDataList::InfoType kind;
    GeneralDataInfo::OutputType output;
};

constexpr Binding bindings[] = {
    {"text", GeneralDataList::StringExpression, GeneralDataInfo::StringOutput},
    {"color", GeneralDataList::GeneralExpression, GeneralDataInfo::ColorOutput},
    {"rotation", GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput},
    {"visible", GeneralDataList::BoolExpression, GeneralDataInfo::RawOutput},
    {"x", GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput},
    {"y", GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput},
};

/*! A color is one term, which is made a color. Whatever else an expression of colors did, it would do with
    colors: a condition would be one, too, and always hold. Only texts that name colors can be selected. */
constexpr Binding colorSelection{"color", GeneralDataList::StringExpression, GeneralDataInfo::RawOutput};

bool isSelection(const GeneralDataList &expression)
{
    return std::any_of(expression.begin(), expression.end(), [](const GeneralDataInfo &term) {
        return term.valueType() == GeneralDataInfo::OperatorValue && term.value() == u'?';
    });
}

//! Null when nothing of that name can be bound.
const Binding *bindingOf(const GeneralDataList &expression, QStringView name)
{
    const auto binding =
        std::find_if(std::begin(bindings), std::end(bindings),
                     [&name](const Binding &entry) { return name == QLatin1StringView(entry.name); });
    if (binding == std::end(bindings)) {
        return nullptr;
    }
    const bool isColor = binding->output == GeneralDataInfo::ColorOutput;
    return isColor && isSelection(expression) ? &colorSelection : binding;
}

QString codeOf(const GeneralDataList &expression, const Binding &binding)
{
    const bool isTooLong = binding.output == GeneralDataInfo::ColorOutput && expression.count() > 1;
    return isTooLong ? QString() : completeCode(expression, binding.output, binding.kind);
}

//! The expression of \a owner beside the plain value called \a name, as JavaScript; empty when there is none.
QString codeBeside(const DesignerObject *owner, const QString &name)
{
    const SharedProperty property = owner->getProperty(QString(name + suffix));
    if (!property || expressionOf(*property).isEmpty()) {
        return {};
    }
    const Binding *binding = bindingOf(expressionOf(*property), name);
    return binding ? codeOf(expressionOf(*property), *binding) : QString();
}

} // namespace

bool bindingValidator(const DesignerProperty *property, QString &error)
{
    const GeneralDataList &expression = expressionOf(*property);
    const Binding *binding = bindingOf(expression, QStringView(property->id()).chopped(suffix.size()));
    if (!binding
        || acceptExpression(expression, binding->kind, !codeOf(expression, *binding).isEmpty(), error)) {
        return true;
    }
    if (expression.count() > 1 && property->id() == "colorBinding"_L1) {
        error = Common::LocalizationHelper::coreString(
            u"A color is a single term, or a boolean term selects one of two texts, as in "
            "<0403hot><0101?><0207cmVk><0101:><0207Z3JlZW4=>, which is hot ? \"red\" : \"green\"."_s);
    }
    return false;
}

QString boundToQml(const DesignerProperty *property, int indent)
{
    const QString code = codeBeside(property->parentObject(), property->id());
    return code.isEmpty() ? property->convertToQml(indent) : QmlText::line(indent, property->id(), code);
}

QString boundPositionToQml(const DesignerProperty *property, int indent)
{
    QStringList lines = property->convertToQml(indent).split(u'\n');
    for (QString &line : lines) {
        const QString name = QStringView(line).trimmed().left(1).toString();
        const QString code = codeBeside(property->parentObject(), name);
        if (!code.isEmpty()) {
            line = QmlText::line(indent, name, code);
        }
    }
    return lines.join(u'\n');
}

} // namespace Halvane::Corvex::Elements
