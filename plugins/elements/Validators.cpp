// SPDX-License-Identifier: MIT
#include "elements/Validators.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/project/Element.h"
#include "corvex/project/Screen.h"
#include "corvex/values/GeneralDataList.h"
#include "corvex/values/PairList.h"

#include "elements/Rows.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

QString translated(const char *message)
{
    return Common::LocalizationHelper::coreString(QString::fromLatin1(message));
}

bool isTranslatable(const GeneralDataList &expression, GeneralDataList::InfoType kind)
{
    return expression.isEmpty() || !expression.toQmlString(GeneralDataInfo::RawOutput, kind).isEmpty();
}

//! An empty text is no expression and no fault.
bool isTranslatable(const QString &text, GeneralDataList::InfoType kind)
{
    bool ok = true;
    const GeneralDataList expression(text, &ok);
    return ok && isTranslatable(expression, kind);
}

} // namespace

bool linkTargetValidator(const DesignerProperty *property, QString &error)
{
    const auto *link = static_cast<const LinkProperty *>(property);
    if (!link->value().isValid()) {
        error = translated("The link is not set.");
        return false;
    }
    if (link->parentObject()->project() && !link->connectLink()) {
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

bool acceptExpression(bool isComplete, QString &error)
{
    if (!isComplete) {
        error = translated("The expression is incomplete.");
    }
    return isComplete;
}

bool codeValidator(const DesignerProperty *property, QString &error)
{
    return acceptExpression(expressionOf(*property).isEmpty() || !property->toQml(0).isEmpty(), error);
}

bool assignmentsValidator(const DesignerProperty *property, QString &error)
{
    return acceptExpression(isTranslatable(expressionOf(*property), GeneralDataList::AssignExpression),
                            error);
}

bool termsValidator(const DesignerProperty *property, QString &error)
{
    const GeneralDataList &terms = expressionOf(*property);
    const bool isComplete = std::all_of(terms.begin(), terms.end(), [](const GeneralDataInfo &term) {
        return !term.toQmlString(GeneralDataInfo::RawOutput).isEmpty();
    });
    return acceptExpression(isComplete, error);
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
