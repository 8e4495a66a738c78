// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/LogCheck.h"

#include "corvex/core/properties/LinkProperty.h"
#include "corvex/variables/LogVariable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

bool isLogLink(const DesignerProperty &property)
{
    return propertyCast<LinkProperty>(&property)
           && property.editorParameter(u"filterType"_s).toString() == LogVariable::kindName();
}

} // namespace

bool LogCheck::concerns(const DesignerObject &object) const
{
    return object.isKindOfClass(LogVariable::kindName())
           || std::ranges::any_of(object.properties(),
                                  [](const SharedProperty &property) { return isLogLink(*property); });
}

QList<SharedCheck::Claim> LogCheck::claims(const DesignerObject &object) const
{
    if (object.isKindOfClass(LogVariable::kindName())) {
        return {{object.getIdName()}};
    }
    QList<Claim> claims;
    for (const SharedProperty &property : object.properties()) {
        if (isLogLink(*property)) {
            claims.append({valueAs<LinkProperty>(property).objectId(), false});
        }
    }
    return claims;
}

void LogCheck::compare(const Group &group)
{
    for (const DesignerObject *log : group.otherCount == 0 ? group.subjects : decltype(group.subjects)()) {
        report(*log, ProblemCode::LogUnfed);
    }
}

} // namespace Halvane::Corvex::Designer
