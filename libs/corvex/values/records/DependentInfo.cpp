// SPDX-License-Identifier: MIT
#include "corvex/values/records/DependentInfo.h"

#include "corvex/values/private/ModelLookup.h"
#include "corvex/values/records/IdentifierInfo.h"

namespace Halvane::Corvex::Designer {

void DependentInfo::updateProperties(const QString &text)
{
    bool isIdentifier = false;
    const IdentifierInfo info(text, &isIdentifier);
    m_objectId = isIdentifier ? info.name() : text;
    m_properties.removeIf([](const QSharedPointer<DesignerProperty> &property) {
        return !ModelLookup::instance().isInProject(property);
    });
}

} // namespace Halvane::Corvex::Designer
