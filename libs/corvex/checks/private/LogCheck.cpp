// SPDX-License-Identifier: MIT
#include "corvex/checks/private/LogCheck.h"

#include "corvex/core/properties/LinkProperty.h"
#include "corvex/project/Project.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

const QString logClass = u"LogVariable"_s;

} // namespace

bool LogCheck::concerns(const DesignerProperty &property)
{
    return propertyCast<LinkProperty>(&property)
           && property.editorParameter(u"filterType"_s).toString() == logClass;
}

void LogCheck::look(const DesignerProperty &link)
{
    m_fed.insert(valueAs<LinkProperty>(&link).objectId());
}

void LogCheck::join(Check &later)
{
    m_fed.unite(static_cast<LogCheck &>(later).m_fed);
}

void LogCheck::finish(const Project &project)
{
    for (const DesignerObject *log : project.variables()->getItemsOfType(logClass)) {
        if (!m_fed.contains(log->getIdName())) {
            report(*log, ProblemCode::LogUnfed);
        }
    }
}

} // namespace Halvane::Corvex::Designer
