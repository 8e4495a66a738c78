// SPDX-License-Identifier: MIT
#include "elements/BoundQml.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/QmlText.h"
#include "corvex/values/GeneralDataList.h"

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

//! The expression bound to a name of \a owner as JavaScript; empty when there is none.
QString bindingOf(const DesignerObject *owner, const QString &name)
{
    const SharedProperty property = owner->getProperty(QString(name + suffix));
    const auto binding = std::find_if(std::begin(bindings), std::end(bindings), [&name](const auto &entry) {
        return name == QLatin1StringView(entry.name);
    });
    if (!property || binding == std::end(bindings)) {
        return {};
    }
    const QString expression = property->valueString();
    return expression.isEmpty() ? QString()
                                : GeneralDataList(expression).toQmlString(binding->output, binding->kind);
}

} // namespace

bool bindingValidator(const DesignerProperty *property, QString &error)
{
    const QString name = property->id().chopped(suffix.size());
    if (property->valueString().isEmpty() || !bindingOf(property->parentObject(), name).isEmpty()) {
        return true;
    }
    error = Common::LocalizationHelper::coreString(u"The expression is incomplete."_s);
    return false;
}

QString boundToQml(const DesignerProperty *property, int indent)
{
    const QString code = bindingOf(property->parentObject(), property->id());
    return code.isEmpty() ? property->toPlainQml(indent) : QmlText::line(indent, property->id(), code);
}

QString boundPositionToQml(const DesignerProperty *property, int indent)
{
    QStringList lines = property->toPlainQml(indent).split(u'\n');
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
