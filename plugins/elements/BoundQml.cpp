// SPDX-License-Identifier: MIT
#include "elements/BoundQml.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlText.h"
#include "corvex/values/GeneralDataList.h"

#include "elements/Rows.h"
#include "elements/Validators.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

constexpr auto suffix = "Binding"_L1;

//! How the expression for each bound name is translated.
constexpr struct
{
    const char *name;
    GeneralDataList::InfoType kind;
    GeneralDataInfo::OutputType output;
} bindings[] = {
    {"text", GeneralDataList::StringExpression, GeneralDataInfo::StringOutput},
    {"color", GeneralDataList::GeneralExpression, GeneralDataInfo::ColorOutput},
    {"rotation", GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput},
    {"visible", GeneralDataList::BoolExpression, GeneralDataInfo::RawOutput},
    {"x", GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput},
    {"y", GeneralDataList::MathExpression, GeneralDataInfo::NumberOutput},
};

//! The expression beside the plain value called \a name as JavaScript; empty when there is none.
QString codeOf(const DesignerProperty &property, QStringView name)
{
    const GeneralDataList &expression = expressionOf(property);
    if (expression.isEmpty()) {
        return {};
    }
    const auto binding = std::find_if(std::begin(bindings), std::end(bindings), [&name](const auto &entry) {
        return name == QLatin1StringView(entry.name);
    });
    return binding == std::end(bindings) ? QString() : expression.toQmlString(binding->output, binding->kind);
}

QString bindingOf(const DesignerObject *owner, const QString &name)
{
    const SharedProperty property = owner->getProperty(QString(name + suffix));
    return property ? codeOf(*property, name) : QString();
}

} // namespace

bool bindingValidator(const DesignerProperty *property, QString &error)
{
    const auto hasCode = [property] {
        return !codeOf(*property, QStringView(property->id()).chopped(suffix.size())).isEmpty();
    };
    return acceptExpression(expressionOf(*property).isEmpty() || hasCode(), error);
}

QString boundToQml(const DesignerProperty *property, int indent)
{
    const QString code = bindingOf(property->parentObject(), property->id());
    return code.isEmpty() ? property->convertToQml(indent) : QmlText::line(indent, property->id(), code);
}

QString boundPositionToQml(const DesignerProperty *property, int indent)
{
    QStringList lines = property->convertToQml(indent).split(u'\n');
    for (QString &line : lines) {
        const QString name = QStringView(line).trimmed().left(1).toString();
        const QString code = bindingOf(property->parentObject(), name);
        if (!code.isEmpty()) {
            line = QmlText::line(indent, name, code);
        }
    }
    return lines.join(u'\n');
}

} // namespace Halvane::Corvex::Elements
