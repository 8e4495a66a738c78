// SPDX-License-Identifier: MIT
#include "corvex/document/LiveValues.h"

#include "corvex/core/ModelObservers.h"
#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

LiveValues &LiveValues::of(Project &project)
{
    auto *values = project.observers().find<LiveValues>();
    if (!values) {
        values = new LiveValues;
        project.observers().add(values);
    }
    return *values;
}

void LiveValues::setReader(Reader reader)
{
    m_reader = std::move(reader);
    emit changed({});
}

std::optional<QString> LiveValues::valueOf(const QString &name) const
{
    return m_reader ? m_reader(name) : std::nullopt;
}

void LiveValues::projectAboutToBeDestroyed()
{
    delete this;
}

} // namespace Halvane::Corvex::Designer
