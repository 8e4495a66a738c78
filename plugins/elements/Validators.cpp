// SPDX-License-Identifier: MIT
#include "elements/Validators.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/expressions/ValueCode.h"
#include "corvex/values/text/PairList.h"

#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

QString translated(const char *message)
{
    return Common::LocalizationHelper::coreString(QString::fromLatin1(message));
}

//! An empty text is neither an expression nor an error.
bool isTranslatable(const QString &text, GeneralDataList::InfoType kind)
{
    bool ok = true;
    const GeneralDataList expression(text, &ok);
    return ok
           && (expression.isEmpty() || !completeCode(expression, GeneralDataInfo::RawOutput, kind).isEmpty());
}

} // namespace

bool linkTargetValidator(const DesignerProperty *property, QString &error)
{
    const auto *link = propertyCast<LinkProperty>(property);
    if (!link || !link->value().isValid()) {
        error = translated("The link is not set.");
        return false;
    }
    if (link->parentObject()->project() && !link->namesake()) {
        error = translated("Cannot find \"%1\" in the project.").arg(link->value().objectId());
        return false;
    }
    return true;
}

bool logicValidator(const DesignerProperty *property, QString &error)
{
    int number = 1;
    for (const TextPair &rule : PairList(property->valueString())) {
        if (!isTranslatable(rule.first, GeneralDataList::BoolExpression)) {
            error = translated("The condition of rule %1 is incomplete.").arg(number);
            return false;
        }
        if (!isTranslatable(rule.second, GeneralDataList::AssignExpression)) {
            error = translated("The assignments of rule %1 are incomplete.").arg(number);
            return false;
        }
        ++number;
    }
    return true;
}

bool acceptExpression(const GeneralDataList &expression, const ExpressionPurpose &purpose, bool hasCode,
                      QString &error)
{
    if (expression.isEmpty() || hasCode) {
        return true;
    }
    const QString obstacle = ValueCode::misfit(expression, purpose) < 0 ? expression.obstacle(purpose.kind)
                                                                        : ValueCode::explanation(purpose);
    error = obstacle.isEmpty() ? translated("The terms of the expression do not fit together.") : obstacle;
    return false;
}

template<GeneralDataList::InfoType kind>
bool codeValidator(const DesignerProperty *property, QString &error)
{
    const GeneralDataList &expression = expressionOf(*property);
    constexpr ExpressionPurpose purpose{kind};
    return acceptExpression(expression, purpose, !ValueCode::of(expression, purpose).isEmpty(), error);
}

template bool codeValidator<GeneralDataList::AssignExpression>(const DesignerProperty *, QString &);
template bool codeValidator<GeneralDataList::BoolExpression>(const DesignerProperty *, QString &);
template bool codeValidator<GeneralDataList::MathExpression>(const DesignerProperty *, QString &);

bool termsValidator(const DesignerProperty *property, QString &error)
{
    int number = 1;
    for (const GeneralDataInfo &term : expressionOf(*property)) {
        if (operandCode(term).isEmpty()) {
            error = translated("Value %1, \"%2\", is not a constant, variable or property that a script can "
                               "read.")
                        .arg(QString::number(number), term.toString());
            return false;
        }
        ++number;
    }
    return true;
}

bool actionsValidator(const DesignerProperty *property, QString &error)
{
    const Screen *screen = property->parentObject()->screen();
    for (const QString &name : property->valueString().split(u", "_s, Qt::SkipEmptyParts)) {
        const Element *action = screen ? screen->getElement(name) : nullptr;
        if (screen && (!action || !action->isKindOfClass(u"BasicAction"_s))) {
            error = translated("Cannot find action \"%1\" in the screen.").arg(name);
            return false;
        }
    }
    return true;
}

} // namespace Halvane::Corvex::Elements
